// The description of a font, 78 bytes, and the font that is made of it.

#pragma once

#include "base/Types.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace tarn {

/// The field of a face name: `name` at its left, 50 characters of UTF-8. Blanks fill it up,
/// characters past the 50th are cut off.
std::string FaceField(std::string_view name);
/// The face's name in such a field: it ends at the first NUL, without the blanks before that.
std::string FaceIn(std::string_view field);

/// The description of a font, in the units of the surface that it is selected into.
struct FontRecord {
    Long Height = 10;     ///< above 0 the cell's, below 0 the letters'; 0 the surface's own font's
    Long Width = 6;       ///< of the average letter; 0 as the face has it
    Long Escapement = 0;  ///< tenths of a degree, counter-clockwise
    Long Orientation = 0; ///< of no effect: letters turn with their line
    Long Weight = 600;    ///< 400 regular, 700 bold, 1 to 1000; 0 is regular
    Byte Italic = 0;
    Byte UnderLine = 0;
    Byte StrikeOut = 0;
    Byte CharacterSet = 0; ///< this and what follows is of no effect
    Byte OutputPrecision = 0;
    Byte ClipPrecision = 0;
    Byte Quality = 0;
    Byte PitchAndFamily = 0;
    std::string FaceName = FaceField({"Verdana\0", 8}); ///< the whole field, UTF-8

    /// Put a name into its field.
    void SetFace(std::string_view name);

    bool operator==(const FontRecord&) const = default;
};

/// A record laid out in memory, as a font is made of it: the five Longs, little-endian whatever the
/// machine, the eight Bytes, then the face name, a byte for each character (ANSI, Windows-1252).
using LogicalFont = std::array<std::uint8_t, 78>;

/// A character of the face name that the code page lacks becomes "?"; all else is kept.
LogicalFont EncodeFont(const FontRecord& record);
FontRecord DecodeFont(const LogicalFont& font);

} // namespace tarn
