// Pages of the documentation with measured figures put in.

#pragma once

#include <string>
#include <utility>
#include <vector>

namespace tarn {

/// Write a file. Raises std::runtime_error, naming it, when that fails.
void WriteFile(const std::string& path, const std::string& content);

/// Write FOLDER/NAME.md from FOLDER/NAME.in.md: each field is put in place of its first mention.
/// Raises std::runtime_error for a field that is not mentioned.
void WritePage(const std::string& folder, const std::string& name,
               const std::vector<std::pair<std::string, std::string>>& fields);

} // namespace tarn
