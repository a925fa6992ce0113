#include "tools/SharedOptions.h"

#include "base/Words.h"
#include "files/Language.h"
#include "tools/ArgumentErrors.h"
#include "tools/Files.h"

#include <CLI/CLI.hpp>

namespace tarn {

void SpeakAsAsked(int argc, const char* const* argv, std::string_view chosen) {
    constexpr std::string_view Option = "--language";
    std::string_view code = chosen;
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        if (argument == Option && i + 1 < argc) {
            code = argv[i + 1];
        } else if (argument.starts_with(Option) &&
                   argument.substr(Option.size()).starts_with('=')) {
            code = argument.substr(Option.size() + 1);
        }
    }
    if (IsKnownLanguage(code)) {
        SpeakLanguage(code);
    }
}

void PrepareHelp(CLI::App& app) {
    auto& formatter = *app.get_formatter();
    formatter.label("Usage", Words("Usage"));
    formatter.label("OPTIONS", Words("OPTIONS"));
    formatter.label("SUBCOMMAND", Words("SUBCOMMAND"));
    formatter.label("Positionals", Words("Positionals"));
    formatter.label("REQUIRED", Words("REQUIRED"));
    formatter.label("Needs", Words("Needs"));
    formatter.label("Excludes", Words("Excludes"));
    formatter.label("TEXT", Words("TEXT"));
    app.option_defaults()->group(Words("Options"));
    app.failure_message(
        [](const CLI::App*, const CLI::Error& error) { return ArgumentErrorText(error); });
    app.set_help_flag("-h,--help", Words("Print this help message and exit"));
    app.add_option_function<std::string>(
           "--language", [](const std::string&) {},
           Words("Language of what is said to people; what programs read stays as it is"))
        ->check([](const std::string& code) {
            return IsKnownLanguage(code) ? std::string() : UnknownLanguageText(code);
        })
        ->type_name("en|de|es");
}

CLI::Option* AddEncoding(CLI::App& app, std::string& encoding) {
    return app
        .add_option("--encoding", encoding,
                    Words("Encoding of the CSV file, such as windows-1252; \"iconv -l\" lists them "
                          "(default: what its byte-order mark says, else UTF-8)"))
        ->check(NotEmpty)
        ->type_name("NAME");
}

void AddRoomsSource(CLI::App& app, std::string& database, std::string& project, RoomFile& rooms) {
    auto* file = app.add_option("--database", database, Words("Database file of the project"))
                     ->type_name("FILE");
    auto* name =
        app.add_option("--project", project, Words("Name of the project"))->type_name("NAME");
    auto* csv = app.add_option("--rooms", rooms.Path, Words("CSV file with the rooms"))
                    ->type_name("FILE.csv");
    file->needs(name);
    name->needs(file);
    csv->excludes(file)->excludes(name);
    AddEncoding(app, rooms.Encoding)->needs(csv);
}

void RequireRoomsSource(const std::string& database, const std::string& rooms) {
    if (database.empty() && rooms.empty()) {
        throw CLI::ValidationError(
            Words("either --database and --project, or --rooms is required"));
    }
}

std::string NotEmpty(const std::string& value) {
    return value.empty() ? Words("the value is empty") : Phrase();
}

CLI::Validator AboveZero() {
    CLI::Validator check = CLI::PositiveNumber;
    return check.description(Words("POSITIVE")).operation([](const std::string& value) {
        const bool isAbove = CLI::PositiveNumber(value).empty();
        return isAbove ? std::string() : Words("%1 is not a number above 0", value);
    });
}

void RequireDifferentOutputs(const std::vector<std::pair<std::string, std::string>>& outputs) {
    for (auto output = outputs.begin(); output != outputs.end(); ++output) {
        for (auto other = output + 1; other != outputs.end(); ++other) {
            const std::string& path = output->second;
            if (!path.empty() && !other->second.empty() && IsSameFile(path, other->second)) {
                throw CLI::ValidationError(
                    path == StandardOutput ? Words("%1 and %2 cannot both go to standard output",
                                                   output->first, other->first)
                                           : Words("%1 and %2 cannot both go to %3", output->first,
                                                   other->first, path));
            }
        }
    }
}

} // namespace tarn
