// The command line of tarn-data.

#pragma once

#include <functional>

namespace tarn {

/// Read the arguments of tarn-data. Returns the command to run (see DataCommands.h for what it
/// raises). When they ask for help or the version, or cannot be understood, prints that and returns
/// nothing; `status` is then the exit status.
std::function<void()> ReadDataCommand(int argc, const char* const* argv, int& status);

} // namespace tarn
