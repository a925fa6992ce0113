// The parts that every SVG document of the program is put together from.

#pragma once

#include "base/Types.h"

#include <string>
#include <string_view>

namespace tarn {

/// A text (UTF-8) as an SVG document may hold it, markup escaped: control characters become blanks,
/// and what is no character the replacement character.
std::string SvgEscaped(std::string_view text);
/// A number with two decimals.
std::string SvgNumber(Double value);
/// ` name="value"`; the value is taken as it is.
std::string SvgAttribute(std::string_view name, std::string_view value);

/// The beginning of a document of `width` by `height` twips, at 15 twips to one pixel: its title
/// and the white paper. What is drawn follows, in twips, and then the end.
std::string SvgHead(Double width, Double height, std::string_view title);
inline constexpr std::string_view SvgTail = "</svg>\n";

} // namespace tarn
