#include "rooms/RoomSize.h"
#include "rooms/RoomTesting.h"

#include <gtest/gtest.h>

#include <limits>

namespace tarn {
namespace {

using testing::ErrorNumberOf;

constexpr int Least = std::numeric_limits<Integer>::min();
constexpr int Most = std::numeric_limits<Integer>::max();

int FlooredQuotient(int value, int units) {
    return value >= 0 ? value / units : -((units - 1 - value) / units);
}

class EverySize : public ::testing::TestWithParam<bool> {
  protected:
    bool Metric() const { return GetParam(); }
    int Units() const { return Metric() ? 100 : 12; }
};
INSTANTIATE_TEST_SUITE_P(Units, EverySize, ::testing::Values(false, true),
                         [](const auto& unit) { return unit.param ? "Metric" : "Imperial"; });

TEST_P(EverySize, SplitsIntoAFlooredMajorAndAMinorWithItsSign) {
    for (int size = Least; size <= Most; ++size) {
        const SizeParts parts = SplitSize(static_cast<Integer>(size), Metric());
        ASSERT_EQ(parts.Major, std::to_string(FlooredQuotient(size, Units()))) << size;
        ASSERT_EQ(parts.Minor, std::to_string(size % Units())) << size;
    }
}

TEST_P(EverySize, FromZeroOnIsJoinedBackAndAccepted) {
    for (int size = 0; size <= Most; ++size) {
        const SizeParts parts = SplitSize(static_cast<Integer>(size), Metric());
        ASSERT_EQ(ReadSize(parts.Major, parts.Minor, Metric()), size);
    }
}

TEST_P(EverySize, BelowZeroIsRefusedInWhateverWayItIsTyped) {
    for (int size = Least; size < 0; ++size) {
        ASSERT_EQ(ReadSize("", std::to_string(size), Metric()), std::nullopt) << size;
    }
}

TEST(SplitSize, ShowsAHundredAndFiftyAsTwelveFeetSixOrOneMetreFifty) {
    EXPECT_EQ(SplitSize(150, false), (SizeParts{"12", "6"}));
    EXPECT_EQ(SplitSize(150, true), (SizeParts{"1", "50"}));
    EXPECT_EQ(SplitSize(0, false), (SizeParts{"0", "0"}));
    EXPECT_EQ(SplitSize(-1, false), (SizeParts{"-1", "-1"}));
}

TEST(ReadSize, StoresElevenFeetThirteenAs145AndItIsShownAsTwelveFeetOne) {
    EXPECT_EQ(ReadSize("11", "13", false), 145);
    EXPECT_EQ(SplitSize(145, false), (SizeParts{"12", "1"}));
}

TEST(ReadSize, AddsCentimetresAboveNinetyNine) {
    EXPECT_EQ(ReadSize("2", "150", true), 350);
}

TEST(ReadSize, ReadsEmptyAndNonNumericTextsAsZero) {
    EXPECT_EQ(ReadSize("", "", false), 0);
    EXPECT_EQ(ReadSize("ft", "7", false), 7);
    EXPECT_EQ(ReadSize("3", "", true), 300);
    EXPECT_EQ(ReadSize("12 ft", "6 in", false), 150);
}

TEST(ReadSize, KeepsFractionsUntilTheSumIsRounded) {
    EXPECT_EQ(ReadSize("12.5", "", false), 150);
    EXPECT_EQ(ReadSize(".85", "", true), 85);
    EXPECT_EQ(ReadSize("0.125", "0.5", false), 2); // 1.5 + 0.5
}

TEST(ReadSize, RoundsHalvesToEven) {
    EXPECT_EQ(ReadSize("", "0.5", false), 0);
    EXPECT_EQ(ReadSize("", "1.5", false), 2);
    EXPECT_EQ(ReadSize("", "2.5", true), 2);
}

TEST(ReadSize, OverflowsOutsideAnInteger) {
    EXPECT_EQ(ReadSize("2730", "7", false), 32767);
    EXPECT_EQ(ErrorNumberOf([] { ReadSize("2730", "8", false); }), OverflowNumber);
    EXPECT_EQ(ReadSize("327", "67", true), 32767);
    EXPECT_EQ(ErrorNumberOf([] { ReadSize("327", "68", true); }), OverflowNumber);
    EXPECT_EQ(ErrorNumberOf([] { ReadSize("1e999", "", true); }), OverflowNumber);
}

TEST(IsRefusedSizeText, RefusesAFurtherDigitBehindTheNumber) {
    for (const char* text :
         {"12'6", "12'6\"", "3,45", "12 ft 6", "1.2.3", "12-6", "1e2e3", "x12"}) {
        EXPECT_TRUE(IsRefusedSizeText(text)) << text;
    }
}

TEST(IsRefusedSizeText, RefusesABlankBetweenDigits) {
    for (const char* text : {"6 1/2", "1 2", "1\t2", " 1 2 ", "6 .5", "6. 5", "1 e2", "1 2 ft"}) {
        EXPECT_TRUE(IsRefusedSizeText(text)) << text;
    }
}

TEST(IsRefusedSizeText, AcceptsBlanksElsewhere) {
    for (const char* text : {" 12", "12 ", "+ 5", ". 5", "5 .", "12 ft", "\t7\t"}) {
        EXPECT_FALSE(IsRefusedSizeText(text)) << text;
    }
}

TEST(IsRefusedSizeText, AcceptsTextWithoutDigitsBehindTheNumber) {
    for (const char* text :
         {"", "12", "12 ft", "12'", "12.5", ".85", "1e2", "ft", "-", ".", "12ш"}) {
        EXPECT_FALSE(IsRefusedSizeText(text)) << text;
    }
}

TEST(IsRefusedSizeText, RefusesDigitsOfOtherScriptsAndFractionSigns) {
    for (const char* text : {"6½", "12'٦", "１２", "12\u00A06", "1\U0001D7D8"}) {
        EXPECT_TRUE(IsRefusedSizeText(text)) << text;
    }
}

TEST(ReadSize, RefusesWhenEitherTextIsRefused) {
    EXPECT_EQ(ReadSize("12'6", "", false), std::nullopt);
    EXPECT_EQ(ReadSize("12", "6 1/2", false), std::nullopt);
    EXPECT_EQ(ReadSize("12", "6", false), 150);
    EXPECT_EQ(ReadSize("12 ft", "6 in", false), 150);
}

TEST(ReadSize, JudgesTheSignOfTheWholeSize) {
    EXPECT_EQ(ReadSize("-1", "13", false), 1);
    EXPECT_EQ(ReadSize("1", "-13", false), std::nullopt);
    EXPECT_EQ(ReadSize("", "-0.4", false), 0);
    EXPECT_EQ(ReadSize("", "", false), 0);
}

TEST(ReadSize, RefusesANegativeSizeHoweverLarge) {
    for (const bool metric : {false, true}) {
        for (const char* major : {"-2731", "-40000", "-1e300"}) {
            EXPECT_EQ(ReadSize(major, "", metric), std::nullopt) << major;
        }
        EXPECT_EQ(ReadSize("", "-32768.5", metric), std::nullopt);
    }
}

TEST(ReadSize, RefusesATextBesideANumberTooLarge) {
    EXPECT_EQ(RefusedPart("12'6", "1e400"), SizePart::Major);
    EXPECT_EQ(RefusedPart("1e400", "12'6"), SizePart::Minor);
    EXPECT_EQ(RefusedPart("12'6", "12'6"), SizePart::Major);
    EXPECT_EQ(RefusedPart("1e400", "1e400"), std::nullopt);
    EXPECT_EQ(ReadSize("12'6", "1e400", false), std::nullopt);
    EXPECT_EQ(ReadSize("1e400", "12'6", false), std::nullopt);
}

TEST(ReadSize, Overflows) {
    EXPECT_EQ(ErrorNumberOf([] { ReadSize("40000", "", false); }), OverflowNumber);
    EXPECT_EQ(ErrorNumberOf([] { ReadSize("1", "1e400", false); }), OverflowNumber);
    EXPECT_EQ(ErrorNumberOf([] { ReadSize("", "32767.5", false); }), OverflowNumber);
}

} // namespace
} // namespace tarn
