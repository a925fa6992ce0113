// Roll widths: the standard ones of the choice panel, a free one in feet and inches, and one as the
// command line takes it.

#pragma once

#include "base/Types.h"
#include "base/Units.h"
#include "base/Words.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace tarn {

/// The captions of the four standard roll widths, narrowest first, and the number of the one that
/// is chosen at first. The figure in the caption is the width: it is read from the English one.
inline constexpr std::array<Phrase, 4> ImperialWidthCaptions{
    Words("CARPET WIDTH 6 FT."), Words("CARPET WIDTH 12 FT."), Words("CARPET WIDTH 13.5 FT."),
    Words("CARPET WIDTH 15 FT.")};
inline constexpr std::array<Phrase, 4> MetricWidthCaptions{
    Words("CARPET WIDTH 183 CMS"), Words("CARPET WIDTH 366 CMS"), Words("CARPET WIDTH 411 CMS"),
    Words("CARPET WIDTH 457 CMS")};
inline constexpr std::size_t DefaultWidth = 1;

/// The captions in the unit in force.
const std::array<Phrase, 4>& WidthCaptions(Units units);

/// The number in an English caption as it is written: "13.5", "366".
std::string_view CaptionNumber(std::string_view caption);

/// The roll width, in inches, that a caption names: the number behind "CARPET WIDTH", in feet, or
/// in centimetres in metric units.
Single CaptionRollWidth(std::string_view caption, Units units);

/// The standard roll width, in inches, of that number in WidthCaptions.
Single StandardRollWidth(std::size_t number, Units units);

/// The roll width, in inches, of a free width typed as feet and inches; also in metric units.
Single OtherRollWidth(std::string_view feet, std::string_view inches);

/// Whether a roll of that width, inches, can be estimated with: it is more than 0 and not the same
/// length as it. Raises "Overflow" for one that no cut list could show.
bool IsUsableRollWidth(Single width);

/// Read a roll width as the command line takes it: 12ft, 13.5ft, 12ft6in, 150in or 366cm, the units
/// in either case, in inches. Raises std::invalid_argument, with a text for the user, for anything
/// else, for a width that is the same length as 0 and for one that is too large to be listed.
Single ReadRollWidth(const std::string& text);

} // namespace tarn
