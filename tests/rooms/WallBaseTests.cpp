#include "rooms/RoomTesting.h"
#include "rooms/WallBase.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <limits>
#include <vector>

namespace tarn {
namespace {

using testing::ErrorNumberOf;

constexpr int Most = std::numeric_limits<Integer>::max();

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

TEST(GetBaseStr, GivesTheTextOfEveryCode) {
    constexpr std::array Texts{"", "W1", "W2", "L1", "W1L1", "W2L1", "L2", "W1L2", "W2L2"};
    for (std::size_t code = 0; code < Texts.size(); ++code) {
        EXPECT_EQ(GetBaseStr(static_cast<Byte>(code)), Texts[code]);
    }
}

TEST(GetBaseStr, IsEmptyForEveryCodeAboveEight) {
    for (int code = 9; code <= 255; ++code) {
        EXPECT_EQ(GetBaseStr(static_cast<Byte>(code)), "") << code;
    }
}

TEST(BaseCode, IsWidthsPlusThreeTimesLengths) {
    for (int code = 0; code <= 8; ++code) {
        const Byte byte = static_cast<Byte>(code);
        EXPECT_EQ(BaseWidths(byte) + 3 * BaseLengths(byte), code);
        EXPECT_LE(BaseWidths(byte), 2);
        EXPECT_LE(BaseLengths(byte), 2);
        EXPECT_EQ(CalBaseID(GetBaseStr(byte)), code);
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

TEST(CheckBaseStr, AgreesWithReadingCharacterByCharacterOnEveryShortText) {
    for (const std::string& text : ShortTexts()) {
        std::string typed = text;
        ASSERT_EQ(CheckBaseStr(typed), IsPlainBase(text)) << '"' << text << '"';
        std::string upper = text;
        std::transform(upper.begin(), upper.end(), upper.begin(),
                       [](char c) { return static_cast<char>(std::toupper(c)); });
        ASSERT_EQ(typed, upper);
    }
}

TEST(CalBaseID, AgreesWithReadingDigitByDigitOnEveryShortText) {
    for (const std::string& text : ShortTexts()) {
        ASSERT_EQ(CalBaseID(text), PlainCount(text, 'W') + 3 * PlainCount(text, 'L'))
            << '"' << text << '"';
    }
}

TEST(CheckBaseStr, MakesTypedSmallLettersCapitalsAndTheyGiveCodeFive) {
    std::string text = "w2l1";
    EXPECT_TRUE(CheckBaseStr(text));
    EXPECT_EQ(text, "W2L1");
    EXPECT_EQ(CalBaseID(text), 5);
    EXPECT_EQ(CalBaseID("w2l1"), 5);
}

TEST(CheckBaseStr, RefusesAThreeButTwelvePassesAndIsClampedToTwo) {
    std::string three = "W3";
    EXPECT_FALSE(CheckBaseStr(three));
    std::string twelve = "W12";
    EXPECT_TRUE(CheckBaseStr(twelve));
    EXPECT_EQ(CalBaseID(twelve), 2);
}

TEST(CheckBaseStr, RefusesADigitOrABlankAtTheBeginning) {
    for (std::string text : {"1W", " W1", " "}) {
        EXPECT_FALSE(CheckBaseStr(text)) << text;
    }
}

TEST(CheckBaseStr, AcceptsSidesWithoutCountsAndTheyGiveCodeZero) {
    std::string text = "WL";
    EXPECT_TRUE(CheckBaseStr(text));
    EXPECT_EQ(CalBaseID(text), 0);
}

TEST(CheckBaseStr, AcceptsAnEmptyText) {
    std::string text;
    EXPECT_TRUE(CheckBaseStr(text));
    EXPECT_EQ(CalBaseID(text), 0);
}

TEST(CheckBaseStr, RefusesOtherScriptsAndStillMakesThemCapitals) {
    std::string text = "w2д";
    EXPECT_FALSE(CheckBaseStr(text));
    EXPECT_EQ(text, "W2Д");
}

TEST(CalBaseID, ReadsTheSidesInEitherOrder) {
    EXPECT_EQ(CalBaseID("L2W1"), 7);
    EXPECT_EQ(CalBaseID("W1L2"), 7);
}

TEST(CalBaseID, TakesAdjacentDigitsAsOneCountAndClampsIt) {
    EXPECT_EQ(CalBaseID("W21"), 2);
    EXPECT_EQ(CalBaseID("W1 2"), 2);
    EXPECT_EQ(CalBaseID("L11"), 6);
}

TEST(CalBaseID, SkipsBlanksBeforeTheCount) {
    EXPECT_EQ(CalBaseID("W 1"), 1);
}

TEST(CalBaseID, ClampsBeforeItMakesAnInteger) {
    EXPECT_EQ(CalBaseID("W111111"), 2);
    EXPECT_EQ(CalBaseID("L222222222222W1"), 7);
}

TEST(CalBaseID, UsesTheFirstOfRepeatedSides) {
    EXPECT_EQ(CalBaseID("W1W2"), 1);
    EXPECT_EQ(CalBaseID("L2L1"), 6);
}

TEST(CalBaseID, OverflowsBelowZeroAndBeyondADouble) {
    EXPECT_EQ(ErrorNumberOf([] { CalBaseID("W-1"); }), OverflowNumber);
    EXPECT_EQ(ErrorNumberOf([] { CalBaseID("W-1000000"); }), OverflowNumber);
    EXPECT_EQ(ErrorNumberOf([] { CalBaseID("W" + std::string(400, '1')); }), OverflowNumber);
}

TEST(BaseLen, OfATenByTwelveFootRoomWithW2L1Is387) {
    EXPECT_EQ(BaseLen(120, 144, CalBaseID("W2L1")), 387);
}

TEST(BaseLen, OfNinetyNineToAHundredAndOneIs102AndOfAMultipleThreeMore) {
    EXPECT_EQ(BaseLen(99, 0, 1), 102);
    EXPECT_EQ(BaseLen(100, 0, 1), 102);
    EXPECT_EQ(BaseLen(101, 0, 1), 102);
    EXPECT_EQ(BaseLen(102, 0, 1), 105);
    EXPECT_EQ(BaseLen(0, 0, 8), 3);
}

TEST(BaseLen, IsTheNextMultipleOfThreeOverTheWholeRange) {
    for (int width = 0; width <= 32765; ++width) {
        const int base = BaseLen(static_cast<Integer>(width), 1000, 1);
        ASSERT_EQ(base % 3, 0) << width;
        ASSERT_GT(base, width);
        ASSERT_LE(base, width + 3);
    }
}

TEST(BaseLen, CountsTheSidesOfEveryCode) {
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
                ASSERT_EQ(BaseLen(static_cast<Integer>(width), static_cast<Integer>(length),
                                  static_cast<Byte>(code)),
                          expected)
                    << width << " x " << length << " code " << code;
            }
        }
    }
}

TEST(BaseLen, OverflowsWhenTheResultDoesNotFit) {
    EXPECT_EQ(BaseLen(32765, 0, 1), 32766);
    EXPECT_EQ(ErrorNumberOf([] { BaseLen(32766, 0, 1); }), OverflowNumber);
    EXPECT_EQ(ErrorNumberOf([] { BaseLen(Most, 0, 1); }), OverflowNumber);
}

TEST(BaseLen, OverflowsWhenAProductOrTheSumDoesNotFit) {
    EXPECT_EQ(ErrorNumberOf([] { BaseLen(16384, 0, 2); }), OverflowNumber);
    EXPECT_EQ(ErrorNumberOf([] { BaseLen(0, 16384, 6); }), OverflowNumber);
    EXPECT_EQ(ErrorNumberOf([] { BaseLen(20000, 20000, 4); }), OverflowNumber);
    // The product alone is too large, whatever the other side takes away again.
    EXPECT_EQ(ErrorNumberOf([] { BaseLen(-20000, 20000, 7); }), OverflowNumber);
    EXPECT_EQ(BaseLen(-10000, 16000, 7), 22002);
}

} // namespace
} // namespace tarn
