#pragma once

#include "base/Types.h"
#include "base/Units.h"

#include <string>
#include <string_view>

namespace tarn {

/// The repeat of a carpet's pattern (the "match pattern" of the screens and lists), in whole small
/// units of the request (inches or centimetres).
struct PatternRepeat {
    Integer Across = 0;
    Integer Along = 0;

    bool operator==(const PatternRepeat&) const = default;
};

/// The repeat that two typed texts name, across and along the roll: the number that each begins
/// with, as a whole one, halves to even. Raises "Overflow", and says which number it was, when one
/// does not fit.
PatternRepeat ReadPatternRepeat(std::string_view across, std::string_view along);

/// The repeat as the cut list shows it.
std::string RepeatText(const PatternRepeat& repeat, Units units);

/// `length`, whole small units, raised to a multiple of `repeat`; an exact multiple stays, and so
/// does everything for a repeat of 0 or less.
long long RaisedToRepeat(long long length, Integer repeat);

} // namespace tarn
