#include "base/ErrorNumber.h"
#include "base/Lengths.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace tarn {
namespace {

constexpr Double GreatestLong = 2147483647;

TEST(WholeInches, RaisesEveryLengthButOneWithinTheTolerance) {
    for (Long n = 0; n <= 40000; ++n) {
        const auto inches = static_cast<Double>(n);
        ASSERT_EQ(WholeInches(inches), n);
        ASSERT_EQ(WholeInches(inches + 0.0049), n);
        ASSERT_EQ(WholeInches(inches + 0.0051), n + 1);
        ASSERT_EQ(WholeInches(inches + 0.5), n + 1);
        ASSERT_EQ(WholeInches(inches + 0.9999), n + 1);
    }
}

TEST(WholeInches, CountsExactlyTheToleranceAsMore) {
    EXPECT_EQ(WholeInches(0.005), 1);
    EXPECT_EQ(WholeInches(std::nextafter(0.005, 0.0)), 0);
}

TEST(WholeInches, OverflowsBeyondALong) {
    EXPECT_EQ(WholeInches(GreatestLong), 2147483647);
    for (const Double inches : {GreatestLong + 0.5, GreatestLong + 1, 1e300, -1e300,
                                std::numeric_limits<Double>::quiet_NaN()}) {
        EXPECT_EQ(ErrorNumber([=] { return WholeInches(inches); }), OverflowNumber) << inches;
    }
}

TEST(WholeCentimetres, RaisesEveryLengthButOneWithinTheTolerance) {
    for (Long n = 0; n <= 40000; ++n) {
        const auto centimetres = static_cast<Double>(n);
        ASSERT_EQ(WholeCentimetres(centimetres / 2.54), n);
        ASSERT_EQ(WholeCentimetres((centimetres + 0.029) / 2.54), n);
        ASSERT_EQ(WholeCentimetres((centimetres + 0.031) / 2.54), n + 1);
        ASSERT_EQ(WholeCentimetres((centimetres + 0.999) / 2.54), n + 1);
    }
}

TEST(WholeCentimetres, KeepsWhatIsMeantAsWholeAndRaisesTheRest) {
    EXPECT_EQ(WholeCentimetres(133.35 / 2.54), 134);
    EXPECT_EQ(WholeCentimetres(420.014 / 2.54), 420);
}

TEST(WholeCentimetres, GivesBackEveryWholeCentimetreHeldAsASingleInInches) {
    for (Long n = 1; n <= 20000; ++n) {
        const auto inches = static_cast<Single>(n / 2.54);
        ASSERT_EQ(WholeCentimetres(inches), n);
    }
}

TEST(WholeCentimetres, GivesBackEveryWholeCentimetreHeldAsHundredthsOfAnInch) {
    for (Long n = 1; n <= 20000; ++n) {
        const auto hundredths = static_cast<Single>(n / 0.01 / 2.54);
        ASSERT_EQ(WholeCentimetres(hundredths * 0.01), n);
    }
}

TEST(WholeCentimetres, OverflowsBeyondALong) {
    EXPECT_EQ(ErrorNumber([] { return WholeCentimetres(GreatestLong / 2); }), OverflowNumber);
    EXPECT_EQ(ErrorNumber([] { return WholeCentimetres(1e300); }), OverflowNumber);
}

TEST(RoundedCentimetres, RoundsEveryWholeInchHalvesUp) {
    for (long long n = -32768; n <= 32767; ++n) {
        long long expected = (n * 254 + 50) / 100;
        if ((n * 254 + 50) % 100 < 0) {
            --expected;
        }
        ASSERT_EQ(RoundedCentimetres(static_cast<Double>(n)), expected) << n;
    }
}

TEST(RoundedCentimetres, GivesTheRollWidthsTheirNames) {
    EXPECT_EQ(RoundedCentimetres(72), 183);
    EXPECT_EQ(RoundedCentimetres(144), 366);
    EXPECT_EQ(RoundedCentimetres(162), 411);
    EXPECT_EQ(RoundedCentimetres(180), 457);
}

TEST(RoundedCentimetres, OverflowsBeyondALong) {
    EXPECT_EQ(ErrorNumber([] { return RoundedCentimetres(GreatestLong); }), OverflowNumber);
}

TEST(WholeLengthText, ShowsTheLengthInTheUnitThatItIsIn) {
    EXPECT_EQ(WholeLengthText(366, Units::Metric), "366");
    EXPECT_EQ(WholeLengthText(366, Units::Imperial), "30'6\"");
    EXPECT_EQ(WholeLengthText(-5, Units::Metric), "-5");
    EXPECT_EQ(WholeLengthText(0, Units::Imperial), "0'0\"");
}

TEST(LengthText, ShowsFeetAndInchesOrCentimetres) {
    EXPECT_EQ(LengthText(144, Units::Imperial), "12'0\"");
    EXPECT_EQ(LengthText(144.01, Units::Imperial), "12'1\"");
    EXPECT_EQ(LengthText(144.004, Units::Imperial), "12'0\"");
    EXPECT_EQ(LengthText(133.35 / 2.54, Units::Metric), "134");
    EXPECT_EQ(LengthText(420.014 / 2.54, Units::Metric), "420");
    EXPECT_EQ(LengthText(0, Units::Imperial), "0'0\"");
    EXPECT_EQ(LengthText(0, Units::Metric), "0");
}

TEST(IsWithinTolerance, CountsLessThanHalfACoordinateUnitAsTheSame) {
    EXPECT_TRUE(IsWithinTolerance(-1.0F));
    EXPECT_TRUE(IsWithinTolerance(0.0F));
    EXPECT_TRUE(IsWithinTolerance(std::nextafter(0.005F, 0.0F)));
    // The Single next to 0.005 lies below the Double.
    EXPECT_TRUE(IsWithinTolerance(0.005F));
    EXPECT_FALSE(IsWithinTolerance(std::nextafter(0.005F, 1.0F)));
    EXPECT_FALSE(IsWithinTolerance(0.01F));
}

std::string Joined(Long feet, Long inches) {
    std::string text = std::to_string(feet);
    text += '\'';
    text += std::to_string(inches);
    text += '"';
    return text;
}

TEST(FeetAndInches, SplitsEveryIntegerIntoFeetAndInches) {
    // Counted up inch by inch: the feet are the floor, the inches take the length's sign.
    Long feet = 0;
    Long inches = 0;
    for (Long n = 0; n <= 32768; ++n) {
        if (n <= 32767) {
            ASSERT_EQ(FeetAndInches(n), Joined(feet, inches));
        }
        ASSERT_EQ(FeetAndInches(-n), Joined(inches == 0 ? -feet : -feet - 1, -inches));
        if (++inches == 12) {
            inches = 0;
            ++feet;
        }
    }
}

TEST(FeetAndInches, ShowsTheWholeInchesOfAFoot) {
    EXPECT_EQ(FeetAndInches(30), "2'6\"");
    EXPECT_EQ(FeetAndInches(0), "0'0\"");
    EXPECT_EQ(FeetAndInches(11), "0'11\"");
    EXPECT_EQ(FeetAndInches(12), "1'0\"");
    EXPECT_EQ(FeetAndInches(2147483647), "178956970'7\"");
}

TEST(FeetAndInches, FloorsTheFeetOfANegativeLength) {
    EXPECT_EQ(FeetAndInches(-30), "-3'-6\"");
    EXPECT_EQ(FeetAndInches(-12), "-1'0\"");
    EXPECT_EQ(FeetAndInches(-1), "-1'-1\"");
}

TEST(ReadFeetAndInches, IsTheInverseOfFeetAndInchesFromZeroUp) {
    for (Long n = 0; n <= 32767; ++n) {
        ASSERT_EQ(ReadFeetAndInches(FeetAndInches(n)), n);
    }
    EXPECT_EQ(ReadFeetAndInches(FeetAndInches(2147483647)), 2147483647);
}

TEST(ReadFeetAndInches, TakesATextWithoutItsDoubleQuoteOrInches) {
    EXPECT_EQ(ReadFeetAndInches("12'6"), 150);
    EXPECT_EQ(ReadFeetAndInches("12'"), 144);
    EXPECT_EQ(ReadFeetAndInches("0'30\""), 30);
    EXPECT_EQ(ReadFeetAndInches("11'13\""), 145);
    EXPECT_EQ(ReadFeetAndInches("012'06\""), 150);
}

TEST(ReadFeetAndInches, RefusesEveryOtherText) {
    for (const char* text : {"",
                             "12",
                             "'",
                             "'6\"",
                             "12'\"",
                             "12\"",
                             "-1'0\"",
                             "-0'6\"",
                             "1'-1\"",
                             "+1'0\"",
                             "1'+1\"",
                             " 12'6\"",
                             "12 '6\"",
                             "12' 6\"",
                             "12'6 \"",
                             "12'6\" ",
                             "12'6\"\"",
                             "12''",
                             "12'6'",
                             "12'6x",
                             "x'6\"",
                             "1.5'0\"",
                             "12'6.5\"",
                             "12'\xC2\xBD\"",
                             "\xE2\x80\x99",
                             "12\xE2\x80\x99\x36"}) {
        EXPECT_EQ(ReadFeetAndInches(text), std::nullopt) << text;
    }
}

TEST(ReadFeetAndInches, RefusesMoreThanALong) {
    EXPECT_EQ(ReadFeetAndInches("178956970'7\""), 2147483647);
    EXPECT_EQ(ReadFeetAndInches("0'2147483647\""), 2147483647);
    for (const char* text : {"178956970'8\"", "178956971'0\"", "0'2147483648\"",
                             "99999999999999999999'0\"", "0'99999999999999999999\"",
                             "9223372036854775807'0\"", "178956970'9223372036854775807\""}) {
        EXPECT_EQ(ReadFeetAndInches(text), std::nullopt) << text;
    }
}

} // namespace
} // namespace tarn
