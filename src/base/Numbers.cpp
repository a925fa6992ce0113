#include "base/Numbers.h"

#include "base/RunTimeError.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

namespace tarn {

namespace {

template <typename T>
T Narrow(long long value) {
    if (value < std::numeric_limits<T>::min() || value > std::numeric_limits<T>::max()) {
        RaiseOverflow();
    }
    return static_cast<T>(value);
}

Double RoundHalfEven(Double value) {
    const Double below = std::floor(value);
    const Double fraction = value - below;
    if (fraction < 0.5) {
        return below;
    }
    if (fraction > 0.5) {
        return below + 1;
    }
    return std::fmod(below, 2.0) == 0.0 ? below : below + 1;
}

template <typename T>
T RoundTo(Double value) {
    if (std::isnan(value)) {
        RaiseOverflow();
    }
    const Double rounded = RoundHalfEven(value);
    if (rounded < static_cast<Double>(std::numeric_limits<T>::min()) ||
        rounded > static_cast<Double>(std::numeric_limits<T>::max())) {
        RaiseOverflow();
    }
    return static_cast<T>(rounded);
}

bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}
bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Walks a text as Val sees it: without its blanks.
class ValScanner {
  public:
    explicit ValScanner(std::string_view text)
        : text_(text) {
        SkipBlanks();
    }

    bool AtEnd() const { return position_ == text_.size(); }
    char Current() const { return AtEnd() ? '\0' : text_[position_]; }

    /// Move the current character into the number.
    void Take() {
        number_.push_back(text_[position_]);
        blankInside_ = blankInside_ || blankPending_;
        ++position_;
        end_ = position_;
        blankPending_ = false;
        SkipBlanks();
    }

    std::size_t TakeDigits() {
        std::size_t count = 0;
        while (IsDigit(Current())) {
            Take();
            ++count;
        }
        return count;
    }

    /// E or D, an optional sign and at least one digit; taken whole or not at all.
    void TakeExponent() {
        const char mark = Current();
        if (mark != 'E' && mark != 'e' && mark != 'D' && mark != 'd') {
            return;
        }
        const ValScanner before = *this;
        Take();
        number_.back() = 'e';
        if (Current() == '+' || Current() == '-') {
            Take();
        }
        if (TakeDigits() == 0) {
            *this = before;
        }
    }

    const std::string& Number() const { return number_; }
    std::size_t End() const { return end_; }
    bool BlankInside() const { return blankInside_; }

  private:
    void SkipBlanks() {
        while (position_ < text_.size() && IsBlank(text_[position_])) {
            ++position_;
            blankPending_ = !number_.empty();
        }
    }

    std::string_view text_;
    std::size_t position_ = 0;
    std::size_t end_ = 0;
    std::string number_;
    bool blankPending_ = false;
    bool blankInside_ = false;
};

/// The exponent of a number text, cut to a range that no sum with a text's length leaves.
long long ExponentOf(std::string_view exponent) {
    constexpr long long Limit = 1'000'000'000;
    const bool negative = exponent.front() == '-';
    if (negative || exponent.front() == '+') {
        exponent.remove_prefix(1);
    }
    long long value = 0;
    for (const char digit : exponent) {
        value = std::min(Limit, value * 10 + (digit - '0'));
    }
    return negative ? -value : value;
}

/// Whether a decimal text without a sign that is outside the range of a Double is too large (rather
/// than too small): the power of ten of its first digit that is not 0 decides.
bool IsTooLarge(std::string_view number) {
    const std::size_t mark = number.find('e');
    const std::string_view mantissa = number.substr(0, mark);
    const auto first = static_cast<long long>(mantissa.find_first_of("123456789"));
    const auto point = static_cast<long long>(std::min(mantissa.find('.'), mantissa.size()));
    const long long exponent =
        mark == std::string_view::npos ? 0 : ExponentOf(number.substr(mark + 1));
    return point - first + exponent > 0;
}

Double ToDouble(std::string_view number) {
    const bool negative = number.front() == '-';
    if (negative || number.front() == '+') {
        number.remove_prefix(1);
    }
    Double value = 0;
    const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        if (IsTooLarge(number)) {
            RaiseOverflow();
        }
        value = 0;
    }
    return negative ? -value : value;
}

} // namespace

Double Int(Double value) noexcept {
    return std::floor(value);
}

Integer ToInteger(long long value) {
    return Narrow<Integer>(value);
}

Long ToLong(long long value) {
    return Narrow<Long>(value);
}

Byte ToByte(long long value) {
    return Narrow<Byte>(value);
}

Integer CInt(Double value) {
    return RoundTo<Integer>(value);
}

Long CLng(Double value) {
    return RoundTo<Long>(value);
}

Single CSng(Double value) {
    const auto single = static_cast<Single>(value);
    if (!std::isfinite(single)) {
        RaiseOverflow();
    }
    return single;
}

Long Mod(Long dividend, Long divisor) {
    if (divisor == 0) {
        RaiseDivisionByZero();
    }
    // The one quotient that does not fit a Long; its remainder does.
    return divisor == -1 ? 0 : dividend % divisor;
}

ValReading ReadVal(std::string_view text) {
    ValScanner scanner(text);
    if (scanner.Current() == '+' || scanner.Current() == '-') {
        scanner.Take();
    }
    std::size_t digits = scanner.TakeDigits();
    if (scanner.Current() == '.') {
        scanner.Take();
        digits += scanner.TakeDigits();
    }
    ValReading reading;
    if (digits == 0) {
        return reading;
    }
    scanner.TakeExponent();
    reading.Readable = true;
    reading.Length = scanner.End();
    reading.BlankInside = scanner.BlankInside();
    reading.Value = ToDouble(scanner.Number());
    return reading;
}

Double Val(std::string_view text) {
    return ReadVal(text).Value;
}

} // namespace tarn
