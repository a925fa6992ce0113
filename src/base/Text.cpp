#include "base/Text.h"

#include <algorithm>

namespace tarn {

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

} // namespace tarn
