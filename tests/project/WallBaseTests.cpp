#include "base/ErrorNumber.h"
#include "base/Text.h"
#include "project/WallBase.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <limits>
#include <vector>

namespace tarn {
namespace {

constexpr int GreatestWidth = std::numeric_limits<Integer>::max();

/// Every text of up to four of the characters that matter, in both letter cases.
std::vector<std::string> ShortTexts() {
    constexpr std::string_view Alphabet = "LWlw 123x";
    std::vector<std::string> texts{""};
    std::size_t begin = 0;
    for (int length = 1; length <= 4; ++length) {
        const std::size_t end = texts.size();
        for (std::size_t i = begin; i < end; ++i) {
            for (const char c : Alphabet) {
                texts.push_back(texts[i] + c);
            }
        }
        begin = end;
    }
    return texts;
}

/// The count behind the first `side`, read digit by digit.
int PlainCount(const std::string& text, char side) {
    std::size_t i = 0;
    while (i < text.size() && std::toupper(text[i]) != side) {
        ++i;
    }
    int count = 0;
    for (++i; i < text.size() && (text[i] == ' ' || std::isdigit(text[i]) != 0); ++i) {
        if (text[i] != ' ') {
            count = 10 * count + (text[i] - '0');
        }
    }
    return std::min(count, 2);
}

TEST(BaseText, GivesTheTextOfEveryCode) {
    constexpr std::array Codes{"", "W1", "W2", "L1", "W1L1", "W2L1", "L2", "W1L2", "W2L2"};
    for (std::size_t code = 0; code < Codes.size(); ++code) {
        EXPECT_EQ(BaseText(static_cast<Byte>(code)), Codes[code]);
    }
}

TEST(BaseText, IsEmptyForEveryCodeAboveEight) {
    for (int code = 9; code <= 255; ++code) {
        EXPECT_EQ(BaseText(static_cast<Byte>(code)), "") << code;
    }
}

TEST(WallBaseCode, IsWidthsPlusThreeTimesLengths) {
    for (int code = 0; code <= 8; ++code) {
        const Byte byte = static_cast<Byte>(code);
        EXPECT_EQ(BaseWidths(byte) + 3 * BaseLengths(byte), code);
        EXPECT_LE(BaseWidths(byte), 2);
        EXPECT_LE(BaseLengths(byte), 2);
        EXPECT_EQ(BaseCode(BaseText(byte)), code);
    }
}

/// Whether a text is empty or a side followed by sides, blanks, ones and twos, character by
/// character.
bool IsPlainBase(const std::string& text) {
    bool valid = true;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isSide = text[i] == 'L' || text[i] == 'l' || text[i] == 'W' || text[i] == 'w';
        const bool isCount = text[i] == ' ' || text[i] == '1' || text[i] == '2';
        valid = valid && (isSide || (i > 0 && isCount));
    }
    return valid;
}

TEST(IsBaseText, AgreesWithReadingCharacterByCharacterOnEveryShortText) {
    for (const std::string& text : ShortTexts()) {
        ASSERT_EQ(IsBaseText(text), IsPlainBase(text)) << '"' << text << '"';
        ASSERT_EQ(IsBaseText(UpperCaseLetters(text)), IsPlainBase(text)) << '"' << text << '"';
    }
}

TEST(BaseCode, AgreesWithReadingDigitByDigitOnEveryShortText) {
    for (const std::string& text : ShortTexts()) {
        ASSERT_EQ(BaseCode(text), PlainCount(text, 'W') + 3 * PlainCount(text, 'L'))
            << '"' << text << '"';
    }
}

TEST(IsBaseText, TakesSmallLettersAndTheyGiveCodeFive) {
    EXPECT_TRUE(IsBaseText("w2l1"));
    EXPECT_EQ(BaseCode("W2L1"), 5);
    EXPECT_EQ(BaseCode("w2l1"), 5);
}

TEST(IsBaseText, RefusesAThreeButTwelvePassesAndIsClampedToTwo) {
    EXPECT_FALSE(IsBaseText("W3"));
    EXPECT_TRUE(IsBaseText("W12"));
    EXPECT_EQ(BaseCode("W12"), 2);
}

TEST(IsBaseText, RefusesADigitOrABlankAtTheBeginning) {
    for (const char* text : {"1W", " W1", " "}) {
        EXPECT_FALSE(IsBaseText(text)) << text;
    }
}

TEST(IsBaseText, AcceptsSidesWithoutCountsAndTheyGiveCodeZero) {
    EXPECT_TRUE(IsBaseText("WL"));
    EXPECT_EQ(BaseCode("WL"), 0);
}

TEST(IsBaseText, AcceptsAnEmptyText) {
    EXPECT_TRUE(IsBaseText(""));
    EXPECT_EQ(BaseCode(""), 0);
}

TEST(IsBaseText, RefusesOtherScripts) {
    EXPECT_FALSE(IsBaseText("w2д"));
}

TEST(BaseCode, ReadsTheSidesInEitherOrder) {
    EXPECT_EQ(BaseCode("L2W1"), 7);
    EXPECT_EQ(BaseCode("W1L2"), 7);
}

TEST(BaseCode, TakesAdjacentDigitsAsOneCountAndClampsIt) {
    EXPECT_EQ(BaseCode("W21"), 2);
    EXPECT_EQ(BaseCode("W1 2"), 2);
    EXPECT_EQ(BaseCode("L11"), 6);
}

TEST(BaseCode, SkipsBlanksBeforeTheCount) {
    EXPECT_EQ(BaseCode("W 1"), 1);
}

TEST(BaseCode, ClampsBeforeItMakesAnInteger) {
    EXPECT_EQ(BaseCode("W111111"), 2);
    EXPECT_EQ(BaseCode("L222222222222W1"), 7);
}

TEST(BaseCode, UsesTheFirstOfRepeatedSides) {
    EXPECT_EQ(BaseCode("W1W2"), 1);
    EXPECT_EQ(BaseCode("L2L1"), 6);
}

TEST(BaseCode, OverflowsBelowZeroAndBeyondADouble) {
    EXPECT_EQ(ErrorNumber([] { BaseCode("W-1"); }), OverflowNumber);
    EXPECT_EQ(ErrorNumber([] { BaseCode("W-1000000"); }), OverflowNumber);
    EXPECT_EQ(ErrorNumber([] { BaseCode("W" + std::string(400, '1')); }), OverflowNumber);
}

TEST(ListedBaseLength, OfATenByTwelveFootRoomWithW2L1Is387) {
    EXPECT_EQ(ListedBaseLength(120, 144, BaseCode("W2L1")), 387);
}

TEST(ListedBaseLength, OfNinetyNineToAHundredAndOneIs102AndOfAMultipleThreeMore) {
    EXPECT_EQ(ListedBaseLength(99, 0, 1), 102);
    EXPECT_EQ(ListedBaseLength(100, 0, 1), 102);
    EXPECT_EQ(ListedBaseLength(101, 0, 1), 102);
    EXPECT_EQ(ListedBaseLength(102, 0, 1), 105);
    EXPECT_EQ(ListedBaseLength(0, 0, 8), 3);
}

TEST(ListedBaseLength, IsTheNextMultipleOfThreeOverTheWholeRange) {
    for (int width = 0; width <= 32765; ++width) {
        const int base = ListedBaseLength(static_cast<Integer>(width), 1000, 1);
        ASSERT_EQ(base % 3, 0) << width;
        ASSERT_GT(base, width);
        ASSERT_LE(base, width + 3);
    }
}

TEST(ListedBaseLength, CountsTheSidesOfEveryCode) {
    for (int code = 0; code <= 8; ++code) {
        for (int width = 0; width < 40; ++width) {
            for (int length = 0; length < 40; ++length) {
                int sum = 0;
                for (int i = 0; i < code % 3; ++i) {
                    sum += width;
                }
                for (int i = 0; i < code / 3; ++i) {
                    sum += length;
                }
                int expected = 3;
                while (expected <= sum) {
                    expected += 3;
                }
                ASSERT_EQ(ListedBaseLength(static_cast<Integer>(width),
                                           static_cast<Integer>(length), static_cast<Byte>(code)),
                          expected)
                    << width << " x " << length << " code " << code;
            }
        }
    }
}

TEST(ListedBaseLength, OverflowsWhenTheResultDoesNotFit) {
    EXPECT_EQ(ListedBaseLength(32765, 0, 1), 32766);
    EXPECT_EQ(ErrorNumber([] { ListedBaseLength(32766, 0, 1); }), OverflowNumber);
    EXPECT_EQ(ErrorNumber([] { ListedBaseLength(GreatestWidth, 0, 1); }), OverflowNumber);
}

TEST(ListedBaseLength, OverflowsWhenAProductOrTheSumDoesNotFit) {
    EXPECT_EQ(ErrorNumber([] { ListedBaseLength(16384, 0, 2); }), OverflowNumber);
    EXPECT_EQ(ErrorNumber([] { ListedBaseLength(0, 16384, 6); }), OverflowNumber);
    EXPECT_EQ(ErrorNumber([] { ListedBaseLength(20000, 20000, 4); }), OverflowNumber);
    // The product alone is too large, whatever the other side takes away again.
    EXPECT_EQ(ErrorNumber([] { ListedBaseLength(-20000, 20000, 7); }), OverflowNumber);
    EXPECT_EQ(ListedBaseLength(-10000, 16000, 7), 22002);
}

} // namespace
} // namespace tarn
