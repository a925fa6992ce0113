#include "text/AnsiText.h"

#include <algorithm>
#include <array>

namespace tarn {

namespace {

constexpr std::size_t First = 0x80;

/// The characters of the bytes 0x80 to 0x9F; every other byte is the character of its own number.
constexpr std::array<char32_t, 32> Characters{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr bool IsInTable(std::size_t code) {
    return code >= First && code < First + Characters.size();
}

} // namespace

std::uint8_t ToAnsi(char32_t character) {
    if (character <= 0xFF && !IsInTable(character)) {
        return static_cast<std::uint8_t>(character);
    }
    const auto* const found = std::find(Characters.begin(), Characters.end(), character);
    const auto index = static_cast<std::size_t>(found - Characters.begin());
    return found == Characters.end() ? std::uint8_t{'?'} : static_cast<std::uint8_t>(First + index);
}

char32_t FromAnsi(std::uint8_t byte) {
    return IsInTable(byte) ? Characters.at(byte - First) : char32_t{byte};
}

} // namespace tarn
