// The number rules: how a number is rounded, fitted into its type and read from a text. Whatever
// does not fit raises "Overflow" instead of wrapping.

#pragma once

#include "base/Types.h"

#include <string_view>

namespace tarn {

/// The greatest whole number not above `value` (floor, also for negative values). Exact: the
/// result stays a Double.
Double Int(Double value) noexcept;

/// `value` as an Integer. Raises "Overflow" outside -32768 .. 32767.
Integer ToInteger(long long value);

/// `value` as a Long. Raises "Overflow" outside -2147483648 .. 2147483647.
Long ToLong(long long value);

/// `value` as a Byte. Raises "Overflow" outside 0 .. 255.
Byte ToByte(long long value);

/// `value` rounded to the nearest whole number, halves to even, as an Integer. Raises "Overflow"
/// when the rounded number does not fit or `value` is not a number.
Integer CInt(Double value);

/// As CInt, with the bounds of a Long.
Long CLng(Double value);

/// `value` rounded once to Single. Raises "Overflow" when the result is not finite.
Single CSng(Double value);

/// The remainder of `dividend` / `divisor`; it takes the sign of the dividend. Raises "Division by
/// zero" for a divisor of 0.
Long Mod(Long dividend, Long divisor);

/// The number that `text` begins with: blanks and tabs are skipped wherever they stand; then an
/// optional sign, digits with one decimal point, and an optional exponent (E or D, either case).
/// The decimal sign is always the point. What follows is ignored; nothing readable gives 0. Raises
/// "Overflow" when the number is too large for a Double.
Double Val(std::string_view text);

/// What Val reads, and where it stopped.
struct ValReading {
    Double Value = 0;
    /// Number of bytes of the text that Val consumed, skipped blanks included.
    std::size_t Length = 0;
    /// True when at least one digit was read.
    bool Readable = false;
    /// True when a blank or tab was skipped between two characters of the number.
    bool BlankInside = false;
};

/// Val with an account of what it read, for callers that refuse half-read texts. Raises as Val.
ValReading ReadVal(std::string_view text);

} // namespace tarn
