// The command line of tarn, the program with the screens.

#pragma once

#include "tools/SharedOptions.h"

#include <optional>
#include <string>

namespace CLI {
class App;
} // namespace CLI

namespace tarn {

/// What tarn is asked to do.
struct ProgramOptions {
    /// The only directory in which the configuration file is looked for; also an empty one counts.
    std::optional<std::string> ConfigDirectory;
    RoomFile Rooms; ///< a CSV file whose rooms are to become a project; without a path none
};

/// Tell `app` all that tarn takes; parsing fills in `options`, which must outlive it.
void DescribeProgram(CLI::App& app, ProgramOptions& options);

/// Read the arguments of tarn. When they ask for help or the version, or cannot be understood,
/// prints that and gives nothing; `status` is then the exit status.
std::optional<ProgramOptions> ReadProgramOptions(int argc, const char* const* argv, int& status);

} // namespace tarn
