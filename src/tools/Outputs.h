// The output files that a program is asked for.

#pragma once

#include <string>
#include <utility>
#include <vector>

namespace tarn {

/// Raise CLI::ValidationError when two of the outputs (option and path, empty for none) would
/// overwrite or mix with each other.
void RequireDifferentOutputs(const std::vector<std::pair<std::string, std::string>>& outputs);

} // namespace tarn
