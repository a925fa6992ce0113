// The command line of tarn-data.

#pragma once

#include "files/OutputFile.h"
#include "tools/DataCommands.h"
#include "tools/Files.h"

#include <functional>
#include <string>

namespace CLI {
class App;
} // namespace CLI

namespace tarn {

/// What the arguments of any command of tarn-data give; each command uses its own part.
struct DataOptions {
    std::string Folder;
    std::string ConfigDirectory;
    std::string Csv; ///< outputs; empty = not wanted
    std::string Xlsx;
    std::string Target;
    Overwrite Over = Overwrite::Files;
    ImportRequest Project;
    std::function<void()> Chosen; ///< runs the command, with this; empty before one is parsed
};

/// Tell `app` all that tarn-data takes; parsing fills in `options`, which must outlive it and must
/// not be moved.
void DescribeData(CLI::App& app, DataOptions& options);

/// Read the arguments of tarn-data. Returns the command to run (see DataCommands.h for what it
/// raises). When they ask for help or the version, or cannot be understood, prints that and returns
/// nothing; `status` is then the exit status.
std::function<void()> ReadDataCommand(int argc, const char* const* argv, int& status);

} // namespace tarn
