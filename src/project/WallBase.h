// The wall base of a room: the code that is stored, the text that is typed for it (W2L1) and the
// length of it that the report lists.

#pragma once

#include "base/Types.h"

#include <string>
#include <string_view>

namespace tarn {

/// The wall-base code of a room says how many of its widths and lengths take wall base: widths +
/// 3 × lengths, each 0 .. 2. 0 is no base; a stored code above LastBaseCode is none that can be
/// typed.
inline constexpr Byte LastBaseCode = 8;

constexpr Integer BaseWidths(Byte code) {
    return static_cast<Integer>(code % 3);
}
constexpr Integer BaseLengths(Byte code) {
    return static_cast<Integer>(code / 3);
}

/// The text of a wall-base code: "W2L1" for 5; empty for 0 and for codes above LastBaseCode.
std::string BaseText(Byte code);

/// The wall-base code of a text, whatever its letter case: the number behind the first W is the
/// count of widths, the number behind the first L that of lengths; none counts 0, more than 2
/// counts 2. Meant for texts that are a wall base (IsBaseText); raises "Overflow" for a code below
/// 0 (W-1) and for a number too large for a Double.
Byte BaseCode(std::string_view text);

/// Whether a text is a valid wall base, whatever its letter case: empty, or beginning with L or W
/// and made of L, W, blanks, 1 and 2 alone. What is typed is kept and shown in upper case
/// (UpperCaseLetters).
bool IsBaseText(std::string_view text);

/// The base length that the report lists, in the unit of the sides: the sides that take base,
/// raised to the next multiple of 3 that is strictly greater (100 gives 102, and so does 99).
/// Totals are plain sums and do not use it. The products and their sum are Integers; raises
/// "Overflow" when one of them, or the result, does not fit.
Integer ListedBaseLength(Integer width, Integer length, Byte code);

} // namespace tarn
