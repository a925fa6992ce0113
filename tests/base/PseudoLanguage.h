// A language that nobody speaks: every text in brackets, with letters of other scripts, and as much
// longer as a translation may become. What it does not change was said past the words.

#pragma once

#include "base/Text.h"
#include "base/Words.h"

#include <optional>
#include <string>

namespace tarn::testing {

/// The text in brackets, 40 percent longer; what stands for something in it stays.
inline std::string PseudoText(const std::string& text) {
    constexpr long long Percent = 40;
    constexpr long long Brackets = 2;
    const long long more = (Len(text) * Percent + 99) / 100 - Brackets;
    std::string longer = "[" + text;
    for (long long i = 0; i < more; ++i) {
        longer += i % 8 == 1 && more > 8 ? " " : "é"; // broken into lines like words
    }
    return longer + "]";
}

inline std::optional<std::string> Pseudo(const char* english, const char* many, int count) {
    return PseudoText(count == 1 || *many == '\0' ? english : many);
}

} // namespace tarn::testing
