#include "base/ErrorNumber.h"
#include "project/RoomSize.h"

#include <gtest/gtest.h>

#include <limits>

namespace tarn {
namespace {

constexpr int Least = std::numeric_limits<Integer>::min();
constexpr int GreatestSize = std::numeric_limits<Integer>::max();

int FlooredQuotient(int value, int units) {
    return value >= 0 ? value / units : -((units - 1 - value) / units);
}

class EverySize : public ::testing::TestWithParam<Units> {
  protected:
    Units In() const { return GetParam(); }
    int SmallUnits() const { return In() == Units::Metric ? 100 : 12; }
};
INSTANTIATE_TEST_SUITE_P(Units, EverySize, ::testing::Values(Units::Imperial, Units::Metric),
                         [](const auto& unit) {
                             return unit.param == Units::Metric ? "Metric" : "Imperial";
                         });

TEST_P(EverySize, SplitsIntoAFlooredMajorAndAMinorWithItsSign) {
    for (int size = Least; size <= GreatestSize; ++size) {
        const SizeParts parts = SplitSize(static_cast<Integer>(size), In());
        ASSERT_EQ(parts.Major, std::to_string(FlooredQuotient(size, SmallUnits()))) << size;
        ASSERT_EQ(parts.Minor, std::to_string(size % SmallUnits())) << size;
    }
}

TEST_P(EverySize, FromZeroOnIsJoinedBackAndAccepted) {
    for (int size = 0; size <= GreatestSize; ++size) {
        const SizeParts parts = SplitSize(static_cast<Integer>(size), In());
        ASSERT_EQ(ReadSize(parts, In()), size);
    }
}

TEST_P(EverySize, BelowZeroIsRefusedInWhateverWayItIsTyped) {
    for (int size = Least; size < 0; ++size) {
        ASSERT_EQ(ReadSize({"", std::to_string(size)}, In()), std::nullopt) << size;
    }
}

TEST(SmallUnitName, IsTheNameOfWhatSizesAreStoredIn) {
    EXPECT_EQ(SmallUnitName(Units::Imperial), "inches");
    EXPECT_EQ(SmallUnitName(Units::Metric), "centimetres");
}

TEST(SplitSize, ShowsAHundredAndFiftyAsTwelveFeetSixOrOneMetreFifty) {
    EXPECT_EQ(SplitSize(150, Units::Imperial), (SizeParts{"12", "6"}));
    EXPECT_EQ(SplitSize(150, Units::Metric), (SizeParts{"1", "50"}));
    EXPECT_EQ(SplitSize(0, Units::Imperial), (SizeParts{"0", "0"}));
    EXPECT_EQ(SplitSize(-1, Units::Imperial), (SizeParts{"-1", "-1"}));
}

TEST(ReadSize, StoresElevenFeetThirteenAs145AndItIsShownAsTwelveFeetOne) {
    EXPECT_EQ(ReadSize({"11", "13"}, Units::Imperial), 145);
    EXPECT_EQ(SplitSize(145, Units::Imperial), (SizeParts{"12", "1"}));
}

TEST(ReadSize, AddsCentimetresAboveNinetyNine) {
    EXPECT_EQ(ReadSize({"2", "150"}, Units::Metric), 350);
}

TEST(ReadSize, ReadsEmptyAndNonNumericTextsAsZero) {
    EXPECT_EQ(ReadSize({"", ""}, Units::Imperial), 0);
    EXPECT_EQ(ReadSize({"ft", "7"}, Units::Imperial), 7);
    EXPECT_EQ(ReadSize({"3", ""}, Units::Metric), 300);
    EXPECT_EQ(ReadSize({"12 ft", "6 in"}, Units::Imperial), 150);
}

TEST(ReadSize, KeepsFractionsUntilTheSumIsRounded) {
    EXPECT_EQ(ReadSize({"12.5", ""}, Units::Imperial), 150);
    EXPECT_EQ(ReadSize({".85", ""}, Units::Metric), 85);
    EXPECT_EQ(ReadSize({"0.125", "0.5"}, Units::Imperial), 2); // 1.5 + 0.5
}

TEST(ReadSize, RoundsHalvesToEven) {
    EXPECT_EQ(ReadSize({"", "0.5"}, Units::Imperial), 0);
    EXPECT_EQ(ReadSize({"", "1.5"}, Units::Imperial), 2);
    EXPECT_EQ(ReadSize({"", "2.5"}, Units::Metric), 2);
}

TEST(ReadSize, OverflowsOutsideAnInteger) {
    EXPECT_EQ(ReadSize({"2730", "7"}, Units::Imperial), 32767);
    EXPECT_EQ(ErrorNumber([] { ReadSize({"2730", "8"}, Units::Imperial); }), OverflowNumber);
    EXPECT_EQ(ReadSize({"327", "67"}, Units::Metric), 32767);
    EXPECT_EQ(ErrorNumber([] { ReadSize({"327", "68"}, Units::Metric); }), OverflowNumber);
    EXPECT_EQ(ErrorNumber([] { ReadSize({"1e999", ""}, Units::Metric); }), OverflowNumber);
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
    EXPECT_EQ(ReadSize({"12'6", ""}, Units::Imperial), std::nullopt);
    EXPECT_EQ(ReadSize({"12", "6 1/2"}, Units::Imperial), std::nullopt);
    EXPECT_EQ(ReadSize({"12", "6"}, Units::Imperial), 150);
    EXPECT_EQ(ReadSize({"12 ft", "6 in"}, Units::Imperial), 150);
}

TEST(ReadSize, RefusesANegativeNumberInEitherText) {
    EXPECT_EQ(ReadSize({"-1", "13"}, Units::Imperial), std::nullopt);
    EXPECT_EQ(ReadSize({"1", "-13"}, Units::Imperial), std::nullopt);
    EXPECT_EQ(ReadSize({"12", "-0.4"}, Units::Imperial), std::nullopt);
    EXPECT_EQ(ReadSize({"", "-0"}, Units::Imperial), 0);
    EXPECT_EQ(ReadSize({"", ""}, Units::Imperial), 0);
}

TEST(ReadSize, TakesLengthsThatNameTheirUnits) {
    EXPECT_EQ(ReadSize({"12'6\"", ""}, Units::Imperial), 150);
    EXPECT_EQ(ReadSize({"", "12-6"}, Units::Imperial), 150);
    EXPECT_EQ(ReadSize({"", "12'"}, Units::Imperial), 144);
    EXPECT_EQ(ReadSize({"12' 6 1/2\"", ""}, Units::Imperial), 150) << "halves to even";
    EXPECT_EQ(ReadSize({"366cm", ""}, Units::Metric), 366);
    EXPECT_EQ(ReadSize({"", "3.66m"}, Units::Metric), 366);
    EXPECT_EQ(ReadSize({"12'6\"", "3"}, Units::Imperial), std::nullopt);
    EXPECT_EQ(ReadSize({"12'6\"", ""}, Units::Metric), std::nullopt);
    EXPECT_EQ(ErrorNumber([] { ReadSize({"2731'", ""}, Units::Imperial); }), OverflowNumber);
}

TEST(ReadSize, RefusesANegativeSizeHoweverLarge) {
    for (const Units units : {Units::Imperial, Units::Metric}) {
        for (const char* major : {"-2731", "-40000", "-1e300"}) {
            EXPECT_EQ(ReadSize({major, ""}, units), std::nullopt) << major;
        }
        EXPECT_EQ(ReadSize({"", "-32768.5"}, units), std::nullopt);
    }
}

TEST(ReadSize, RefusesATextBesideANumberTooLarge) {
    EXPECT_EQ(ReadSize({"12'6", "1e400"}, Units::Imperial), std::nullopt);
    EXPECT_EQ(ReadSize({"1e400", "12'6"}, Units::Imperial), std::nullopt);
}

TEST(ReadSize, Overflows) {
    EXPECT_EQ(ErrorNumber([] { ReadSize({"40000", ""}, Units::Imperial); }), OverflowNumber);
    EXPECT_EQ(ErrorNumber([] { ReadSize({"1", "1e400"}, Units::Imperial); }), OverflowNumber);
    EXPECT_EQ(ErrorNumber([] { ReadSize({"", "32767.5"}, Units::Imperial); }), OverflowNumber);
}

} // namespace
} // namespace tarn
