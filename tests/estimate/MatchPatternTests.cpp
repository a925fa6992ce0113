#include "estimate/EstimateTesting.h"
#include "estimate/MatchPattern.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using testing::BothLays;
using testing::Centimetres;
using testing::Cut;
using testing::ErrorOf;
using testing::Job;
using testing::Metric;

CarpetEstimate Repeat(std::string_view width, std::string_view length, bool metric) {
    CarpetEstimate estimate;
    SetMatchPattern(estimate, width, length, metric);
    return estimate;
}

TEST(SetMatchPattern, InchesAreRoundedHalvesToEven) {
    const CarpetEstimate estimate = Repeat("12.5", "13.5", false);
    EXPECT_TRUE(estimate.MatchFlag);
    EXPECT_EQ(estimate.MatchWidth, 12);
    EXPECT_EQ(estimate.MatchLength, 14);
}

TEST(SetMatchPattern, CentimetresBecomeTheNearestInch) {
    const CarpetEstimate estimate = Repeat("30", "31", true);
    EXPECT_EQ(estimate.MatchWidth, 12);
    EXPECT_EQ(estimate.MatchLength, 12);
    EXPECT_EQ(Repeat("32", "33", true).MatchWidth, 13);
    EXPECT_EQ(Repeat("32", "33", true).MatchLength, 13);
}

// 3.81 cm are one inch and a half: up, not to even.
TEST(SetMatchPattern, HalfAnInchOfCentimetresGoesUp) {
    EXPECT_EQ(Repeat("3.81", "6.35", true).MatchWidth, 2);
    EXPECT_EQ(Repeat("3.81", "6.35", true).MatchLength, 3);
    EXPECT_EQ(Repeat("-2", "0", true).MatchWidth, -1);
}

TEST(SetMatchPattern, CentimetresAreKeptAsTyped) {
    const CarpetEstimate estimate = Repeat("31", "45.5", true);
    EXPECT_EQ(estimate.MatchWidthCm, 31);
    EXPECT_EQ(estimate.MatchLengthCm, 46);
    EXPECT_EQ(Repeat("30.5", "0", true).MatchWidthCm, 30);
}

TEST(SetMatchPattern, ReadsTheLeadingNumberOfEachText) {
    EXPECT_EQ(Repeat("18 in", "x24", false).MatchWidth, 18);
    EXPECT_EQ(Repeat("18 in", "x24", false).MatchLength, 0);
}

TEST(SetMatchPattern, ANumberThatDoesNotFitOverflowsAndChangesNothing) {
    for (const bool metric : testing::BothUnits) {
        CarpetEstimate estimate = Repeat("10", "20", metric);
        const CarpetEstimate before = estimate;
        EXPECT_EQ(ErrorOf([&] { SetMatchPattern(estimate, "5", "32768", metric); }).Number(),
                  OverflowNumber);
        EXPECT_EQ(ErrorOf([&] { SetMatchPattern(estimate, "-40000", "5", metric); }).Number(),
                  OverflowNumber);
        EXPECT_EQ(estimate.MatchWidth, before.MatchWidth);
        EXPECT_EQ(estimate.MatchLength, before.MatchLength);
        EXPECT_EQ(estimate.MatchWidthCm, before.MatchWidthCm);
        EXPECT_EQ(estimate.MatchLengthCm, before.MatchLengthCm);
    }
}

TEST(RepeatText, ShowsFeetAndInchesOrTheTypedCentimetres) {
    EXPECT_EQ(RepeatText(Repeat("18", "30", false), false), "1'6\" X 2'6\"");
    EXPECT_EQ(RepeatText(Repeat("31", "64", true), true), "31 X 64");
}

/// A 12 ft roll with a cut of each length along the roll, and fills of `fills` inches.
Job CutsOf(std::initializer_list<int> lengths, Integer fills, bool downLay) {
    Job job;
    for (const int length : lengths) {
        job.Add(testing::AcrossAlong(downLay, 144, length));
    }
    Cut(job, 144, downLay);
    job.Engine.ResultLen = fills;
    return job;
}

Long MatchLength(const Job& job) {
    return TotalMatch(job.State, job.Engine, job.Estimate).Length;
}

TEST(TotalMatch, RaisesEveryCutAndTheFillsToAMultipleOfTheRepeat) {
    for (const bool downLay : BothLays) {
        Job job = CutsOf({100, 121}, 51, downLay);
        job.Estimate = Repeat("18", "24", false);
        EXPECT_EQ(MatchLength(job), 120 + 144 + 72);
    }
}

TEST(TotalMatch, ExactMultiplesStay) {
    for (const bool downLay : BothLays) {
        Job job = CutsOf({96, 120}, 48, downLay);
        job.Estimate = Repeat("18", "24", false);
        EXPECT_EQ(MatchLength(job), 96 + 120 + 48);
    }
}

TEST(TotalMatch, ARepeatOfZeroOrLessRaisesNothing) {
    Job job = CutsOf({100, 121}, 51, true);
    for (const char* repeat : {"0", "-24", ""}) {
        job.Estimate = Repeat("18", repeat, false);
        EXPECT_EQ(MatchLength(job), 100 + 121 + 51);
    }
}

TEST(TotalMatch, ARepeatOfOneInchRaisesOnlyToWholeInches) {
    Job job = CutsOf({100}, 51, true);
    job.Estimate = Repeat("1", "1", false);
    EXPECT_EQ(MatchLength(job), 151);
}

// The fraction counts as an inch before the repeat is applied, so 24.01 inches take two repeats.
TEST(TotalMatch, FractionsOfAnInchAreRaisedFirst) {
    Job job = CutsOf({24}, 0, true);
    job.Estimate = Repeat("24", "24", false);
    job.State.ECutY2[0] = 2401;
    EXPECT_EQ(MatchLength(job), 48);
    job.State.ECutY2[0] = 2400.25F;
    EXPECT_EQ(MatchLength(job), 24);
}

TEST(TotalMatch, WithoutFillsOnlyTheCutsCount) {
    Job job = CutsOf({25}, 0, true);
    job.Estimate = Repeat("24", "24", false);
    EXPECT_EQ(MatchLength(job), 48);
}

TEST(TotalMatch, SizeIsTheRollsWidthTimesTheLength) {
    Job job = CutsOf({100, 121}, 51, true);
    job.Estimate = Repeat("18", "24", false);
    const Area size = TotalMatch(job.State, job.Engine, job.Estimate).Size;
    EXPECT_DOUBLE_EQ(size.SquareFeet, 12 * 28);
    EXPECT_DOUBLE_EQ(size.SquareYards, 12 * 28 / 9.0);
}

// 300 cm of cut take ten repeats of 31 cm, which a repeat turned into 12 inches (30.48 cm) would
// bring to 305; 60 inches of fills are 152.4 cm, so 153 and five repeats.
TEST(TotalMatch, MetricRepeatsAreTheTypedCentimetres) {
    for (const bool downLay : BothLays) {
        Job job(true);
        job.Add(testing::AcrossAlong(downLay, 366, 300));
        Cut(job, Centimetres("366"), downLay);
        job.Engine.ResultLen = 60;
        job.Estimate = Repeat("31", "31", true);
        EXPECT_EQ(MatchLength(job), 310 + 155);
        const Area size = TotalMatch(job.State, job.Engine, job.Estimate).Size;
        EXPECT_NEAR(size.SquareMeters, 3.66 * 4.65, 1e-5);
    }
}

// 102 inches are 259.08 cm: one repeat of 259 cm would come up short.
TEST(TotalMatch, MetricFillsAreRaisedToWholeCentimetresLikeACut) {
    Job job = Metric({});
    job.Engine.RollWidth = Centimetres("366");
    job.Engine.ResultLen = 102;
    job.Estimate = Repeat("31", "259", true);
    EXPECT_EQ(MatchLength(job), 518);
}

TEST(TotalMatch, MetricExactMultiplesStay) {
    for (const bool downLay : BothLays) {
        for (const int length : {31, 310, 3100, 31000}) {
            Job job(true);
            job.Add(testing::AcrossAlong(downLay, 457, length));
            Cut(job, Centimetres("457"), downLay);
            ASSERT_EQ(job.State.ECutCount, 1);
            job.Estimate = Repeat("31", "31", true);
            EXPECT_EQ(MatchLength(job), length);
        }
    }
}

TEST(TotalMatch, MetricRepeatOfZeroRaisesNothing) {
    Job job = Metric({{366, 301}});
    Cut(job, Centimetres("366"), true);
    job.Engine.ResultLen = 150;
    job.Estimate = Repeat("31", "0", true);
    EXPECT_EQ(MatchLength(job), 301 + 381);
}

TEST(TotalMatch, ALengthBeyondALongOverflows) {
    Job job = CutsOf({}, 0, true);
    job.State.ECutCount = 3001;
    for (Integer i = 0; i < job.State.ECutCount; ++i) {
        job.State.ECutY2[i] = 3e8F;
    }
    EXPECT_EQ(ErrorOf([&] { MatchLength(job); }).Number(), OverflowNumber);
}

} // namespace
} // namespace tarn
