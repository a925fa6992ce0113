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

/// Which of the two texts is refused, the major one before the minor one. A number too large for a
/// Double is none that is refused.
std::optional<SizePart> RefusedPart(std::string_view major, std::string_view minor);

/// The size that two typed texts make before it is rounded, inches or centimetres: Val(major) × 12
/// + Val(minor), or × 100. Raises "Overflow" as Val does.
Double JoinedSize(std::string_view major, std::string_view minor, Units units);

/// The stored size that two typed texts make: CInt(Val(major) × 12 + Val(minor)), or × 100 for
/// metres and centimetres. Fractions count (12.5 feet are 150 inches), and so do 13 inches or 120
/// centimetres. Nothing when either text is refused or the size is negative, be it as large as it
/// may. Raises "Overflow" for a size above 32767, and for a number too large for a Double beside a
/// text that is not refused.
std::optional<Integer> ReadSize(std::string_view major, std::string_view minor, Units units);

} // namespace tarn
