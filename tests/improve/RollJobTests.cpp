#include "engine/ResultLength.h"
#include "improve/ImproveFillsTesting.h"
#include "improve/RollJob.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using testing::Divisible;
using testing::Improved;
using testing::MakeJob;
using testing::OneFill;
using testing::Searched;

constexpr ImproveRules ThreeFeet{Units::Imperial, 36};

TEST(RollJob, TheMinimumPartIsThatOfTheRules) {
    const SearchJob job = Divisible(MakeJob(144, {{13, 127}, {17, 331}}), 6);
    for (const double inches : {36, 18, 6}) {
        const RollJob roll = RollJobOf(job, {Units::Imperial, inches});
        EXPECT_NEAR(roll.Job.MinPart * roll.AlongUnit, inches, 1e-9);
    }
    for (const double centimetres : {91, 46, 15}) {
        const RollJob roll = RollJobOf(job, {Units::Metric, centimetres / 2.54});
        EXPECT_NEAR(roll.Job.MinPart * roll.AlongUnit * 2.54, centimetres, 1e-9);
    }
}

TEST(RollJob, WholeInchesAreTheUnits) {
    const SearchJob job = Divisible(MakeJob(144, {{48, 100}, {36, 200}, {60, 300}}), 2);
    const RollJob roll = RollJobOf(job, ThreeFeet);
    EXPECT_EQ(roll.AcrossUnit, 12);
    EXPECT_NEAR(roll.AlongUnit, 1, 1e-12) << "cuts are at whole inches";
    EXPECT_EQ(roll.Job.Width, 12);
    EXPECT_EQ(roll.Job.CutStep, 1);
}

TEST(RollJob, AStartThatIsNoWholeUnitLosesAgainstShorterWholeUnitsOnly) {
    const SearchJob job = Divisible(MakeJob(144, {{72, 201}}), 2);
    const SearchResult start = Searched(job);
    ASSERT_EQ(LengthInUse(start.Layout), 100.5F);
    const LayoutMerit merit = LayoutMeritOf(RollJobOf(job, ThreeFeet), start.Layout);
    EXPECT_TRUE((LayoutMerit{100, 9, 0}.BetterThan(merit)));
    EXPECT_FALSE((LayoutMerit{101, 1, 1 << 29}.BetterThan(merit))) << "it is half an inch longer";
    const ImproveResult result = Improved(job, start, ThreeFeet);
    EXPECT_FALSE(result.Improved) << "at whole inches it takes 101";
    EXPECT_TRUE(result.StartBelowRules);
    EXPECT_EQ(LengthInUse(result.Fills.Layout), 100.5F);
    ASSERT_TRUE(result.Kept.has_value());
    EXPECT_EQ(LengthInUse(result.Kept->Layout), 101.0F);
}

TEST(RollJob, ALayoutKeepsTheRulesWhoseDividedPartsAreLongEnough) {
    const SearchJob job = Divisible(MakeJob(144, {{72, 200}, {72, 20}}), 2);
    const RollJob roll = RollJobOf(job, ThreeFeet);
    std::vector<Placed> layout;
    const auto add = [&](std::size_t whole, Single x, Single y, Single begin, Single end) {
        Piece piece = roll.Wholes.at(whole);
        piece.Y1 = begin / static_cast<Single>(job.Scale);
        piece.Y2 = end / static_cast<Single>(job.Scale);
        layout.push_back({piece, x, y, 72, end - begin});
    };
    add(0, 0, 0, 0, 100);
    add(0, 72, 0, 100, 200);
    add(1, 0, 100, 0, 20);
    EXPECT_TRUE(KeepsRules(roll, layout, job, ThreeFeet)) << "a short fill that is not divided";
    EXPECT_FALSE(KeepsRules(roll, layout, job, {Units::Imperial, 101}));
}

TEST(RollJob, AStartThatIsAWholeUnitButForTheToleranceCountsAsThat) {
    const auto lengthOf = [&](double length, Single begin) {
        const OneFill fill(length, begin);
        RollJob roll = RollJobOf(fill.Job, ThreeFeet);
        roll.AlongUnit = length / 100;
        const LayoutMerit merit = LayoutMeritOf(roll, fill.Result.Layout);
        EXPECT_GT(merit.Parts, 0) << begin;
        return merit.Length;
    };
    EXPECT_EQ(lengthOf(100, 0.004F), 100);
    EXPECT_EQ(lengthOf(100, 9.996F), 110);
    // In units below the tolerance the nearest one.
    EXPECT_EQ(lengthOf(0.1, 0), 100);
    EXPECT_EQ(lengthOf(0.1, 0.0014F), 101);
    EXPECT_EQ(lengthOf(0.1, 0.0016F), 102);
}

} // namespace
} // namespace tarn
