#include "tools/reference/Completion.h"

namespace tarn {

namespace {

/// A text within brackets and single quotes of what the shell's _arguments takes.
std::string Escaped(const std::string& text) {
    std::string out;
    for (const char each : text) {
        if (each == '\'') {
            out += "'\\''";
        } else {
            out +=
                std::string(each == '[' || each == ']' || each == ':' || each == '\\' ? "\\" : "") +
                each;
        }
    }
    return out;
}

/// How a value is completed, behind what it is called.
std::string ActionFor(const OptionRow& row) {
    switch (KindOf(row)) {
    case ValueKind::Choice: {
        std::string words;
        for (const std::string& word : ChoicesOf(row)) {
            words += (words.empty() ? "" : " ") + word;
        }
        return "(" + words + ")";
    }
    case ValueKind::File:
        return "_files";
    case ValueKind::Folder:
        return "_files -/";
    case ValueKind::Other:
    case ValueKind::None:
        break;
    }
    return " ";
}

std::string SpecificationOf(const OptionRow& row, int place) {
    if (row.IsArgument) {
        return "'" + std::to_string(place) + ":" + Escaped(row.Name) + ":" + ActionFor(row) + "'";
    }
    std::string excluded = row.IsRepeated ? "" : row.Name;
    for (const std::string& other : row.Excludes) {
        excluded += (excluded.empty() ? "" : " ") + other;
    }
    const std::string before =
        (row.IsRepeated ? "*" : "") + (excluded.empty() ? std::string() : "(" + excluded + ")");
    const bool takesValue = KindOf(row) != ValueKind::None;
    return "'" + before + row.Name + (takesValue ? "=" : "") + "[" + Escaped(ShortText(row.Text)) +
           "]" + (takesValue ? ":" + Escaped(row.Value) + ":" + ActionFor(row) : "") + "'";
}

std::string Arguments(const std::vector<OptionRow>& rows, const std::string& indent,
                      const std::string& first = {}) {
    std::string text = indent + "_arguments" + first;
    int place = 0;
    for (const OptionRow& row : rows) {
        place += row.IsArgument ? 1 : 0;
        text += " \\\n" + indent + "    " + SpecificationOf(row, place);
    }
    return text;
}

std::string Commands(const ProgramTable& program) {
    std::string described;
    std::string cases;
    for (const CommandTable& command : program.Commands) {
        described +=
            "            '" + command.Name + ":" + Escaped(ShortText(command.Text)) + "'\n";
        cases += "        " + command.Name + ")\n" + Arguments(command.Rows, "            ") +
                 "\n            ;;\n";
    }
    return "local context state line\n"
           "local -a commands\n" +
           Arguments(program.Rows, "", " -C") +
           " \\\n    '1:command:->command' \\\n    '*::argument:->argument'\n\n"
           "case $state in\n"
           "    command)\n"
           "        commands=(\n" +
           described +
           "        )\n"
           "        _describe command commands\n"
           "        ;;\n"
           "    argument)\n"
           "        case $line[1] in\n" +
           cases +
           "        esac\n"
           "        ;;\n"
           "esac\n";
}

} // namespace

std::string ZshCompletion(const ProgramTable& program) {
    return "#compdef " + program.Name +
           "\n# Made from the program's own options: not to be changed here.\n\n" +
           (program.Commands.empty() ? Arguments(program.Rows, "") + "\n" : Commands(program));
}

} // namespace tarn
