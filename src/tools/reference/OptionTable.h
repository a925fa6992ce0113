// What a program takes on its command line, read from the definitions that it parses by: the one
// table of which its reference, its man page and its completions are made.

#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
} // namespace CLI

namespace tarn {

/// An option, a flag, or an argument that stands by its place.
struct OptionRow {
    std::string Name;  ///< "--roll"; of an argument what stands for it: "FILE.csv"
    std::string Short; ///< "-h", or empty
    std::string Value; ///< what stands for the option's value, such as "FILE|-"; empty for a flag
    std::string Text;
    std::string Default;
    bool IsArgument = false;
    bool IsRequired = false;
    bool IsRepeated = false;           ///< may be given several times
    std::vector<std::string> Needs;    ///< names of options, sorted
    std::vector<std::string> Excludes; ///< the same
};

/// A command of a program, with its options and arguments.
struct CommandTable {
    std::string Name;
    std::string Text;
    std::vector<OptionRow> Rows;
};

/// A program. Texts of several lines are paragraphs without line breaks in them.
struct ProgramTable {
    std::string Name;
    std::string Summary;                  ///< its description's first line, a sentence
    std::vector<std::string> Description; ///< the lines behind that
    std::vector<OptionRow> Rows;          ///< with --help and --version
    std::vector<CommandTable> Commands;
    std::vector<std::string> Notes; ///< paragraphs of the footer but those below
    std::string ExitStatus;         ///< what follows "Exit status: " in the footer
    std::vector<std::string> Examples;
};

/// The table of a program that was described to `app` but has parsed nothing. Of its footer's
/// paragraphs, which an empty line parts, one begins with "Exit status: "; the lines of one that
/// begins with "Example:" are commands.
ProgramTable TableOf(CLI::App& app);

/// What may stand where a value is asked for.
enum class ValueKind {
    None,   ///< nothing: a flag
    Choice, ///< one of a few words (see ChoicesOf)
    File,
    Folder,
    Other,
};
ValueKind KindOf(const OptionRow& row);
/// The words between which a value such as "down|cross" chooses; none for other values.
std::vector<std::string> ChoicesOf(const OptionRow& row);

/// An option as it is written: "--roll [NAME:]12ft[=PRICE]"; an argument's name.
std::string WrittenForm(const OptionRow& row);
/// What holds beside the text, each a phrase: "required", "default 0", "not with --rooms".
std::vector<std::string> ConditionsOf(const OptionRow& row);
/// A text's beginning that can stand in a line of its own: up to where it goes into details.
std::string ShortText(const std::string& text);

} // namespace tarn
