#include "base/Format.h"

#include "base/RunTimeError.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace tarn {

namespace {

struct Pattern {
    std::string_view Before;
    std::string_view Behind;
    std::size_t WholeDigits = 0; ///< digits before the point that are always printed
    std::size_t Places = 0;      ///< digits behind the point
    bool Grouped = false;
};

Pattern ParsePattern(std::string_view text) {
    constexpr std::string_view Marks = "#0,.";
    const std::size_t begin = std::min(text.find_first_of("#0"), text.size());
    const std::size_t end = std::min(text.find_first_not_of(Marks, begin), text.size());
    const std::string_view digits = text.substr(begin, end - begin);
    const std::size_t point = std::min(digits.find('.'), digits.size());

    Pattern pattern;
    pattern.Before = text.substr(0, begin);
    pattern.Behind = text.substr(end);
    const std::string_view whole = digits.substr(0, point);
    pattern.WholeDigits = static_cast<std::size_t>(std::count(whole.begin(), whole.end(), '0'));
    pattern.Places = point == digits.size() ? 0 : digits.size() - point - 1;
    pattern.Grouped = whole.find(',') != std::string_view::npos;
    return pattern;
}

/// A magnitude as decimal digits: 0.`Digits` × 10 ^ `Exponent`.
struct Decimal {
    std::string Digits;
    int Exponent = 0;
};

Decimal ToDecimal(Double magnitude, int significant) {
    std::array<char, 64> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude,
                                   std::chars_format::scientific, significant - 1);
    const std::string_view text(buffer.data(), static_cast<std::size_t>(end.ptr - buffer.data()));
    const std::size_t mark = text.find('e');

    Decimal decimal;
    decimal.Digits.push_back(text.front());
    if (significant > 1) {
        decimal.Digits.append(text.substr(2, mark - 2));
    }
    std::string_view exponent = text.substr(mark + 1);
    if (exponent.front() == '+') {
        exponent.remove_prefix(1);
    }
    std::from_chars(exponent.data(), exponent.data() + exponent.size(), decimal.Exponent);
    ++decimal.Exponent;
    return decimal;
}

/// The digits of `decimal` rounded, halves away from zero, to `places` behind the point: all the
/// digits of the whole number value × 10 ^ `places`, without leading zeros.
std::string RoundedDigits(const Decimal& decimal, std::size_t places) {
    const long long kept = decimal.Exponent + static_cast<long long>(places);
    if (kept < 0) {
        return "";
    }
    const auto count = static_cast<std::size_t>(kept);
    std::string digits = decimal.Digits.substr(0, count);
    digits.resize(count, '0');
    const bool up = count < decimal.Digits.size() && decimal.Digits[count] >= '5';
    if (up) {
        auto digit = digits.rbegin();
        while (digit != digits.rend() && *digit == '9') {
            *digit++ = '0';
        }
        if (digit == digits.rend()) {
            digits.insert(digits.begin(), '1');
        } else {
            ++*digit;
        }
    }
    digits.erase(0, std::min(digits.find_first_not_of('0'), digits.size()));
    return digits;
}

void GroupThousands(std::string& whole) {
    for (std::size_t i = whole.size(); i > 3;) {
        i -= 3;
        whole.insert(i, 1, ',');
    }
}

std::string FormatDigits(Double value, int significant, std::string_view patternText) {
    if (!std::isfinite(value)) {
        RaiseOverflow();
    }
    const Pattern pattern = ParsePattern(patternText);
    std::string digits = RoundedDigits(ToDecimal(std::abs(value), significant), pattern.Places);
    const bool negative = value < 0 && !digits.empty();

    const std::size_t least = pattern.WholeDigits + pattern.Places;
    if (digits.size() < least) {
        digits.insert(0, least - digits.size(), '0');
    }
    std::string whole = digits.substr(0, digits.size() - pattern.Places);
    if (pattern.Grouped) {
        GroupThousands(whole);
    }

    std::string result(pattern.Before);
    if (negative) {
        result.push_back('-');
    }
    result += whole;
    if (pattern.Places > 0) {
        result.push_back('.');
        result += digits.substr(digits.size() - pattern.Places);
    }
    result += pattern.Behind;
    return result;
}

} // namespace

std::string Format(Double value, std::string_view pattern) {
    return FormatDigits(value, 15, pattern);
}

std::string Format(Single value, std::string_view pattern) {
    return FormatDigits(static_cast<Double>(value), 7, pattern);
}

} // namespace tarn
