// What a one-line field makes of a text that is typed or pasted into it.

#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tarn {

/// Characters that break a line, those of Unicode included.
inline constexpr std::u32string_view LineBreaks = U"\n\r\v\f\u0085\u2028\u2029";

/// Whether a character may stand in a text that is kept: it is no control character, not U+FFFE nor
/// U+FFFF, and not half of a surrogate pair.
bool IsKeptCharacter(char32_t character);

/// A text of one line: a blank for each tab and each line break (CR LF is one), but none for those
/// at the end, and without what is not kept.
std::u32string OneLineText(std::u32string text);

/// A one-line text as it stands in a field, and where the cursor is, in characters.
struct TypedText {
    std::u32string Text;
    std::size_t Cursor = 0;

    bool operator==(const TypedText&) const = default;
};

/// What becomes of a text that a user changed from `before` to `typed` by one insertion, deletion
/// or both. Only what was inserted is touched: it is made OneLineText, and cut at its end where it
/// would make the text longer than `most` characters, or than `before` if that was longer.
TypedText Fitted(const std::u32string& before, const TypedText& typed, std::size_t most);

} // namespace tarn
