// Names as they are typed: what becomes of typing and pasting, and which names are refused.

#pragma once

#include "base/Words.h"
#include "store/ProjectStore.h"

#include <optional>
#include <string>
#include <string_view>

namespace tarn {

/// Shown when something was left out of a project name, and when one is refused for a character.
inline constexpr auto ForbiddenCharactersMessage =
    Words("Sorry, the project name couldn't contain any of following characters:\r\n"
          "   \\/:*?\"<>|");

/// What becomes of text that is put into a project name. UTF-8.
struct NameText {
    std::string Text;
    bool LeftOut = false; ///< a character was left out
};

/// Text that was typed: a to z in upper case, without the characters of ForbiddenInProjectName and
/// without what no text keeps (see IsKeptCharacter).
NameText TypedNameText(std::string_view text);

/// Text that was pasted or dropped: in full upper case, without those and without line breaks. Line
/// breaks at its end do not count as left out.
NameText PastedNameText(std::string_view text);

/// As much of `text` as a name of `length` characters takes before it is full.
std::string FittingNameText(std::string_view text, long long length);

/// Whether a new directory cannot have that name: the directory exists, or it is one of
/// MonthNames. Raises DatabaseError.
bool IsDirectoryTaken(ProjectStore& store, std::string_view name);

/// Why a directory or a project cannot be renamed to `name`, in words for the user; nothing when it
/// can. Raises DatabaseError.
std::optional<std::string> DirectoryNameRefusal(ProjectStore& store, std::string_view name);
std::optional<std::string> ProjectNameRefusal(ProjectStore& store, std::string_view name);

} // namespace tarn
