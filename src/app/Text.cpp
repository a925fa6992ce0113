#include "app/Text.h"

#include "app/Numbers.h"

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
    // Every byte but a continuation byte (10xxxxxx) begins a character.
    return std::count_if(utf8.begin(), utf8.end(),
                         [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; });
}

std::string FtInStr(Long inches) {
    const auto feet = static_cast<long long>(Int(static_cast<Double>(inches) / 12));
    return TrimStr(feet) + "'" + TrimStr(Mod(inches, 12)) + "\"";
}

} // namespace tarn
