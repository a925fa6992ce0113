// The covering of a room: the code that is stored and the texts that stand for it.

#pragma once

#include "base/Types.h"

#include <optional>
#include <string>
#include <string_view>

namespace tarn {

/// The covering codes are 0 .. LastTileCode: carpets, then tiles from FirstTileCode on. A stored
/// code above is none that can be chosen; its texts go on as TILE-5 and T5, so that a listing still
/// tells such rooms apart.
inline constexpr Byte FirstTileCode = 8;
inline constexpr Byte LastTileCode = 11;

constexpr bool IsCarpet(Byte code) {
    return code < FirstTileCode;
}

constexpr bool IsTile(Byte code) {
    return code >= FirstTileCode && code <= LastTileCode;
}

/// The number in the covering's texts: carpets and tiles are each counted from 1.
Integer CoveringNumber(Byte code);

/// "CARPET-1" .. "CARPET-8", "TILE-1" .. "TILE-4", for people.
std::string CoveringCaption(Byte code);
/// The same in files and their names: in English whatever the language.
std::string CoveringName(Byte code);
/// The caption behind the name of the project and a comma; alone where that is empty.
std::string CoveringTitle(const std::string& project, Byte code);

/// The short form: C1 .. C8, T1 .. T4.
std::string CoveringReportText(Byte code);

/// The code of a name or short form, whatever its letter case, blanks at both ends left out;
/// nothing for any other text.
std::optional<Byte> ReadCovering(std::string_view text);

} // namespace tarn
