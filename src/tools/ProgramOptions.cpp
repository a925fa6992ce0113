#include "tools/ProgramOptions.h"

#include "base/Words.h"
#include "store/Configuration.h"
#include "tools/SharedOptions.h"
#include "tools/ToolMain.h"

#include <CLI/CLI.hpp>

namespace tarn {

namespace {

constexpr auto ProgramDescription = Words("Estimate how carpets are cut from the roll.");

constexpr auto ProgramFooter = Words(
    "The columns of a CSV file are those that tarn-estimate --help tells.\n\n"
    "Exit status: 0 done, 1 the program could not start (the reason is in a box or on standard\n"
    "error), 2 wrong usage.\n\n"
    "Example:\n"
    "  tarn house.csv");

} // namespace

void DescribeProgram(CLI::App& app, ProgramOptions& options) {
    BeginOptions(app, "tarn", ProgramDescription, ProgramFooter);
    app.add_option_function<std::string>(
           "--config-dir",
           [&options](const std::string& directory) { options.ConfigDirectory = directory; },
           Words("Directory of the configuration file %1", ConfigurationFileName))
        ->type_name("DIR");
    auto* rooms =
        app.add_option("FILE.csv", options.Rooms.Path,
                       Words("Rooms that are to become a project, whose name is asked for"));
    AddEncoding(app, options.Rooms.Encoding)->needs(rooms);
}

std::optional<ProgramOptions> ReadProgramOptions(int argc, const char* const* argv, int& status) {
    CLI::App app;
    ProgramOptions options;
    DescribeProgram(app, options);
    if (!ParseArguments(
            app, argc, argv, [] {}, status)) {
        return std::nullopt;
    }
    return options;
}

} // namespace tarn
