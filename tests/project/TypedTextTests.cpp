#include "project/RoomTesting.h"
#include "project/TypedText.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using testing::Below;
using Breaks = FieldRule::Breaks;

constexpr std::size_t Any = 1000;

/// What stays of `inserted` in an empty field.
std::u32string Inserted(const std::u32string& inserted, const FieldRule& rule) {
    const TypedText fitted = Fitted(U"", {inserted, inserted.size()}, rule);
    EXPECT_EQ(fitted.Cursor, fitted.Text.size());
    return fitted.Text;
}

TEST(TypedText, HasABlankForEachLineBreakAndTabInside) {
    const FieldRule rule{Any, Breaks::Blanks};
    EXPECT_EQ(Inserted(U"a\nb\tc\r\nd\re", rule), U"a b c d e");
    EXPECT_EQ(Inserted(U"a\u2028b\u2029c\u0085d\ve\ff", rule), U"a b c d e f");
    EXPECT_EQ(Inserted(U"\na\n\nb", rule), U" a  b");
}

TEST(TypedText, HasNoLineBreakOrTabAtTheEnd) {
    const FieldRule rule{Any, Breaks::Blanks};
    for (const char32_t* end : {U"\n", U"\r\n", U"\t\n\n", U"\u2028", U"\u2029\t", U"\u0085"}) {
        EXPECT_EQ(Inserted(std::u32string(U"hall ") + end, rule), U"hall ");
        EXPECT_EQ(Inserted(end, rule), U"");
    }
}

TEST(TypedText, MayLoseItsEndOnly) {
    const FieldRule rule{Any, Breaks::EndOnly};
    EXPECT_EQ(Inserted(U"W1\nL1\r\n\u2029", rule), U"W1\nL1");
    EXPECT_EQ(Inserted(U"W1\t", rule), U"W1\t");
}

TEST(TypedText, KeepsWhatStoodBesideTheInsertion) {
    const FieldRule rule{Any, Breaks::Blanks};
    EXPECT_EQ(Fitted(U"a\nb\n", {U"a\nx\ny\nb\n", 6}, rule), (TypedText{U"a\nx yb\n", 5}));
    EXPECT_EQ(Fitted(U"a\nb\n", {U"a\nb", 3}, rule), (TypedText{U"a\nb", 3}));
}

TEST(TypedText, EndsAtTheLimitInCharacters) {
    const FieldRule rule{3, Breaks::Blanks};
    EXPECT_EQ(Inserted(U"\U0001F6C1\U0001F6C2\U0001F6C3\U0001F6C4", rule),
              U"\U0001F6C1\U0001F6C2\U0001F6C3");
    EXPECT_EQ(Fitted(U"ab", {U"axyzb", 4}, rule), (TypedText{U"axb", 2}));
    EXPECT_EQ(Fitted(U"abc", {U"abxc", 3}, rule), (TypedText{U"abc", 2}));
}

TEST(TypedText, MayStayAsLongAsItIsButNotGrow) {
    const FieldRule rule{3, Breaks::Blanks};
    EXPECT_EQ(Fitted(U"abcdef", {U"abcdefg", 7}, rule), (TypedText{U"abcdef", 6}));
    EXPECT_EQ(Fitted(U"abcdef", {U"abcde", 5}, rule), (TypedText{U"abcde", 5}));
    EXPECT_EQ(Fitted(U"abcde", {U"abcdexy", 7}, rule), (TypedText{U"abcde", 5}));
    EXPECT_EQ(Fitted(U"abcdef", {U"xyzuvwrst", 9}, rule), (TypedText{U"xyzuvw", 6}));
}

TEST(TypedText, IsNeverLongerThanAllowedAndKeepsBothSides) {
    constexpr std::u32string_view Alphabet = U"ab \n\t\U0001F6C1";
    const auto randomText = [&](std::mt19937& random, int most) {
        std::u32string text;
        for (int i = Below(random, most + 1); i > 0; --i) {
            text += Alphabet[static_cast<std::size_t>(Below(random, 6))];
        }
        return text;
    };
    const unsigned seed = 20260314;
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    for (int i = 0; i < 5000; ++i) {
        const std::u32string left = randomText(random, 5);
        const std::u32string removed = randomText(random, 3);
        const std::u32string right = randomText(random, 5);
        const std::u32string inserted = randomText(random, 8);
        std::u32string before = left;
        before.append(removed).append(right);
        std::u32string typed = left;
        typed.append(inserted).append(right);
        const FieldRule rule{6, i % 2 == 0 ? Breaks::Blanks : Breaks::EndOnly};
        const TypedText fitted = Fitted(before, {typed, left.size() + inserted.size()}, rule);
        ASSERT_LE(fitted.Text.size(), std::max(before.size(), std::size_t{6}));
        ASSERT_EQ(fitted.Text.substr(0, left.size()), left);
        ASSERT_EQ(fitted.Text.substr(fitted.Cursor), right);
    }
}

} // namespace
} // namespace tarn
