#include "project/RoomTesting.h"
#include "project/TypedText.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using testing::Below;
constexpr std::size_t Any = 1000;

/// What stays of `inserted` in an empty field.
std::u32string Inserted(const std::u32string& inserted, std::size_t most = Any) {
    const TypedText fitted = Fitted(U"", {inserted, inserted.size()}, most);
    EXPECT_EQ(fitted.Cursor, fitted.Text.size());
    return fitted.Text;
}

TEST(TypedText, HasABlankForEachLineBreakAndTabInside) {
    EXPECT_EQ(Inserted(U"a\nb\tc\r\nd\re"), U"a b c d e");
    EXPECT_EQ(Inserted(U"a\u2028b\u2029c\u0085d\ve\ff"), U"a b c d e f");
    EXPECT_EQ(Inserted(U"\na\n\nb"), U" a  b");
    EXPECT_EQ(Inserted(U"W1\nL1\r\n\u2029"), U"W1 L1");
}

TEST(TypedText, HasNoLineBreakOrTabAtTheEnd) {
    for (const char32_t* end : {U"\n", U"\r\n", U"\t\n\n", U"\u2028", U"\u2029\t", U"\u0085"}) {
        EXPECT_EQ(Inserted(std::u32string(U"hall ") + end), U"hall ");
        EXPECT_EQ(Inserted(end), U"");
    }
}

TEST(TypedText, IsWithoutWhatIsNotKept) {
    for (char32_t c = 0; c < 0x11000; ++c) {
        const bool isBreakOrTab = c == U'\t' || LineBreaks.find(c) != std::u32string_view::npos;
        const bool isControl = c < 0x20 || (c >= 0x7F && c < 0xA0);
        const bool isHalf = c >= 0xD800 && c < 0xE000;
        const bool isKept = !isControl && !isHalf && c != 0xFFFE && c != 0xFFFF;
        ASSERT_EQ(IsKeptCharacter(c), isKept) << static_cast<unsigned>(c);
        const std::u32string expected = isBreakOrTab ? U"a b"
                                        : isKept     ? std::u32string{U'a', c, U'b'}
                                                     : U"ab";
        ASSERT_EQ(OneLineText({U'a', c, U'b'}), expected) << static_cast<unsigned>(c);
    }
    EXPECT_EQ(OneLineText(U"a\x01\n\uFFFE"), U"a") << "at the end none is left";
}

TEST(TypedText, KeepsWhatStoodBesideTheInsertion) {
    EXPECT_EQ(Fitted(U"a\nb\n", {U"a\nx\ny\nb\n", 6}, Any), (TypedText{U"a\nx yb\n", 5}));
    EXPECT_EQ(Fitted(U"a\nb\n", {U"a\nb", 3}, Any), (TypedText{U"a\nb", 3}));
}

TEST(TypedText, EndsAtTheLimitInCharacters) {
    constexpr std::size_t Most = 3;
    EXPECT_EQ(Inserted(U"\U0001F6C1\U0001F6C2\U0001F6C3\U0001F6C4", Most),
              U"\U0001F6C1\U0001F6C2\U0001F6C3");
    EXPECT_EQ(Fitted(U"ab", {U"axyzb", 4}, Most), (TypedText{U"axb", 2}));
    EXPECT_EQ(Fitted(U"abc", {U"abxc", 3}, Most), (TypedText{U"abc", 2}));
}

TEST(TypedText, MayStayAsLongAsItIsButNotGrow) {
    constexpr std::size_t Most = 3;
    EXPECT_EQ(Fitted(U"abcdef", {U"abcdefg", 7}, Most), (TypedText{U"abcdef", 6}));
    EXPECT_EQ(Fitted(U"abcdef", {U"abcde", 5}, Most), (TypedText{U"abcde", 5}));
    EXPECT_EQ(Fitted(U"abcde", {U"abcdexy", 7}, Most), (TypedText{U"abcde", 5}));
    EXPECT_EQ(Fitted(U"abcdef", {U"xyzuvwrst", 9}, Most), (TypedText{U"xyzuvw", 6}));
}

TEST(TypedText, IsNeverLongerThanAllowedAndKeepsBothSides) {
    constexpr std::u32string_view Alphabet = U"ab \n\t\x01\U0001F6C1";
    const auto randomText = [&](std::mt19937& random, int most) {
        std::u32string text;
        for (int i = Below(random, most + 1); i > 0; --i) {
            text += Alphabet[static_cast<std::size_t>(Below(random, 7))];
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
        const TypedText fitted = Fitted(before, {typed, left.size() + inserted.size()}, 6);
        ASSERT_LE(fitted.Text.size(), std::max(before.size(), std::size_t{6}));
        ASSERT_EQ(fitted.Text.substr(0, left.size()), left);
        ASSERT_EQ(fitted.Text.substr(fitted.Cursor), right);
    }
}

} // namespace
} // namespace tarn
