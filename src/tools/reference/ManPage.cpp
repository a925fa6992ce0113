#include "tools/reference/ManPage.h"

#include <algorithm>
#include <cctype>
#include <sstream>
#include <stdexcept>

namespace tarn {

namespace {

constexpr std::string_view SourceNote =
    ".\\\" Made from the program's own options: not to be changed here.\n";

std::string Bold(std::string_view text) {
    return "\\fB" + ManText(text) + "\\fR";
}

std::string Slanted(std::string_view text) {
    return "\\fI" + ManText(text) + "\\fR";
}

/// A line of the file: none that begins with what the formatter takes for a command.
std::string Line(const std::string& text) {
    const bool isCommand = text.starts_with('.') || text.starts_with('\'');
    return (isCommand ? "\\&" : "") + text + "\n";
}

/// A text that is filled anyway, in lines that can be read in the file, too.
std::string Filled(std::string text) {
    constexpr std::size_t Width = 78;
    std::string lines;
    while (text.size() > Width) {
        std::size_t at = text.rfind(' ', Width);
        at = at == std::string::npos ? text.find(' ') : at;
        if (at == std::string::npos) {
            break;
        }
        lines += Line(text.substr(0, at));
        text.erase(0, at + 1);
    }
    return lines + Line(text);
}

std::string UpperCase(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char each) { return static_cast<char>(std::toupper(each)); });
    return text;
}

std::string Head(const std::string& name, int section, const ManFoot& foot) {
    return std::string(SourceNote) + ".TH " + ManText(UpperCase(name)) + " " +
           std::to_string(section) + " " + foot.Day + " \"tarn " + foot.Version + "\" \"" +
           (section == 1 ? "User Commands" : "File Formats") + "\"\n";
}

/// A sentence as what follows a name and a dash: "Make data: fast." is "make data".
std::string AsPhrase(std::string sentence) {
    sentence.erase(std::min(sentence.size(), sentence.find(": ")));
    sentence.front() =
        static_cast<char>(std::tolower(static_cast<unsigned char>(sentence.front())));
    if (sentence.ends_with('.')) {
        sentence.pop_back();
    }
    return sentence;
}

std::string Join(const std::vector<std::string>& parts, const std::string& between) {
    std::string text;
    for (const std::string& part : parts) {
        text += (text.empty() ? "" : between) + part;
    }
    return text;
}

std::string FormOf(const OptionRow& row) {
    if (row.IsArgument) {
        return Slanted(row.Name);
    }
    const std::string name =
        row.Short.empty() ? Bold(row.Name) : Bold(row.Short) + ", " + Bold(row.Name);
    return row.Value.empty() ? name : name + " " + Slanted(row.Value);
}

std::string Rows(const std::vector<OptionRow>& rows) {
    std::string text;
    for (const OptionRow& row : rows) {
        const std::string conditions = Join(ConditionsOf(row), ", ");
        text += ".TP\n" + Line(FormOf(row)) +
                Filled(ManText(row.Text + (conditions.empty() ? "" : " (" + conditions + ")")));
    }
    return text;
}

/// What a command line needs: its required options, a hint at the others, its arguments.
std::string Usage(const std::string& name, const std::vector<OptionRow>& rows) {
    std::string text = Bold(name);
    bool hasMore = false;
    for (const OptionRow& row : rows) {
        if (!row.IsArgument && row.IsRequired) {
            text += " " + FormOf(row);
        }
        hasMore = hasMore || (!row.IsArgument && !row.IsRequired);
    }
    text += hasMore ? " [" + Slanted("OPTION") + "]..." : "";
    for (const OptionRow& row : rows) {
        if (row.IsArgument) {
            text += row.IsRequired ? " " + FormOf(row) : " [" + FormOf(row) + "]";
        }
    }
    return text;
}

std::string Synopsis(const ProgramTable& program) {
    if (program.Commands.empty()) {
        return Line(Usage(program.Name, program.Rows));
    }
    std::string text;
    for (const CommandTable& command : program.Commands) {
        text += (text.empty() ? "" : ".br\n") +
                Line(Usage(program.Name + " " + command.Name, command.Rows));
    }
    return text;
}

std::string Paragraphs(const std::vector<std::string>& paragraphs) {
    std::string text;
    for (const std::string& paragraph : paragraphs) {
        text += (text.empty() ? "" : ".PP\n") + Filled(ManText(paragraph));
    }
    return text;
}

std::string Code(const std::vector<std::string>& lines) {
    std::string text = ".RS 4\n.nf\n";
    for (const std::string& line : lines) {
        text += Line(ManText(line));
    }
    return text + ".fi\n.RE\n";
}

std::string SeeAlso(const ProgramTable& program, const std::vector<ProgramTable>& programs) {
    std::vector<std::string> pages;
    for (const ProgramTable& each : programs) {
        if (each.Name != program.Name) {
            pages.push_back(Bold(each.Name) + "(1)");
        }
    }
    pages.push_back(Bold("tarn-formats") + "(5)");
    return Join(pages, ",\n") + "\n";
}

/// Markdown within a line: code, stress and links.
std::string InLine(std::string_view text) {
    std::string out;
    while (!text.empty()) {
        const std::size_t at = text.find_first_of("`*[");
        out += ManText(text.substr(0, at));
        if (at == std::string_view::npos) {
            break;
        }
        const bool isStress = text.substr(at).starts_with("**");
        const std::string_view mark = text.substr(at, isStress ? 2 : 1);
        const std::string_view end = mark == "[" ? "](" : mark;
        text.remove_prefix(at + mark.size());
        const std::size_t close = text.find(end);
        if (close == std::string_view::npos) {
            out += ManText(mark);
            continue;
        }
        out += mark == "[" ? ManText(text.substr(0, close)) : Bold(text.substr(0, close));
        text.remove_prefix(close + end.size());
        if (mark == "[") {
            text.remove_prefix(std::min(text.size(), text.find(')') + 1));
        }
    }
    return out;
}

/// The cells of a table's line.
std::vector<std::string> CellsOf(const std::string& line) {
    std::vector<std::string> cells;
    std::string cell;
    for (std::size_t i = 1; i < line.size(); ++i) { // behind the first bar
        if (line[i] == '\\' && i + 1 < line.size() && line[i + 1] == '|') {
            cell += line[++i];
        } else if (line[i] == '|') {
            cell.erase(0, cell.find_first_not_of(' '));
            cell.erase(cell.find_last_not_of(' ') + 1);
            cells.push_back(std::move(cell));
            cell.clear();
        } else {
            cell += line[i];
        }
    }
    return cells;
}

/// Reads a text line by line and writes it as a man page.
class TextToMan {
  public:
    std::string Convert(const std::string& markdown) {
        std::istringstream lines(markdown);
        for (std::string line; std::getline(lines, line);) {
            Take(line);
        }
        EndParagraph();
        return out_;
    }

  private:
    void Take(const std::string& line) {
        if (line.starts_with("```")) {
            EndParagraph();
            inCode_ = !inCode_;
            out_ += inCode_ ? ".PP\n.RS 4\n.nf\n" : ".fi\n.RE\n";
        } else if (inCode_) {
            out_ += Line(ManText(line));
        } else if (line.starts_with('|')) {
            TakeRow(line);
        } else if (line.starts_with('#')) {
            TakeHeading(line);
        } else if (line.empty()) {
            EndParagraph();
        } else if (line.starts_with("- ")) {
            EndParagraph();
            out_ += ".IP \\(bu 3\n";
            begun_ = true;
            paragraph_ = line.substr(2);
        } else {
            paragraph_ +=
                (paragraph_.empty() ? "" : " ") + line.substr(line.find_first_not_of(' '));
        }
    }

    /// The first row of a table has the headings and the second one rules off: what the columns
    /// are stands in the text before. The first cell of the others is the term, the rest tells it.
    void TakeRow(const std::string& line) {
        EndParagraph();
        if (++tableRow_ <= 2) {
            return;
        }
        const auto cells = CellsOf(line);
        std::vector<std::string> rest;
        for (std::size_t i = 1; i < cells.size(); ++i) {
            if (!cells[i].empty()) {
                rest.push_back(InLine(cells[i]));
            }
        }
        out_ +=
            ".TP\n" + Line(InLine(cells.empty() ? "" : cells.front())) + Filled(Join(rest, "; "));
    }

    void TakeHeading(const std::string& line) {
        EndParagraph();
        const std::size_t depth = line.find_first_not_of('#');
        const std::string text = line.substr(line.find_first_not_of("# "));
        out_ +=
            depth <= 2 ? ".SH " + ManText(UpperCase(text)) + "\n" : ".SS " + ManText(text) + "\n";
        begun_ = true; // a heading parts paragraphs by itself
    }

    void EndParagraph() {
        if (!paragraph_.empty()) {
            out_ += (begun_ ? "" : ".PP\n") + Filled(InLine(paragraph_));
            begun_ = false;
            tableRow_ = 0;
        }
        paragraph_.clear();
    }

    std::string out_;
    std::string paragraph_;
    bool begun_ = true; ///< the next paragraph needs no request before it
    bool inCode_ = false;
    int tableRow_ = 0;
};

} // namespace

std::string ManText(std::string_view text) {
    std::string out;
    for (const char each : text) {
        switch (each) {
        case '\\':
            out += "\\e";
            break;
        case '-':
            out += "\\-";
            break;
        case '\'':
            out += "\\(aq";
            break;
        case '`':
            out += "\\(ga";
            break;
        case '^':
            out += "\\(ha";
            break;
        case '~':
            out += "\\(ti";
            break;
        default:
            out += each;
        }
    }
    return out;
}

std::string ManPage(const ProgramTable& program, const std::vector<ProgramTable>& programs,
                    const ManFoot& foot) {
    std::string page = Head(program.Name, 1, foot);
    const auto add = [&page](const char* heading, const std::string& text) {
        page += text.empty() ? "" : std::string(".SH ") + heading + "\n" + text;
    };
    add("NAME", ManText(program.Name) + " \\- " + ManText(AsPhrase(program.Summary)) + "\n");
    add("SYNOPSIS", Synopsis(program));
    std::vector<std::string> description{program.Summary};
    description.insert(description.end(), program.Description.begin(), program.Description.end());
    add("DESCRIPTION", Paragraphs(description));
    add("OPTIONS", Rows(program.Rows));
    std::string commands;
    for (const CommandTable& command : program.Commands) {
        commands += ".SS " + ManText(command.Name) + "\n" + Filled(ManText(command.Text + ".")) +
                    Rows(command.Rows);
    }
    add("COMMANDS", commands);
    add("EXIT STATUS", Filled(ManText(program.ExitStatus)));
    add("NOTES", Paragraphs(program.Notes));
    add("EXAMPLES", Code(program.Examples));
    add("SEE ALSO", SeeAlso(program, programs));
    return page;
}

std::string ManPageOfText(const std::string& name, const std::string& markdown,
                          const ManFoot& foot) {
    const std::size_t end = markdown.find('\n');
    if (!markdown.starts_with("# ") || end == std::string::npos) {
        throw std::runtime_error("the text of " + name + " has no heading in its first line");
    }
    return Head(name, 5, foot) + ".SH NAME\n" + ManText(name) + " \\- " +
           ManText(AsPhrase(markdown.substr(2, end - 2))) + "\n.SH DESCRIPTION\n" +
           TextToMan().Convert(markdown.substr(end + 1));
}

} // namespace tarn
