// What shells complete of the programs' command lines.

#pragma once

#include "tools/reference/OptionTable.h"

#include <string>

namespace tarn {

/// A script that the shell reads from its folder of completions. Each completes names of options
/// and commands, the words of a choice, files and folders; where a value can be anything, nothing.
std::string BashCompletion(const ProgramTable& program);
std::string ZshCompletion(const ProgramTable& program);
std::string FishCompletion(const ProgramTable& program);

} // namespace tarn
