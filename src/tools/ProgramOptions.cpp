#include "tools/ProgramOptions.h"

#include "tools/ProgramVersion.h"
#include "tools/ToolMain.h"

#include <CLI/CLI.hpp>

namespace tarn {

namespace {

constexpr const char* Description = "Estimate how carpets are cut from the roll.";

constexpr const char* Footer =
    "The columns of a CSV file are those that tarn-estimate --help tells.\n\n"
    "Exit status: 0 done, 1 the program could not start (the reason is in a box or on standard\n"
    "error), 2 wrong usage.\n\n"
    "Example:\n"
    "  tarn house.csv";

} // namespace

void DescribeProgram(CLI::App& app, ProgramOptions& options) {
    app.name("tarn");
    app.description(Description);
    app.footer(Footer);
    app.set_version_flag("--version", VersionText(app.get_name()));
    app.add_option_function<std::string>(
           "--config-dir",
           [&options](const std::string& directory) { options.ConfigDirectory = directory; },
           "Directory of the configuration file TarnWin.INI")
        ->type_name("DIR");
    app.add_option("FILE.csv", options.Rooms,
                   "Rooms that are to become a project, whose name is asked for");
}

std::optional<ProgramOptions> ReadProgramOptions(int argc, const char* const* argv, int& status) {
    CLI::App app;
    ProgramOptions options;
    DescribeProgram(app, options);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        status = ExplainArguments(app, error);
        return std::nullopt;
    }
    return options;
}

} // namespace tarn
