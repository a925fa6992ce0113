#include "base/ErrorNumber.h"
#include "base/Numbers.h"

#include <gtest/gtest.h>

#include <charconv>
#include <cmath>
#include <random>
#include <string>

namespace tarn {
namespace {

using namespace std::string_literals;

struct Case {
    std::string Text;
    Double Value;
};

void ExpectValues(const std::vector<Case>& cases) {
    for (const auto& [text, value] : cases) {
        EXPECT_EQ(Val(text), value) << '"' << text << '"';
    }
}

TEST(Val, ReadsPlainNumbers) {
    ExpectValues({{"0", 0},
                  {"7", 7},
                  {"0012", 12},
                  {"32767", 32767},
                  {"40000", 40000},
                  {"12.5", 12.5},
                  {"12.", 12},
                  {".85", 0.85},
                  {"0.005", 0.005},
                  {"9007199254740993", 9007199254740992},
                  {"123456789012345678901234567890", 123456789012345678901234567890.0}});
}

TEST(Val, ReadsOneSign) {
    ExpectValues({{"+5", 5},
                  {"-5", -5},
                  {"-.5", -0.5},
                  {"+.5", 0.5},
                  {"--5", 0},
                  {"+-5", 0},
                  {"-+5", 0},
                  {"5-3", 5},
                  {"5+3", 5}});
}

TEST(Val, SkipsBlanksAndTabsWhereverTheyStand) {
    ExpectValues({{" 12", 12},
                  {"\t12", 12},
                  {" \t 12 \t", 12},
                  {"1 2", 12},
                  {"1\t2", 12},
                  {"- 5", -5},
                  {" -\t 5", -5},
                  {"1 . 5", 1.5},
                  {". 5", 0.5},
                  {"1 E 3", 1000},
                  {"1 E - 3", 0.001},
                  {"1E\t+ 1 2", 1e12},
                  {"6 1/2", 61},
                  {"1 0 0 ft", 100}});
}

TEST(Val, ReadsAnExponentOfEitherLetter) {
    ExpectValues({{"1E3", 1000},
                  {"1e3", 1000},
                  {"1D3", 1000},
                  {"1d3", 1000},
                  {"1E+3", 1000},
                  {"1D-3", 0.001},
                  {"1.E2", 100},
                  {".5e1", 5},
                  {"-2.5d2", -250},
                  {"1E003", 1000},
                  {"1E3.5", 1000},
                  {"1E3E3", 1000}});
}

TEST(Val, IgnoresHalfAnExponent) {
    ExpectValues({{"1E", 1},
                  {"1e+", 1},
                  {"1D-", 1},
                  {"12Ex", 12},
                  {"12E+x", 12},
                  {"12 E ", 12},
                  {"12ED3", 12},
                  {"12E.5", 12},
                  {"12E--3", 12}});
}

TEST(Val, IgnoresWhatFollowsTheNumber) {
    ExpectValues({{"12'6\"", 12},
                  {"12 ft", 12},
                  {"12,5", 12},
                  {"1,234.5", 1},
                  {"1.2.3", 1.2},
                  {"12x34", 12},
                  {"0x10", 0},
                  {"12\n3", 12},
                  {"12\r", 12},
                  {"7\xC3\xA9", 7},
                  {"7\xC2\xA0"
                   "5",
                   7},
                  {std::string("7\0008", 3), 7}});
}

TEST(Val, GivesZeroForNothingReadable) {
    ExpectValues({{"", 0},      {" ", 0},
                  {"\t \t", 0}, {"abc", 0},
                  {"-", 0},     {"+", 0},
                  {".", 0},     {"-.", 0},
                  {".E5", 0},   {"E5", 0},
                  {"D5", 0},    {"'6\"", 0},
                  {"$5", 0},    {"\n5", 0},
                  {"inf", 0},   {"INF", 0},
                  {"nan", 0},   {"NAN", 0},
                  {"&H10", 0},  {"\xEF\xBC\x95", 0}, // a full-width five
                  {"\xFF", 0},  {std::string("\0005", 2), 0}});
}

TEST(Val, OverflowsBeyondADouble) {
    EXPECT_EQ(Val("1.7976931348623157E308"), std::numeric_limits<Double>::max());
    EXPECT_EQ(Val("-1.7976931348623157E308"), std::numeric_limits<Double>::lowest());
    const std::string zeros(400, '0');
    for (const std::string& text :
         {"1.8E308"s, "1E309"s, "-1E309"s, "1D99999"s, "1E99999999999999999999"s, "1"s + zeros,
          "0."s + zeros + "1E800", "000"s + zeros + "1E400", "9"s + zeros + ".5E-10"}) {
        EXPECT_EQ(ErrorNumber([&text] { return Val(text); }), OverflowNumber) << text;
    }
}

TEST(Val, GivesZeroForWhatIsTooSmallForADouble) {
    const std::string zeros(400, '0');
    ExpectValues({{"1E-400", 0},
                  {"-1E-400", 0},
                  {"1E-99999999999999999999", 0},
                  {"0."s + zeros + "1", 0},
                  {"1"s + zeros + "E-900", 0},
                  {"4.9E-324", std::numeric_limits<Double>::denorm_min()},
                  {"2.2250738585072014E-308", std::numeric_limits<Double>::min()}});
}

TEST(Val, ReadsZeroWithAnyExponent) {
    const std::string zeros(400, '0');
    ExpectValues({{"0E999", 0},
                  {"-0E999", 0},
                  {"0.000E99999", 0},
                  {zeros + "E999", 0},
                  {"0."s + zeros + "E999", 0},
                  {"0E-999", 0}});
}

TEST(Val, WeighsZerosOfTheTextAgainstItsExponent) {
    const std::string zeros(400, '0');
    ExpectValues({{"0."s + zeros + "1E401", 1},
                  {"1"s + zeros + "E-400", 1},
                  {zeros + "12" + zeros + "E-400", 12},
                  {"0."s + zeros + "25E402", 25}});
}

/// A plain decimal number: an optional minus, digits, perhaps a point, perhaps an exponent.
std::string RandomNumber(std::mt19937& random) {
    const auto upTo = [&random](int last) {
        return std::uniform_int_distribution<int>(0, last)(random);
    };
    const auto digits = [&](int count) {
        std::string text;
        for (int i = 0; i < count; ++i) {
            text.push_back(static_cast<char>('0' + upTo(9)));
        }
        return text;
    };
    std::string text = upTo(3) == 0 ? "-" : "";
    text += digits(1 + upTo(20));
    if (upTo(1) == 0) {
        text += ".";
        text += digits(upTo(20));
    }
    if (upTo(3) == 0) {
        text += "e";
        text += std::to_string(upTo(500) - 250);
    }
    return text;
}

TEST(Val, AgreesWithFromCharsAlsoWithBlanksBetweenCharacters) {
    constexpr unsigned Seed = 20400117;
    SCOPED_TRACE(testing::Message() << "seed " << Seed);
    std::mt19937 random(Seed);
    for (int i = 0; i < 50000; ++i) {
        const std::string plain = RandomNumber(random);
        Double expected = 0;
        const auto result = std::from_chars(plain.data(), plain.data() + plain.size(), expected);
        ASSERT_EQ(result.ec, std::errc()) << plain;
        ASSERT_EQ(result.ptr, plain.data() + plain.size()) << plain;
        ASSERT_EQ(Val(plain), expected) << plain;

        std::string spaced;
        for (const char c : plain) {
            spaced.append(random() % 3, random() % 2 == 0 ? ' ' : '\t');
            spaced.push_back(c);
        }
        ASSERT_EQ(Val(spaced), expected) << '"' << spaced << '"';
    }
}

TEST(Val, ReadsEveryWholeAndHalfNumberOfAnInteger) {
    for (int n = -32768; n <= 32767; ++n) {
        ASSERT_EQ(Val(std::to_string(n)), n);
        ASSERT_EQ(Val(std::to_string(n) + ".5"), n < 0 ? n - 0.5 : n + 0.5);
    }
}

TEST(ReadVal, TellsWhereTheNumberEnds) {
    const auto length = [](std::string_view text) { return ReadVal(text).Length; };
    EXPECT_EQ(length("12"), 2U);
    EXPECT_EQ(length("12 ft"), 2U);
    EXPECT_EQ(length("12'6"), 2U);
    EXPECT_EQ(length(" \t12 "), 4U);
    EXPECT_EQ(length("1 2 x"), 3U);
    EXPECT_EQ(length("12."), 3U);
    EXPECT_EQ(length("12.x"), 3U);
    EXPECT_EQ(length("1.5E3x"), 5U);
    EXPECT_EQ(length("12E"), 2U);
    EXPECT_EQ(length("12 E+"), 2U);
    EXPECT_EQ(length("-5"), 2U);
    EXPECT_EQ(length("abc"), 0U);
    EXPECT_EQ(length(" -."), 0U);
    EXPECT_EQ(length(""), 0U);
}

TEST(ReadVal, TellsWhetherAnythingWasReadable) {
    for (const char* text : {"0", " 5", "-.5", "5.", "0x", "1E"}) {
        EXPECT_TRUE(ReadVal(text).Readable) << text;
    }
    for (const char* text : {"", " ", "-", ".", "E5", "x1", "--1"}) {
        EXPECT_FALSE(ReadVal(text).Readable) << text;
    }
}

TEST(ReadVal, TellsBlanksInsideTheNumberFromThoseAroundIt) {
    for (const char* text : {"6 1/2", "1\t2", "- 5", "1 .5", "1. 5", "1 E3", "1E 3", "1E- 3"}) {
        EXPECT_TRUE(ReadVal(text).BlankInside) << text;
    }
    for (const char* text : {"12", " 12", "12 ", "12 ft", "\t-5 x", "5 E", "5 E +", "1.5E3 "}) {
        EXPECT_FALSE(ReadVal(text).BlankInside) << text;
    }
}

} // namespace
} // namespace tarn
