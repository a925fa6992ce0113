#pragma once

#include "app/Types.h"

#include <optional>
#include <string>
#include <string_view>

namespace tarn {

constexpr Double CentimetresPerInch = 2.54;
constexpr Double InchesPerFoot = 12;

/// Two lengths in inches that differ by less than this, half a coordinate unit, are the same
/// length.
constexpr Double LengthTolerance = 0.005;

/// Whether `difference` (inches, already rounded to Single) is less than the tolerance: with
/// difference = a - b, whether a is at most b, or the same length as b.
constexpr bool IsWithinTolerance(Single difference) {
    return static_cast<Double>(difference) < LengthTolerance;
}

/// A length in inches as the whole inches that a cut list shows: raised to the next whole inch
/// unless it is less than 0.005 inch above one, so that no strip is listed shorter than it is.
/// Raises "Overflow" beyond a Long.
Long WholeInches(Double inches);

/// A length in inches as the whole centimetres that a cut list shows: raised to the next whole
/// centimetre unless it is less than 0.03 cm above one. 0.03 covers the rounding of a division by
/// 2.54, so a whole-centimetre strip comes back unchanged. Raises "Overflow" beyond a Long.
Long WholeCentimetres(Double inches);

/// A total or a roll width in inches as whole centimetres: Int(inches × 2.54 + 0.5). Raises
/// "Overflow" beyond a Long.
Long RoundedCentimetres(Double inches);

/// A whole length of the project's unit as text: centimetres when `metric`, else inches as feet and
/// inches (FtInStr).
std::string WholeLengthText(Long length, bool metric);

/// A length text as a cut list shows it: FtInStr of WholeInches, or WholeCentimetres when `metric`.
std::string LengthText(Double inches, bool metric);

/// The inverse of FtInStr for lengths of 0 and more: feet, an apostrophe, inches, a double quote,
/// digits only (the double quote, or the whole inch part, may be missing). Nothing for any other
/// text, or for more than a Long holds.
std::optional<Long> ReadFtIn(std::string_view text);

} // namespace tarn
