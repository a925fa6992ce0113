// Lengths of an order as they are typed.

#pragma once

#include "base/Types.h"
#include "base/Units.h"

#include <optional>
#include <string_view>

namespace tarn {

/// A length such as 12ft, 12ft6in, 12'6", 18in, 366cm, 3.66m or a bare number, which is in `units`:
/// in inches, or in centimetres for Units::Metric. Inches may have a fraction, 1 1/2" (see
/// IsInchFraction). The units may be written in either case, with blanks before them. Nothing for
/// any other text and for a number that is too large to be a length.
std::optional<Double> ReadOrderLength(std::string_view text, Units units);

} // namespace tarn
