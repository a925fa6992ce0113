// Lengths in inches: when two are the same, how one becomes a whole number of inches or
// centimetres, and how it is written and read as feet and inches.

#pragma once

#include "base/Types.h"
#include "base/Units.h"

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

/// A length in whole inches as feet-and-inches text: Int(inches / 12), an apostrophe, inches Mod 12
/// (with the sign of the length), a double quote. 30 gives 2'6".
std::string FeetAndInches(Long inches);

/// The inverse of FeetAndInches for lengths of 0 and more: feet, an apostrophe, inches, a double
/// quote, digits only (the double quote, or the whole inch part, may be missing). Nothing for any
/// other text, or for more than a Long holds.
std::optional<Long> ReadFeetAndInches(std::string_view text);

/// A whole length as text: whole inches as feet and inches, or whole centimetres as a number alone.
std::string WholeLengthText(Long length, Units units);

/// A length in inches as a cut list shows it: WholeInches as feet and inches, or WholeCentimetres.
std::string LengthText(Double inches, Units units);

} // namespace tarn
