#pragma once

#include <string>
#include <string_view>

namespace tarn {

/// Most characters that a directory or project name holds.
inline constexpr long long MaxNameLength = 64;

/// Characters that no project name may hold.
inline constexpr std::string_view ForbiddenInProjectName = "\\/:*?\"<>|";

/// A directory or project name as it is stored and looked up: in full upper case (of every
/// language, not A to Z alone), without the blanks at both ends. UTF-8. Every name goes through
/// here, since the database itself ignores the case of A to Z only.
std::string StoredName(std::string_view name);

} // namespace tarn
