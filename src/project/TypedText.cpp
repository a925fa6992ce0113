#include "project/TypedText.h"

#include <algorithm>
#include <string_view>

namespace tarn {

namespace {

constexpr std::u32string_view BreaksAndTabs = U"\n\r\v\f\u0085\u2028\u2029\t";
constexpr std::u32string_view LineBreaks = BreaksAndTabs.substr(0, BreaksAndTabs.size() - 1);

void DropAtEnd(std::u32string& text, std::u32string_view characters) {
    text.resize(text.find_last_not_of(characters) + 1); // npos + 1 is 0
}

/// Each character of `characters` as a blank, CR LF as one.
std::u32string WithBlanksFor(const std::u32string& text, std::u32string_view characters) {
    std::u32string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (i > 0 && text[i] == U'\n' && text[i - 1] == U'\r') {
            continue;
        }
        result += characters.find(text[i]) == std::u32string_view::npos ? text[i] : U' ';
    }
    return result;
}

std::u32string Taken(std::u32string inserted, const FieldRule& rule) {
    if (rule.Inserted == FieldRule::Breaks::EndOnly) {
        DropAtEnd(inserted, LineBreaks);
        return inserted;
    }
    DropAtEnd(inserted, BreaksAndTabs);
    return WithBlanksFor(inserted, BreaksAndTabs);
}

} // namespace

TypedText Fitted(const std::u32string& before, const TypedText& typed, const FieldRule& rule) {
    const std::u32string end = typed.Text.substr(typed.Cursor);
    const std::size_t kept = before.ends_with(end) ? before.size() - end.size() : 0;
    const std::size_t most = std::min(kept, typed.Cursor);
    const auto differs = std::mismatch(
        before.begin(), before.begin() + static_cast<std::ptrdiff_t>(most), typed.Text.begin());
    const auto begin = static_cast<std::size_t>(differs.first - before.begin());

    const std::size_t around = begin + end.size();
    const std::size_t limit = std::max(rule.Most, before.size());
    std::u32string inserted = Taken(typed.Text.substr(begin, typed.Cursor - begin), rule);
    inserted.resize(std::min(inserted.size(), limit - std::min(limit, around)));
    return {typed.Text.substr(0, begin) + inserted + end, begin + inserted.size()};
}

} // namespace tarn
