// What a one-line field makes of a text that is typed or pasted into it.

#pragma once

#include <cstddef>
#include <string>

namespace tarn {

/// A one-line text as it stands in a field, and where the cursor is, in characters.
struct TypedText {
    std::u32string Text;
    std::size_t Cursor = 0;

    bool operator==(const TypedText&) const = default;
};

/// What a field takes.
struct FieldRule {
    enum class Breaks {
        EndOnly, ///< line breaks at the end of what is inserted are left out, others stay
        Blanks,  ///< line breaks and tabs become blanks; at the end they are left out
    };
    std::size_t Most; ///< characters
    Breaks Inserted = Breaks::EndOnly;
};

/// What becomes of a text that a user changed from `before` to `typed` by one insertion, deletion
/// or both. Only what was inserted is touched: its line breaks (also those of Unicode) as the rule
/// says, and its end where it would make the text longer than the rule's limit, or than `before` if
/// that was longer.
TypedText Fitted(const std::u32string& before, const TypedText& typed, const FieldRule& rule);

} // namespace tarn
