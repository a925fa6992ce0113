#include "tools/reference/Completion.h"

#include <algorithm>

namespace tarn {

namespace {

std::string FunctionName(const ProgramTable& program) {
    std::string name = "_" + program.Name;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

/// The names of options, one blank between them.
std::string NamesOf(const std::vector<OptionRow>& rows) {
    std::string names;
    for (const OptionRow& row : rows) {
        if (!row.IsArgument) {
            names += (names.empty() ? "" : " ") + row.Name;
        }
    }
    return names;
}

/// The call that completes a value of that kind.
std::string CallFor(const OptionRow& row) {
    switch (KindOf(row)) {
    case ValueKind::Choice: {
        std::string words;
        for (const std::string& word : ChoicesOf(row)) {
            words += (words.empty() ? "" : " ") + word;
        }
        return "_tarn_words '" + words + "'";
    }
    case ValueKind::File:
        return "_tarn_paths -f";
    case ValueKind::Folder:
        return "_tarn_paths -d";
    case ValueKind::Other:
    case ValueKind::None:
        break;
    }
    return ":";
}

/// What follows when all before the word is known: the value of the option before it, an option, or
/// an argument.
std::string CompleteRows(const std::vector<OptionRow>& rows, const std::string& indent) {
    std::string values;
    std::string argument = ":";
    for (const OptionRow& row : rows) {
        if (row.IsArgument) {
            argument = CallFor(row);
        } else if (KindOf(row) != ValueKind::None) {
            for (const std::string& line : {row.Name + ")", "    " + CallFor(row),
                                            std::string("    return"), std::string("    ;;")}) {
                values.append(indent).append(line).append("\n");
            }
        }
    }
    return (values.empty() ? "" : indent + "case $before in\n" + values + indent + "esac\n") +
           indent + "if [[ $word == -* ]]; then\n" + indent + "    _tarn_words '" + NamesOf(rows) +
           "'\n" + indent + "else\n" + indent + "    " + argument + "\n" + indent + "fi\n";
}

constexpr const char* Shared = R"(# Made from the program's own options: not to be changed here.

_tarn_words() {
    mapfile -t COMPREPLY < <(compgen -W "$1" -- "$word")
}

_tarn_paths() {
    compopt -o filenames 2>/dev/null
    mapfile -t COMPREPLY < <(compgen "$1" -- "$word")
}

)";

/// The word to complete and the one before it; "--lay=down" is three words to the shell.
constexpr const char* WordsToComplete =
    R"(    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
    COMPREPLY=()
    if [[ $word == = ]]; then
        word=
    elif [[ $before == = ]]; then
        before=${COMP_WORDS[COMP_CWORD - 2]}
    fi
)";

std::string CompleteCommands(const ProgramTable& program) {
    std::string names;
    std::string cases;
    for (const CommandTable& command : program.Commands) {
        names += (names.empty() ? "" : " ") + command.Name;
        cases +=
            "    " + command.Name + ")\n" + CompleteRows(command.Rows, "        ") + "        ;;\n";
    }
    return "    local command= each\n"
           "    for each in \"${COMP_WORDS[@]:1:COMP_CWORD-1}\"; do\n"
           "        if [[ $each != -* ]]; then\n"
           "            command=$each\n"
           "            break\n"
           "        fi\n"
           "    done\n"
           "    case $command in\n"
           "    '')\n"
           "        _tarn_words '" +
           names + " " + NamesOf(program.Rows) +
           "'\n"
           "        ;;\n" +
           cases + "    esac\n";
}

} // namespace

std::string BashCompletion(const ProgramTable& program) {
    const std::string name = FunctionName(program);
    return std::string(Shared) + name + "() {\n" + WordsToComplete +
           (program.Commands.empty() ? CompleteRows(program.Rows, "    ")
                                     : CompleteCommands(program)) +
           "}\n\ncomplete -F " + name + " " + program.Name + "\n";
}

} // namespace tarn
