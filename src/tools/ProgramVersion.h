// What the programs say of themselves.

#pragma once

#include <string>
#include <string_view>

namespace tarn {

/// The commit that the programs are built from, twelve hexadecimal digits; empty where they are
/// built from sources that do not tell. It stands in the one source file that each commit changes.
extern const std::string_view BuiltCommit;

/// The version with the commit, where it is known: "1.2.3+git.0123456789ab".
std::string FullVersion();

/// What a program answers when it is asked for its version: its name, a blank, FullVersion.
std::string VersionText(std::string_view program);

} // namespace tarn
