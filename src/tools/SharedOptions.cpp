#include "tools/SharedOptions.h"

#include "base/Words.h"
#include "files/Language.h"
#include "tools/ArgumentErrors.h"
#include "tools/Files.h"
#include "tools/ProgramVersion.h"

#include <CLI/CLI.hpp>

#include <algorithm>

namespace tarn {

namespace {

/// Have `app` give its help in the language in force.
void TranslateHelp(CLI::App& app) {
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
}

} // namespace

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

void BeginOptions(CLI::App& app, const std::string& program, const std::string& description,
                  const std::string& footer) {
    app.name(program);
    app.description(description);
    app.footer(footer);
    TranslateHelp(app);
    app.set_help_flag("-h,--help", Words("Print this help message and exit"));
    app.add_option_function<std::string>(
           "--language", [](const std::string&) {},
           Words("Language of what is said to people; what programs read stays as it is"))
        ->check([](const std::string& code) {
            return IsKnownLanguage(code) ? std::string() : UnknownLanguageText(code);
        })
        ->type_name("en|de|es");
    app.set_version_flag("--version", VersionText(program),
                         Words("Display program version information and exit"));
}

CLI::Option* AddEncoding(CLI::App& app, std::string& encoding) {
    return app
        .add_option("--encoding", encoding,
                    Words("Encoding of the CSV file, such as windows-1252; \"iconv -l\" lists them "
                          "(default: what its byte-order mark says, else UTF-8)"))
        ->check(NotEmpty)
        ->type_name("NAME");
}

void AddRoomsSource(CLI::App& app, RoomsSource& source) {
    auto* file =
        app.add_option("--database", source.Database, Words("Database file of the project"))
            ->type_name("FILE");
    auto* name = app.add_option("--project", source.Project, Words("Name of the project"))
                     ->type_name("NAME");
    auto* csv = app.add_option("--rooms", source.Rooms.Path, Words("CSV file with the rooms"))
                    ->type_name("FILE.csv");
    file->needs(name);
    name->needs(file);
    csv->excludes(file)->excludes(name);
    AddEncoding(app, source.Rooms.Encoding)->needs(csv);
}

void RequireRoomsSource(const RoomsSource& source) {
    if (source.Path().empty()) {
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

void AddSeed(CLI::App& app, std::uint64_t& seed) {
    app.add_option("--seed", seed, Words("Another seed makes the search take another way"))
        ->capture_default_str()
        ->type_name("N");
}

void AddOutputFile(CLI::App& app, const std::string& option, std::string& path,
                   const std::string& what) {
    app.add_option(option, path, what)->check(NotEmpty)->type_name("FILE|-");
}

void AddForce(CLI::App& command, Overwrite& over) {
    command.add_flag_callback(
        "--force", [&over] { over = Overwrite::Anything; },
        Words("Write over a database too, and where a symbolic link leads"));
}

bool IsAnyAskedFor(const Outputs& outputs) {
    return std::any_of(outputs.begin(), outputs.end(),
                       [](const Output& output) { return !output.Path.empty(); });
}

void RequireDifferentOutputs(const Outputs& outputs) {
    for (auto output = outputs.begin(); output != outputs.end(); ++output) {
        for (auto other = output + 1; other != outputs.end(); ++other) {
            const std::string& path = output->Path;
            if (!path.empty() && !other->Path.empty() && IsSameFile(path, other->Path)) {
                throw CLI::ValidationError(
                    path == StandardOutput ? Words("%1 and %2 cannot both go to standard output",
                                                   output->Option, other->Option)
                                           : Words("%1 and %2 cannot both go to %3", output->Option,
                                                   other->Option, path));
            }
        }
    }
}

void RequireOutputsBeside(const std::string& input, const Outputs& outputs) {
    for (const Output& output : outputs) {
        RequireOtherFile(output.Path, input);
    }
}

} // namespace tarn
