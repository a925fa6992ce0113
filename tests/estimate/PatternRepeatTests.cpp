#include "estimate/EstimateTesting.h"
#include "estimate/PatternRepeat.h"
#include "estimate/Totals.h"

#include <gtest/gtest.h>

#include <limits>

namespace tarn {
namespace {

using testing::BothLays;
using testing::ErrorOf;
using testing::Estimated;
using testing::MetricRequest;
using testing::Request;

TEST(ReadPatternRepeat, RoundsToWholeUnitsHalvesToEven) {
    EXPECT_EQ(ReadPatternRepeat("12.5", "13.5"), (PatternRepeat{12, 14}));
    EXPECT_EQ(ReadPatternRepeat("31", "45.5"), (PatternRepeat{31, 46}));
    EXPECT_EQ(ReadPatternRepeat("30.5", "0"), (PatternRepeat{30, 0}));
    EXPECT_EQ(ReadPatternRepeat("-2", ""), (PatternRepeat{-2, 0}));
}

TEST(ReadPatternRepeat, ReadsTheLeadingNumberOfEachText) {
    EXPECT_EQ(ReadPatternRepeat("18 in", "x24"), (PatternRepeat{18, 0}));
}

TEST(ReadPatternRepeat, ANumberThatDoesNotFitOverflowsAndIsNamed) {
    const RunTimeError along = ErrorOf([] { ReadPatternRepeat("5", "32768"); });
    EXPECT_EQ(along.Number(), OverflowNumber);
    EXPECT_EQ(along.Advice(), "The match pattern's 32768 is too large: a repeat is at most 32767.");
    const RunTimeError across = ErrorOf([] { ReadPatternRepeat("-40000", "1e999"); });
    EXPECT_EQ(across.Number(), OverflowNumber);
    EXPECT_EQ(across.Advice(),
              "The match pattern's -40000 is too large: a repeat is at most 32767.");
}

TEST(RepeatText, ShowsFeetAndInchesOrTheTypedCentimetres) {
    EXPECT_EQ(RepeatText({18, 30}, Units::Imperial), "1'6\" X 2'6\"");
    EXPECT_EQ(RepeatText({31, 64}, Units::Metric), "31 X 64");
}

TEST(RaisedToRepeat, RaisesToTheNextMultipleAndKeepsExactOnes) {
    EXPECT_EQ(RaisedToRepeat(0, 24), 0);
    EXPECT_EQ(RaisedToRepeat(1, 24), 24);
    EXPECT_EQ(RaisedToRepeat(24, 24), 24);
    EXPECT_EQ(RaisedToRepeat(25, 24), 48);
    EXPECT_EQ(RaisedToRepeat(25, 1), 25);
    EXPECT_EQ(RaisedToRepeat(25, 0), 25);
    EXPECT_EQ(RaisedToRepeat(25, -24), 25);
    constexpr long long Most = std::numeric_limits<Long>::max();
    EXPECT_EQ(RaisedToRepeat(Most, 32767), Most / 32767 * 32767 + 32767);
}

/// A 12 ft roll with a cut of each length along the roll, and fills of `fills` inches.
Estimate CutsOf(const std::vector<int>& lengths, Integer fills, Lay lay = Lay::Down) {
    testing::Rooms rooms;
    for (const int length : lengths) {
        rooms.push_back(testing::AcrossAlong(lay, 144, length));
    }
    Estimate estimate = Estimated(rooms, Request(144, lay));
    estimate.Fills.Length = fills;
    return estimate;
}

/// The same of a metric roll, in centimetres; the fills in inches.
Estimate MetricCutsOf(int roll, const std::vector<int>& lengths, Integer fills,
                      Lay lay = Lay::Down) {
    testing::Rooms rooms;
    for (const int length : lengths) {
        rooms.push_back(testing::AcrossAlong(lay, roll, length));
    }
    Estimate estimate = Estimated(rooms, MetricRequest(std::to_string(roll), lay));
    estimate.Fills.Length = fills;
    return estimate;
}

Long PatternLength(const Estimate& estimate, Integer along) {
    return TotalPattern(estimate, {18, along}).Length;
}

TEST(TotalPattern, RaisesEveryCutAndTheFillsToAMultipleOfTheRepeat) {
    for (const Lay lay : BothLays) {
        EXPECT_EQ(PatternLength(CutsOf({100, 121}, 51, lay), 24), 120 + 144 + 72);
    }
}

TEST(TotalPattern, ExactMultiplesStay) {
    for (const Lay lay : BothLays) {
        EXPECT_EQ(PatternLength(CutsOf({96, 120}, 48, lay), 24), 96 + 120 + 48);
    }
}

TEST(TotalPattern, ARepeatOfZeroOrLessRaisesNothing) {
    for (const Integer repeat : {Integer{0}, Integer{-24}}) {
        EXPECT_EQ(PatternLength(CutsOf({100, 121}, 51), repeat), 100 + 121 + 51);
    }
}

TEST(TotalPattern, ARepeatOfOneInchRaisesOnlyToWholeInches) {
    EXPECT_EQ(PatternLength(CutsOf({100}, 51), 1), 151);
}

// The fraction counts as an inch before the repeat is applied, so 24.01 inches take two repeats.
TEST(TotalPattern, FractionsOfAnInchAreRaisedFirst) {
    Estimate estimate = CutsOf({24}, 0);
    estimate.Cuts[0].Y2 = 2401;
    EXPECT_EQ(PatternLength(estimate, 24), 48);
    estimate.Cuts[0].Y2 = 2400.25F;
    EXPECT_EQ(PatternLength(estimate, 24), 24);
}

TEST(TotalPattern, WithoutFillsOnlyTheCutsCount) {
    EXPECT_EQ(PatternLength(CutsOf({25}, 0), 24), 48);
}

TEST(TotalPattern, SizeIsTheRollsWidthTimesTheLength) {
    const Area size = TotalPattern(CutsOf({100, 121}, 51), {18, 24}).Size;
    EXPECT_DOUBLE_EQ(size.SquareFeet, 12 * 28);
    EXPECT_DOUBLE_EQ(size.SquareYards, 12 * 28 / 9.0);
}

// 300 cm of cut take ten repeats of 31 cm, which a repeat turned into 12 inches (30.48 cm) would
// bring to 305; 60 inches of fills are 152.4 cm, so 153 and five repeats.
TEST(TotalPattern, MetricRepeatsAreTheTypedCentimetres) {
    for (const Lay lay : BothLays) {
        const PatternTotals totals = TotalPattern(MetricCutsOf(366, {300}, 60, lay), {31, 31});
        EXPECT_EQ(totals.Length, 310 + 155);
        EXPECT_NEAR(totals.Size.SquareMeters, 3.66 * 4.65, 1e-5);
    }
}

// 102 inches are 259.08 cm: one repeat of 259 cm would come up short.
TEST(TotalPattern, MetricFillsAreRaisedToWholeCentimetresLikeACut) {
    EXPECT_EQ(PatternLength(MetricCutsOf(366, {}, 102), 259), 518);
}

TEST(TotalPattern, MetricExactMultiplesStay) {
    for (const Lay lay : BothLays) {
        for (const int length : {31, 310, 3100, 31000}) {
            const Estimate estimate = MetricCutsOf(457, {length}, 0, lay);
            ASSERT_EQ(estimate.Cuts.size(), 1U);
            EXPECT_EQ(PatternLength(estimate, 31), length);
        }
    }
}

TEST(TotalPattern, MetricRepeatOfZeroRaisesNothing) {
    EXPECT_EQ(PatternLength(MetricCutsOf(366, {301}, 150), 0), 301 + 381);
}

TEST(TotalPattern, ALengthBeyondALongOverflows) {
    Estimate estimate = CutsOf({}, 0);
    estimate.Cuts.resize(3001, Cut{0, 0, 0, 3e8F});
    EXPECT_EQ(ErrorOf([&] { PatternLength(estimate, 24); }).Number(), OverflowNumber);
}

} // namespace
} // namespace tarn
