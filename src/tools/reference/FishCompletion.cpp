#include "tools/reference/Completion.h"

namespace tarn {

namespace {

/// In single quotes of the shell.
std::string Quoted(const std::string& text) {
    std::string out = "'";
    for (const char each : text) {
        out += std::string(each == '\'' || each == '\\' ? "\\" : "") + each;
    }
    return out + "'";
}

/// How a value is completed.
std::string ValueOf(const OptionRow& row) {
    switch (KindOf(row)) {
    case ValueKind::Choice: {
        std::string words;
        for (const std::string& word : ChoicesOf(row)) {
            words += (words.empty() ? "" : " ") + word;
        }
        return " -x -a " + Quoted(words);
    }
    case ValueKind::File:
        return " -r -F";
    case ValueKind::Folder:
        return " -x -a '(__fish_complete_directories)'";
    case ValueKind::Other:
        return " -x";
    case ValueKind::None:
        break;
    }
    return "";
}

/// The lines for options; `begin` names the program and when they are offered.
std::string Lines(const std::string& begin, const std::vector<OptionRow>& rows) {
    std::string text;
    for (const OptionRow& row : rows) {
        if (row.IsArgument) {
            text += KindOf(row) == ValueKind::File     ? begin + " -F\n"
                    : KindOf(row) == ValueKind::Folder ? begin + ValueOf(row) + "\n"
                                                       : "";
        } else {
            text += begin + " -l " + row.Name.substr(2) +
                    (row.Short.empty() ? "" : " -s " + row.Short.substr(1)) + ValueOf(row) +
                    " -d " + Quoted(ShortText(row.Text)) + "\n";
        }
    }
    return text;
}

} // namespace

std::string FishCompletion(const ProgramTable& program) {
    const std::string begin = "complete -c " + program.Name;
    std::string text =
        "# Made from the program's own options: not to be changed here.\n\n" + begin + " -f\n";
    if (program.Commands.empty()) {
        return text + Lines(begin, program.Rows);
    }
    const std::string first = begin + " -n __fish_use_subcommand";
    text += Lines(first, program.Rows);
    for (const CommandTable& command : program.Commands) {
        text += first + " -a " + command.Name + " -d " + Quoted(ShortText(command.Text)) + "\n";
    }
    for (const CommandTable& command : program.Commands) {
        text +=
            Lines(begin + " -n '__fish_seen_subcommand_from " + command.Name + "'", command.Rows);
    }
    return text;
}

} // namespace tarn
