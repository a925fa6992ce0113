// The names of directories and projects: the form in which they are stored and compared, and what
// they may hold.

#pragma once

#include <string>
#include <string_view>

namespace tarn {

/// Most characters that a directory or project name holds.
inline constexpr long long MaxNameLength = 64;

/// Characters that no project name may hold.
inline constexpr std::string_view ForbiddenInProjectName = "\\/:*?\"<>|";

/// `text` in full upper case, of every language. UTF-8.
std::string UpperCase(std::string_view text);

/// Whether something stands in the text that no name may hold: a TextFault, or a line break of any
/// kind.
bool HoldsControlCharacter(std::string_view text);

/// Whether a project may not have that name for one of its characters: those of
/// ForbiddenInProjectName, and those of HoldsControlCharacter.
bool HoldsForbiddenCharacter(std::string_view name);

/// What a name past MaxNameLength is refused with. `kind` is what it names, "directory" or
/// "project".
std::string NameTooLongText(std::string_view kind, std::string_view name);

/// What a name that HoldsControlCharacter is refused with. `kind` as above.
std::string ControlCharacterText(std::string_view kind);

/// What a name of which nothing is left when it is stored is refused with. `kind` as above.
std::string NoNameText(std::string_view kind);

/// A directory or project name as it is stored and looked up: in full upper case (of every
/// language, not A to Z alone), without the blanks at both ends. UTF-8. Every name goes through
/// here, since the database itself ignores the case of A to Z only.
std::string StoredName(std::string_view name);

} // namespace tarn
