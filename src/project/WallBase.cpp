#include "project/WallBase.h"

#include "base/Numbers.h"
#include "base/Text.h"

#include <algorithm>
#include <array>

namespace tarn {

namespace {

/// The count behind the first `side` of an upper-case text.
Integer CountOf(std::string_view text, char side) {
    constexpr Double Most = 2;
    const std::size_t position = text.find(side);
    if (position == std::string_view::npos) {
        return 0;
    }
    return CInt(std::min(Val(text.substr(position + 1)), Most));
}

} // namespace

std::string BaseText(Byte code) {
    static constexpr std::array<std::string_view, 9> Texts{"",     "W1", "W2",   "L1",  "W1L1",
                                                           "W2L1", "L2", "W1L2", "W2L2"};
    return code < Texts.size() ? std::string(Texts[code]) : std::string();
}

Byte BaseCode(std::string_view text) {
    const std::string upper = UpperCaseLetters(text);
    return ToByte(CountOf(upper, 'L') * 3 + CountOf(upper, 'W'));
}

bool IsBaseText(std::string_view text) {
    const std::string upper = UpperCaseLetters(text);
    if (upper.empty()) {
        return true;
    }
    const bool beginsWithSide = upper.front() == 'L' || upper.front() == 'W';
    return beginsWithSide && upper.find_first_not_of("LW 12") == std::string::npos;
}

Integer ListedBaseLength(Integer width, Integer length, Byte code) {
    const Integer lengths = ToInteger(static_cast<long long>(length) * BaseLengths(code));
    const Integer widths = ToInteger(static_cast<long long>(width) * BaseWidths(code));
    const Integer raw = ToInteger(lengths + widths);
    return ToInteger(raw + 3 - Mod(raw, 3));
}

} // namespace tarn
