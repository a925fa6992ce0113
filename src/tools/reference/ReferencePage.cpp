#include "tools/reference/ReferencePage.h"

#include <sstream>

namespace tarn {

namespace {

constexpr const char* PageHead =
    "# The command line\n\n"
    "Every option, argument and exit status of the programs, and the formats of their files. This\n"
    "page, the man pages and the completions of the shells are made from what the programs read\n"
    "their arguments by: it is written by `./dev reference`, and a test keeps it up to date.\n\n";

/// Text that shows as it is: what would be markup is escaped.
std::string Plain(const std::string& text) {
    std::string out;
    for (const char each : text) {
        out += std::string(each == '*' || each == '<' || each == '_' || each == '`' ||
                                   each == '[' || each == '\\'
                               ? "\\"
                               : "") +
               each;
    }
    return out;
}

std::string Code(const std::string& text) {
    return "`" + text + "`";
}

/// "; required; not with `--rooms`" without its beginning.
std::string Conditions(const OptionRow& row) {
    std::string text;
    for (const std::string& condition : ConditionsOf(row)) {
        text += (text.empty() ? "" : ", ") + condition;
    }
    return text.empty() ? "" : " (" + Plain(text) + ")";
}

std::string List(const std::vector<OptionRow>& rows) {
    std::string text;
    for (const OptionRow& row : rows) {
        text += "- " + Code(WrittenForm(row)) + ": " + Plain(row.Text) + Conditions(row) + "\n";
    }
    return text;
}

std::string Section(const ProgramTable& program) {
    std::string text = "## " + program.Name + "\n\n" + Plain(program.Summary) + "\n";
    for (const std::string& line : program.Description) {
        text += Plain(line) + "\n";
    }
    text += "\n" + List(program.Rows) + "\n";
    for (const CommandTable& command : program.Commands) {
        text += "### " + program.Name + " " + command.Name + "\n\n" + Plain(command.Text) +
                ".\n\n" + List(command.Rows) + "\n";
    }
    for (const std::string& note : program.Notes) {
        text += Plain(note) + "\n\n";
    }
    text += "**Exit status:** " + Plain(program.ExitStatus) + "\n\n```\n";
    for (const std::string& example : program.Examples) {
        text += example + "\n";
    }
    return text + "```\n\n";
}

/// The text with each heading one step lower.
std::string Lowered(const std::string& markdown) {
    std::istringstream lines(markdown);
    std::string text;
    bool inCode = false;
    for (std::string line; std::getline(lines, line);) {
        inCode = inCode != line.starts_with("```");
        text += (!inCode && line.starts_with('#') ? "#" : "") + line + "\n";
    }
    return text;
}

} // namespace

std::string ReferencePage(const std::vector<ProgramTable>& programs, const std::string& formats) {
    std::string page = PageHead;
    for (const ProgramTable& program : programs) {
        page += Section(program);
    }
    return page + Lowered(formats);
}

} // namespace tarn
