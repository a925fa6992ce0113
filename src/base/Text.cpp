#include "base/Text.h"

#include <algorithm>
#include <utility>

namespace tarn {

namespace {

/// The length in bytes of the character that the text begins with, 0 when its first byte belongs to
/// none.
std::size_t FirstCharacterLength(std::string_view utf8) {
    const auto byte = [utf8](std::size_t at) { return static_cast<unsigned char>(utf8[at]); };
    const unsigned char lead = byte(0);
    const std::size_t length = lead < 0x80U                    ? 1
                               : lead >= 0xC2U && lead < 0xE0U ? 2
                               : lead >= 0xE0U && lead < 0xF0U ? 3
                               : lead >= 0xF0U && lead < 0xF5U ? 4
                                                               : 0;
    if (length == 0 || utf8.size() < length ||
        !std::all_of(utf8.begin() + 1, utf8.begin() + static_cast<std::ptrdiff_t>(length),
                     ContinuesCharacter)) {
        return 0;
    }
    const bool tooLong = (lead == 0xE0U && byte(1) < 0xA0U) || (lead == 0xF0U && byte(1) < 0x90U);
    const bool surrogate = lead == 0xEDU && byte(1) >= 0xA0U;
    const bool beyondLast = lead == 0xF4U && byte(1) >= 0x90U;
    return tooLong || surrogate || beyondLast ? 0 : length;
}

/// What is wrong with the first character of a text, and its length in bytes; 1 for a byte that
/// belongs to none.
std::pair<TextFault, std::size_t> FirstFault(std::string_view utf8) {
    constexpr unsigned HighControls = 0xC2U; // U+0080 to U+009F are C2 80 to C2 9F
    const std::size_t length = FirstCharacterLength(utf8);
    if (length == 0) {
        return {TextFault::NotUtf8, 1};
    }
    const auto first = static_cast<unsigned char>(utf8.front());
    const auto last = static_cast<unsigned char>(utf8[length - 1]);
    if ((length == 1 || first == HighControls) && IsControlCharacter(last)) {
        return {TextFault::ControlCharacter, length};
    }
    const std::string_view character = utf8.substr(0, length);
    const bool none = character == "\xEF\xBF\xBE" || character == "\xEF\xBF\xBF";
    return {none ? TextFault::NoCharacter : TextFault::None, length};
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
    std::string shown;
    shown.reserve(utf8.size());
    while (!utf8.empty()) {
        const auto [fault, length] = FirstFault(utf8);
        shown += fault == TextFault::None ? utf8.substr(0, length) : ReplacementCharacter;
        utf8.remove_prefix(length);
    }
    return shown;
}

std::string WellFormedText(std::string_view utf8) {
    std::string text;
    text.reserve(utf8.size());
    while (!utf8.empty()) {
        const auto [fault, length] = FirstFault(utf8);
        text += fault == TextFault::NotUtf8 ? ReplacementCharacter : utf8.substr(0, length);
        utf8.remove_prefix(length);
    }
    return text;
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
