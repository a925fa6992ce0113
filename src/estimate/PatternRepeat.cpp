#include "estimate/PatternRepeat.h"

#include "base/Lengths.h"
#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "base/Words.h"

#include <limits>

namespace tarn {

namespace {

/// One size of a repeat, whole units.
Integer WholeRepeat(std::string_view text) {
    try {
        return CInt(Val(text));
    } catch (const RunTimeError& error) {
        throw error.WithAdvice(Words("The match pattern's %1 is too large: a repeat is at most %2.",
                                     text, TrimStr(std::numeric_limits<Integer>::max())));
    }
}

} // namespace

PatternRepeat ReadPatternRepeat(std::string_view across, std::string_view along) {
    const Integer wholeAcross = WholeRepeat(across);
    return {wholeAcross, WholeRepeat(along)};
}

std::string RepeatText(const PatternRepeat& repeat, Units units) {
    return WholeLengthText(repeat.Across, units) + " X " + WholeLengthText(repeat.Along, units);
}

long long RaisedToRepeat(long long length, Integer repeat) {
    if (repeat <= 0) {
        return length;
    }
    return (length + repeat - 1) / repeat * repeat;
}

} // namespace tarn
