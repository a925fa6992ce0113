#include "base/ErrorNumber.h"
#include "base/Format.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <string>

namespace tarn {
namespace {

constexpr std::string_view Plain = "###0.00";
constexpr std::string_view Grouped = "#,##0.00";

/// `hundredths` / 100 with two places, by whole-number arithmetic alone.
std::string TwoPlaces(long long hundredths, bool grouped) {
    const bool negative = hundredths < 0;
    const long long magnitude = negative ? -hundredths : hundredths;
    long long whole = magnitude / 100;
    std::string text;
    int digits = 0;
    do {
        if (grouped && digits > 0 && digits % 3 == 0) {
            text.insert(text.begin(), ',');
        }
        text.insert(text.begin(), static_cast<char>('0' + whole % 10));
        whole /= 10;
        ++digits;
    } while (whole > 0);
    text.push_back('.');
    text.push_back(static_cast<char>('0' + magnitude / 10 % 10));
    text.push_back(static_cast<char>('0' + magnitude % 10));
    return negative ? "-" + text : text;
}

/// `thousandths` / 1000 rounded to hundredths, halves away from zero.
long long Hundredths(long long thousandths) {
    return (thousandths + (thousandths < 0 ? -5 : 5)) / 10;
}

/// The Double next to the decimal number `thousandths` / 1000 (one division rounds correctly), in
/// both patterns, both signs.
void CheckDouble(long long thousandths) {
    for (const long long signedThousandths : {thousandths, -thousandths}) {
        const auto value = static_cast<Double>(signedThousandths) / 1000;
        const long long expected = Hundredths(signedThousandths);
        ASSERT_EQ(Format(value, Plain), TwoPlaces(expected, false)) << signedThousandths;
        ASSERT_EQ(Format(value, Grouped), TwoPlaces(expected, true)) << signedThousandths;
    }
}

void CheckSingle(long long thousandths) {
    for (const long long signedThousandths : {thousandths, -thousandths}) {
        const auto value = static_cast<Single>(static_cast<Double>(signedThousandths) / 1000);
        const long long expected = Hundredths(signedThousandths);
        ASSERT_EQ(Format(value, Plain), TwoPlaces(expected, false)) << signedThousandths;
        ASSERT_EQ(Format(value, Grouped), TwoPlaces(expected, true)) << signedThousandths;
    }
}

TEST(Format, RoundsHalvesOfTheDecimalTextAwayFromZero) {
    EXPECT_EQ(Format(12.505, Plain), "12.51");
    EXPECT_EQ(Format(12.505F, Plain), "12.51");
    EXPECT_EQ(Format(-12.505, Plain), "-12.51");
    EXPECT_EQ(Format(1.005, Plain), "1.01");
    EXPECT_EQ(Format(0.005, Plain), "0.01");
    EXPECT_EQ(Format(12.504999, Plain), "12.50");
}

TEST(Format, RoundsEveryTieOfADoubleUpTo1000) {
    for (long long n = 0; n < 1'000'000; n += 10) {
        CheckDouble(n + 5);
    }
}

TEST(Format, RoundsEveryThousandthOfADoubleUpTo40) {
    for (long long n = 0; n <= 40'000; ++n) {
        CheckDouble(n);
    }
}

TEST(Format, RoundsTiesOfADoubleUpToFifteenDigits) {
    constexpr unsigned Seed = 4051;
    SCOPED_TRACE(testing::Message() << "seed " << Seed);
    std::mt19937_64 random(Seed);
    for (long long limit = 1'000'000; limit <= 100'000'000'000'000; limit *= 10) {
        for (int i = 0; i < 2000; ++i) {
            CheckDouble(std::uniform_int_distribution<long long>(0, limit - 1)(random) * 10 + 5);
        }
        CheckDouble(limit * 10 - 5);
    }
}

TEST(Format, RoundsEveryTieOfASingleUpTo1000) {
    for (long long n = 0; n < 1'000'000; n += 10) {
        CheckSingle(n + 5);
    }
}

TEST(Format, RoundsTiesOfASingleUpToSevenDigits) {
    for (long long n = 1'000'000; n < 10'000'000; n += 130) {
        CheckSingle(n + 5);
    }
    CheckSingle(9'999'995);
}

TEST(Format, RoundsEveryThousandthOfASingleUpTo40) {
    for (long long n = 0; n <= 40'000; ++n) {
        CheckSingle(n);
    }
}

__extension__ typedef unsigned __int128 Wide;

/// The decimal text rule over whole numbers alone: the exact value m × 2 ^ e at 15 significant
/// digits (a tie to even), then at two places (a tie away from zero). For 0.001 <= value < 1e9.
long long HundredthsOf(Double value) {
    int exponent = 0;
    const auto mantissa = static_cast<Wide>(std::ldexp(std::frexp(value, &exponent), 53));
    const int shift = 53 - exponent; // value = mantissa / 2 ^ shift
    constexpr Wide Least = 100'000'000'000'000;
    Wide scale = 1;
    int places = 0;
    while (((mantissa * scale) >> shift) < Least) {
        scale *= 10;
        ++places;
    }
    const Wide exact = mantissa * scale;
    Wide digits = exact >> shift;
    const Wide rest = exact - (digits << shift);
    const Wide half = static_cast<Wide>(1) << (shift - 1);
    if (rest > half || (rest == half && digits % 2 == 1)) {
        ++digits;
    }
    Wide divisor = 1;
    for (int i = 2; i < places; ++i) {
        divisor *= 10;
    }
    return static_cast<long long>((digits + divisor / 2) / divisor);
}

TEST(Format, AgreesWithExactArithmeticOnRandomDoubles) {
    constexpr unsigned Seed = 777;
    SCOPED_TRACE(testing::Message() << "seed " << Seed);
    std::mt19937_64 random(Seed);
    std::uniform_real_distribution<Double> power(-2.9, 8.9);
    for (int i = 0; i < 50'000; ++i) {
        const Double value = std::pow(10.0, power(random));
        ASSERT_EQ(Format(value, Grouped), TwoPlaces(HundredthsOf(value), true)) << value;
    }
}

TEST(Format, AgreesWithExactArithmeticOneStepBesideTies) {
    for (long long n = 5; n < 2'000'000; n += 70) {
        const Double tie = static_cast<Double>(n) / 1000;
        for (const Double value : {std::nextafter(tie, 0.0), std::nextafter(tie, 1e9)}) {
            ASSERT_EQ(Format(value, Plain), TwoPlaces(HundredthsOf(value), false)) << value;
        }
    }
}

TEST(Format, CarriesThroughNines) {
    EXPECT_EQ(Format(9.995, Plain), "10.00");
    EXPECT_EQ(Format(99.995, Plain), "100.00");
    EXPECT_EQ(Format(0.995, Plain), "1.00");
    EXPECT_EQ(Format(999.995, Grouped), "1,000.00");
    EXPECT_EQ(Format(999999.995, Grouped), "1,000,000.00");
    EXPECT_EQ(Format(-9.995F, Plain), "-10.00");
    EXPECT_EQ(Format(9.994, Plain), "9.99");
}

TEST(Format, PrintsZeroWithoutASign) {
    EXPECT_EQ(Format(0.0, Plain), "0.00");
    EXPECT_EQ(Format(-0.0, Plain), "0.00");
    EXPECT_EQ(Format(-0.004, Plain), "0.00");
    EXPECT_EQ(Format(-0.0049999, Grouped), "0.00");
    EXPECT_EQ(Format(-0.005, Plain), "-0.01");
    EXPECT_EQ(Format(1e-300, Plain), "0.00");
    EXPECT_EQ(Format(0.0F, Plain), "0.00");
    EXPECT_EQ(Format(-1e-30F, Plain), "0.00");
}

TEST(Format, GroupsThousandsOnlyWhereThePatternSaysSo) {
    EXPECT_EQ(Format(999.0, Grouped), "999.00");
    EXPECT_EQ(Format(1000.0, Grouped), "1,000.00");
    EXPECT_EQ(Format(-1234567.5, Grouped), "-1,234,567.50");
    EXPECT_EQ(Format(1234567.5, Plain), "1234567.50");
    EXPECT_EQ(Format(123456.0, Grouped), "123,456.00");
}

TEST(Format, HasSevenDigitsOfASingleAndFifteenOfADouble) {
    EXPECT_EQ(Format(123456.78F, Plain), "123456.80");
    EXPECT_EQ(Format(16777216.0F, Grouped), "16,777,220.00");
    EXPECT_EQ(Format(123456.78, Plain), "123456.78");
    EXPECT_EQ(Format(1234567890123.46, Plain), "1234567890123.46");
    EXPECT_EQ(Format(12345678901234.56, Plain), "12345678901234.60");
    EXPECT_EQ(Format(1e20, Grouped), "100,000,000,000,000,000,000.00");
}

TEST(Format, CopiesTheTextAroundTheFigures) {
    EXPECT_EQ(Format(1001.5, "#,##0.00 SQ. YARDS"), "1,001.50 SQ. YARDS");
    EXPECT_EQ(Format(100.0, "##0.00 SQ. FT.  "), "100.00 SQ. FT.  ");
    EXPECT_EQ(Format(-2.5, "= ##0.00 m\xC2\xB2"), "= -2.50 m\xC2\xB2");
    EXPECT_EQ(Format(7.0, "Total: 0.00"), "Total: 7.00");
}

TEST(Format, PrintsAsManyDigitsAsThePatternHasZeros) {
    EXPECT_EQ(Format(5.0, "0"), "5");
    EXPECT_EQ(Format(5.5, "0"), "6");
    EXPECT_EQ(Format(4.5, "0"), "5");
    EXPECT_EQ(Format(7.0, "000"), "007");
    EXPECT_EQ(Format(1.25, "0.0"), "1.3");
    EXPECT_EQ(Format(1.0, "0.000"), "1.000");
    EXPECT_EQ(Format(0.5, "#.00"), ".50");
    EXPECT_EQ(Format(0.0, "#"), "");
    EXPECT_EQ(Format(0.05, "0.0"), "0.1");
    EXPECT_EQ(Format(0.04, "0.0"), "0.0");
    EXPECT_EQ(Format(0.004, "0.0"), "0.0");
}

TEST(Format, OverflowsOnWhatIsNoFiniteNumber) {
    constexpr Double Infinity = std::numeric_limits<Double>::infinity();
    constexpr Double NotANumber = std::numeric_limits<Double>::quiet_NaN();
    for (const Double value : {Infinity, -Infinity, NotANumber}) {
        EXPECT_EQ(ErrorNumber([value] { return Format(value, Plain); }), OverflowNumber);
        const auto single = static_cast<Single>(value);
        EXPECT_EQ(ErrorNumber([single] { return Format(single, Plain); }), OverflowNumber);
    }
}

} // namespace
} // namespace tarn
