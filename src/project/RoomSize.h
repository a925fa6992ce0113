// The sizes of a room as they are typed: two texts that are read into one whole number, or refused
// when they would be read otherwise than they look.

#pragma once

#include "base/Types.h"
#include "base/Units.h"

#include <optional>
#include <string>
#include <string_view>

namespace tarn {

/// A room size as it is typed and shown, in two texts: feet and inches, or metres and centimetres.
struct SizeParts {
    std::string Major; ///< feet or metres
    std::string Minor; ///< inches or centimetres

    bool operator==(const SizeParts&) const = default;
};

/// The name of the unit in which sizes are stored: "inches" or "centimetres".
std::string_view SmallUnitName(Units units);

/// How many of the unit in which sizes are stored make one of the other: 12 inches, 100
/// centimetres.
constexpr Integer SmallUnitsOf(Units units) {
    return units == Units::Metric ? 100 : 12;
}

/// Split a stored size (whole inches, or whole centimetres). 150 inches gives 12 and 6. A negative
/// size gives a floored major part and a minor part with the sign of the size, so joining the two
/// does not give it back unless the minor part is 0.
SizeParts SplitSize(Integer size, Units units);

/// Whether Val would read a size text otherwise than it looks: a further digit follows what Val
/// reads (12'6, 3,45, 6½), or a blank or tab stands between two digits that it reads together
/// (6 1/2 reads as 61). Text without digits behind the number (12 ft) is not refused. Raises
/// "Overflow" as Val does.
bool IsRefusedSizeText(std::string_view text);

enum class SizePart { Major, Minor };

/// The size that two numbers make before it is rounded, inches or centimetres: Val(major) × 12
/// + Val(minor), or × 100. Raises "Overflow" as Val does.
Double JoinedSize(const SizeParts& parts, Units units);

/// The stored size that two typed texts make, once they are spread over the two fields (see
/// project/WholeLength.h): CInt(Val(major) × 12 + Val(minor)), or × 100 for metres and
/// centimetres. Fractions count (12.5 feet are 150 inches), and so do 13 inches or 120
/// centimetres. Nothing when something is wrong with either text, as Spread finds. Raises
/// "Overflow" for a size above 32767, and for a number too large for a Double beside a text with
/// which nothing is wrong.
std::optional<Integer> ReadSize(const SizeParts& typed, Units units);

} // namespace tarn
