#include "base/Text.h"

#include <algorithm>
#include <array>

namespace tarn {

namespace {

/// The character at the beginning of a UTF-8 text.
struct FirstCharacter {
    std::size_t Length = 1; ///< its bytes; 1 where no character begins
    bool Storable = false;
};

FirstCharacter FirstCharacterOf(std::string_view utf8) {
    const auto lead = static_cast<unsigned char>(utf8.front());
    // Of a longer character the lead has as many ones at its left as the character has bytes.
    const std::size_t length = lead < 0x80U ? 1 : lead < 0xE0U ? 2 : lead < 0xF0U ? 3 : 4;
    if ((lead >= 0x80U && lead < 0xC0U) || lead >= 0xF8U || utf8.size() < length) {
        return {};
    }
    char32_t c = length == 1 ? lead : lead & (0x7FU >> length);
    for (const char byte : utf8.substr(1, length - 1)) {
        if (!ContinuesCharacter(byte)) {
            return {};
        }
        c = (c << 6U) | (static_cast<unsigned char>(byte) & 0x3FU);
    }
    constexpr std::array<char32_t, 5> LeastOfLength = {0, 0, 0x80, 0x800, 0x10000};
    return c < LeastOfLength.at(length) ? FirstCharacter{} : FirstCharacter{length, IsStorable(c)};
}

} // namespace

std::string TrimStr(long long value) {
    return std::to_string(value);
}

std::string TrimStr(std::string_view text) {
    const std::size_t begin = text.find_first_not_of(' ');
    if (begin == std::string_view::npos) {
        return {};
    }
    return std::string(text.substr(begin, text.find_last_not_of(' ') - begin + 1));
}

std::string Space(long long count) {
    return std::string(static_cast<std::size_t>(std::max(0LL, count)), ' ');
}

long long Len(std::string_view utf8) {
    return std::count_if(utf8.begin(), utf8.end(), [](char c) { return !ContinuesCharacter(c); });
}

std::string UpperCaseLetters(std::string_view text) {
    std::string upper(text);
    for (char& c : upper) {
        c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    }
    return upper;
}

bool EqualsIgnoringCase(std::string_view a, std::string_view b) {
    // Whatever the locale says, and for single bytes of UTF-8 as well.
    const auto small = [](char c) { return c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : +c; };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [&small](char x, char y) { return small(x) == small(y); });
}

TextFault FindTextFault(std::string_view utf8) {
    while (!utf8.empty()) {
        const auto [fault, length] = FirstFault(utf8);
        if (fault != TextFault::None) {
            return fault;
        }
        utf8.remove_prefix(length);
    }
    return TextFault::None;
}

std::string ShownText(std::string_view utf8) {
    constexpr std::string_view ReplacementCharacter = "\xEF\xBF\xBD";
    std::string shown;
    shown.reserve(utf8.size());
    while (!utf8.empty()) {
        const auto [fault, length] = FirstFault(utf8);
        shown += fault == TextFault::None ? utf8.substr(0, length) : ReplacementCharacter;
        utf8.remove_prefix(length);
    }
    return shown;
}

std::string OneLine(std::string_view utf8) {
    constexpr char LeadOfHighControls = '\xC2'; // U+0080 to U+009F are C2 80 to C2 9F
    std::string line;
    line.reserve(utf8.size());
    for (const char byte : utf8) {
        const auto value = static_cast<unsigned char>(byte);
        const bool second = !line.empty() && line.back() == LeadOfHighControls && value >= 0x80U;
        if (second && IsControlCharacter(value)) {
            line.back() = ' ';
        } else {
            line += value < 0x80U && IsControlCharacter(value) ? ' ' : byte;
        }
    }
    return line;
}

std::string StorableText(std::string_view utf8) {
    std::string text;
    text.reserve(utf8.size());
    while (!utf8.empty()) {
        const FirstCharacter first = FirstCharacterOf(utf8);
        text += first.Storable ? utf8.substr(0, first.Length) : Replacement;
        utf8.remove_prefix(first.Length);
    }
    return text;
}

} // namespace tarn
