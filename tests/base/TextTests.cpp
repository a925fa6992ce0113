#include "base/Text.h"

#include <gtest/gtest.h>

#include <limits>

namespace tarn {
namespace {

/// One character as UTF-8.
std::string Encoded(char32_t c) {
    const auto byte = [](char32_t value) { return static_cast<char>(value); };
    if (c < 0x80) {
        return {byte(c)};
    }
    if (c < 0x800) {
        return {byte(0xC0 | c >> 6), byte(0x80 | (c & 0x3F))};
    }
    if (c < 0x10000) {
        return {byte(0xE0 | c >> 12), byte(0x80 | (c >> 6 & 0x3F)), byte(0x80 | (c & 0x3F))};
    }
    return {byte(0xF0 | c >> 18), byte(0x80 | (c >> 12 & 0x3F)), byte(0x80 | (c >> 6 & 0x3F)),
            byte(0x80 | (c & 0x3F))};
}

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

TEST(FindTextFault, TellsEveryCharacterThatMayBeKept) {
    for (char32_t c = 0; c <= 0x10FFFF; ++c) {
        if (c >= 0xD800 && c < 0xE000) {
            continue;
        }
        const TextFault expected = IsControlCharacter(c)        ? TextFault::ControlCharacter
                                   : c == 0xFFFE || c == 0xFFFF ? TextFault::NoCharacter
                                                                : TextFault::None;
        const std::string text = "a" + Encoded(c) + "\u00E9";
        ASSERT_EQ(FindTextFault(text), expected) << std::hex << static_cast<unsigned long>(c);
        ASSERT_EQ(ShownText(text), expected == TextFault::None ? text : "a\uFFFD\u00E9");
    }
}

TEST(FindTextFault, TellsBytesThatAreNoCharacter) {
    for (const std::string bytes :
         {"\x80", "\xBF", "\xC0\x80", "\xC1\xBF", "\xC3", "\xE0\x9F\xBF", "\xE6\xB5",
          "\xED\xA0\x80", "\xED\xBF\xBF", "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80", "\xF0\x9F\x9B",
          "\xF5\x80\x80\x80", "\xFE", "\xFF"}) {
        std::string shown;
        for (std::size_t i = 0; i < bytes.size(); ++i) {
            shown += "\uFFFD";
        }
        for (const std::string end : {"", "a", "\u00E9"}) {
            const std::string text = std::string("\U0001F6C1").append(bytes).append(end);
            EXPECT_EQ(FindTextFault(text), TextFault::NotUtf8) << ::testing::PrintToString(text);
            EXPECT_EQ(ShownText(text), std::string("\U0001F6C1").append(shown).append(end));
        }
    }
}

TEST(FindTextFault, TellsTheFirstOfSeveral) {
    EXPECT_EQ(FindTextFault("a\n\xFF"), TextFault::ControlCharacter);
    EXPECT_EQ(FindTextFault("a\xFF\n"), TextFault::NotUtf8);
    EXPECT_EQ(FindTextFault("\uFFFF\n"), TextFault::NoCharacter);
    EXPECT_EQ(FindTextFault(""), TextFault::None);
    EXPECT_EQ(FindTextFault(std::string_view("\0", 1)), TextFault::ControlCharacter);
}

TEST(ShownText, IsShownAsItIs) {
    EXPECT_EQ(ShownText("\x1B[31m red\r\n"), "\uFFFD[31m red\uFFFD\uFFFD");
    EXPECT_EQ(ShownText(ShownText("\x9B\u009B\uFFFE")), "\uFFFD\uFFFD\uFFFD");
}

TEST(OneLine, HasABlankForEachControlCharacterAndAllElseAsItIs) {
    EXPECT_EQ(OneLine("a\r\nb\tc\x7F"), "a  b c ");
    EXPECT_EQ(OneLine(std::string_view("\0x", 2)), " x");
    EXPECT_EQ(OneLine("\u0080\u009F|\u00A0\u00C2\u0100\u2028\uFEFF"),
              "  |\u00A0\u00C2\u0100\u2028\uFEFF");
    EXPECT_EQ(OneLine("\xC2"), "\xC2"); // half a character
    EXPECT_EQ(OneLine(""), "");
}

TEST(WellFormedText, HasAReplacementForEachByteThatIsNotUtf8AndAllElseAsItIs) {
    EXPECT_EQ(WellFormedText("a\xFFü\xC3\xE6\xB5z"), "a\uFFFDü\uFFFD\uFFFD\uFFFDz");
    EXPECT_EQ(WellFormedText("\t\uFFFE\x7F"), "\t\uFFFE\x7F");
    EXPECT_EQ(WellFormedText(""), "");
}

} // namespace
} // namespace tarn
