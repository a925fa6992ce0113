#include "project/TypedText.h"

#include "base/Text.h"

#include <algorithm>

namespace tarn {

namespace {

bool IsBreakOrTab(char32_t character) {
    return character == U'\t' || LineBreaks.find(character) != std::u32string_view::npos;
}

} // namespace

bool IsKeptCharacter(char32_t character) {
    const bool isHalf = character >= 0xD800 && character <= 0xDFFF;
    return !isHalf && !IsControlCharacter(character) && character != 0xFFFE && character != 0xFFFF;
}

std::u32string OneLineText(std::u32string text) {
    while (!text.empty() && (IsBreakOrTab(text.back()) || !IsKeptCharacter(text.back()))) {
        text.pop_back();
    }
    std::u32string line;
    char32_t before = 0;
    for (const char32_t character : text) {
        if (IsBreakOrTab(character)) {
            const bool ofOneBreak = character == U'\n' && before == U'\r';
            line += ofOneBreak ? U"" : U" ";
        } else if (IsKeptCharacter(character)) {
            line += character;
        }
        before = character;
    }
    return line;
}

TypedText Fitted(const std::u32string& before, const TypedText& typed, std::size_t most) {
    const std::u32string end = typed.Text.substr(typed.Cursor);
    const std::size_t kept = before.ends_with(end) ? before.size() - end.size() : 0;
    const std::size_t compared = std::min(kept, typed.Cursor);
    const auto differs = std::mismatch(
        before.begin(), before.begin() + static_cast<std::ptrdiff_t>(compared), typed.Text.begin());
    const auto begin = static_cast<std::size_t>(differs.first - before.begin());

    const std::size_t around = begin + end.size();
    const std::size_t limit = std::max(most, before.size());
    std::u32string inserted = OneLineText(typed.Text.substr(begin, typed.Cursor - begin));
    inserted.resize(std::min(inserted.size(), limit - std::min(limit, around)));
    return {typed.Text.substr(0, begin) + inserted + end, begin + inserted.size()};
}

} // namespace tarn
