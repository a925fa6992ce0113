#include "base/Text.h"

#include <gtest/gtest.h>

#include <limits>

namespace tarn {
namespace {

TEST(TrimStr, GivesAWholeNumberWithoutBlanks) {
    EXPECT_EQ(TrimStr(0), "0");
    EXPECT_EQ(TrimStr(-32768), "-32768");
    EXPECT_EQ(TrimStr(std::numeric_limits<long long>::max()), "9223372036854775807");
}

TEST(TrimStr, TakesTheBlanksFromBothEndsAndNoOthers) {
    EXPECT_EQ(TrimStr("  a b  "), "a b");
    EXPECT_EQ(TrimStr("ab"), "ab");
    EXPECT_EQ(TrimStr("   "), "");
    EXPECT_EQ(TrimStr(""), "");
    EXPECT_EQ(TrimStr(" \ta\t "), "\ta\t");
}

TEST(Space, GivesAsManyBlanksAsCounted) {
    for (long long count = 0; count <= 300; ++count) {
        ASSERT_EQ(Space(count).size(), static_cast<std::size_t>(count));
        ASSERT_EQ(Space(count).find_first_not_of(' '), std::string::npos);
    }
}

TEST(Space, GivesNoneForANegativeCount) {
    EXPECT_EQ(Space(-1), "");
    EXPECT_EQ(Space(-40000), "");
    EXPECT_EQ(Space(std::numeric_limits<long long>::min()), "");
}

TEST(Len, CountsCharactersNotBytes) {
    EXPECT_EQ(Len(""), 0);
    EXPECT_EQ(Len("Hall"), 4);
    EXPECT_EQ(Len("K\xC3\xBC"
                  "che"),
              5); // a two-byte letter
    EXPECT_EQ(Len("\xE2\x82\xAC"
                  "5"),
              2);                                               // a three-byte sign
    EXPECT_EQ(Len("\xF0\x9F\x8F\xA0"), 1);                      // a four-byte sign
    EXPECT_EQ(Len("\xD0\x94\xD0\xBE\xD0\xBC \xE5\xAE\xB6"), 5); // three alphabets
}

TEST(ContinuesCharacter, IsTrueForTheBytesBehindTheFirstOfACharacter) {
    for (int byte = 0; byte < 256; ++byte) {
        EXPECT_EQ(ContinuesCharacter(static_cast<char>(byte)), byte >= 0x80 && byte < 0xC0) << byte;
    }
}

TEST(UpperCaseLetters, ChangesTheLettersAToZAlone) {
    EXPECT_EQ(UpperCaseLetters(""), "");
    EXPECT_EQ(UpperCaseLetters("w2l1 azAZ `{@["), "W2L1 AZAZ `{@[");
    EXPECT_EQ(UpperCaseLetters("w2д caf\u00e9"), "W2д CAF\u00e9");
}

TEST(EqualsIgnoringCase, TakesTheCaseOfAsciiLettersAlone) {
    EXPECT_TRUE(EqualsIgnoringCase("", ""));
    EXPECT_TRUE(EqualsIgnoringCase("Order BY", "oRDER by"));
    EXPECT_TRUE(EqualsIgnoringCase("caf\u00e9", "CAF\u00e9"));
    EXPECT_FALSE(EqualsIgnoringCase("caf\u00e9", "CAF\u00c9"));
    EXPECT_FALSE(EqualsIgnoringCase("order", "orde"));
    EXPECT_FALSE(EqualsIgnoringCase("orde", "order"));
    for (int a = 0; a < 256; ++a) {
        for (int b = 0; b < 256; ++b) {
            const int apart = a > b ? a - b : b - a;
            const int greater = a > b ? a : b;
            const bool same = a == b || (apart == 32 && greater >= 'a' && greater <= 'z');
            EXPECT_EQ(EqualsIgnoringCase(std::string(1, static_cast<char>(a)),
                                         std::string(1, static_cast<char>(b))),
                      same)
                << a << " " << b;
        }
    }
}

TEST(IsControlCharacter, IsTrueForThoseOfAsciiAndOfLatin1AndNoOthers) {
    for (char32_t c = 0; c <= 0x300; ++c) {
        const bool expected = c <= 0x1F || (c >= 0x7F && c <= 0x9F);
        EXPECT_EQ(IsControlCharacter(c), expected) << static_cast<unsigned>(c);
    }
    for (const char32_t c : {U'\u2028', U'\u200B', U'\uFEFF', U'\U0001F600', U'\U00100001'}) {
        EXPECT_FALSE(IsControlCharacter(c)) << static_cast<unsigned>(c);
    }
}

TEST(CrLf, IsCarriageReturnAndLineFeed) {
    EXPECT_EQ(CrLf, "\x0D\x0A");
}

TEST(OneLine, HasABlankForEachControlCharacterAndAllElseAsItIs) {
    EXPECT_EQ(OneLine("a\r\nb\tc\x7F"), "a  b c ");
    EXPECT_EQ(OneLine(std::string_view("\0x", 2)), " x");
    EXPECT_EQ(OneLine("\u0080\u009F|\u00A0\u00C2\u0100\u2028\uFEFF"),
              "  |\u00A0\u00C2\u0100\u2028\uFEFF");
    EXPECT_EQ(OneLine("\xC2"), "\xC2"); // half a character
    EXPECT_EQ(OneLine(""), "");
}

} // namespace
} // namespace tarn
