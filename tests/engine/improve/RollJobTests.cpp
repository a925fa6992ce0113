#include "engine/EstOptions.h"
#include "engine/Placement.h"
#include "engine/improve/ImproveEngineTesting.h"
#include "engine/improve/RollJob.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using testing::FillBeginningAt;
using testing::Improved;
using testing::MakeEngine;
using testing::Search;

TEST(RollJob, TheMinimumPartIsThatOfTheCaption) {
    SharedState state;
    const auto job = [&](Integer option, bool metric) {
        state.EstOption = option;
        state.MetricFlag = metric ? 1 : 0;
        EngineArrays engine = MakeEngine(144, {{13, 127}, {17, 331}});
        Search(state, engine);
        const RollJob roll = RollJobOf(state, engine);
        return roll.Job.MinPart * roll.AlongUnit * (metric ? 2.54 : 1);
    };
    EXPECT_NEAR(job(5, false), 36, 1e-9);
    EXPECT_NEAR(job(15, false), 18, 1e-9);
    EXPECT_NEAR(job(25, false), 6, 1e-9);
    EXPECT_NEAR(job(5, true), 91, 1e-9);
    EXPECT_NEAR(job(15, true), 46, 1e-9);
    EXPECT_NEAR(job(25, true), 15, 1e-9);
}

TEST(RollJob, WholeInchesAreTheUnits) {
    SharedState state;
    state.EstOption = 1;
    EngineArrays engine = MakeEngine(144, {{48, 100}, {36, 200}, {60, 300}});
    Search(state, engine);
    const RollJob roll = RollJobOf(state, engine);
    EXPECT_EQ(roll.AcrossUnit, 12);
    EXPECT_NEAR(roll.AlongUnit, 1, 1e-12) << "cuts are at whole inches";
    EXPECT_EQ(roll.Job.Width, 12);
    EXPECT_EQ(roll.Job.CutStep, 1);
}

TEST(RollJob, AStartThatIsNoWholeUnitLosesAgainstShorterWholeUnitsOnly) {
    SharedState state;
    state.EstOption = 1;
    EngineArrays engine = MakeEngine(144, {{72, 201}});
    Search(state, engine);
    ASSERT_EQ(GetPCLen(engine), 100.5F);
    const LayoutMerit merit = LayoutMeritOf(RollJobOf(state, engine), engine);
    EXPECT_TRUE((LayoutMerit{100, 9, 0}.BetterThan(merit)));
    EXPECT_FALSE((LayoutMerit{101, 1, 1 << 29}.BetterThan(merit))) << "it is half an inch longer";
    const ImproveResult result = Improved(state, engine);
    EXPECT_FALSE(result.Improved) << "at whole inches it takes 101";
    EXPECT_TRUE(result.StartBelowRules);
    EXPECT_EQ(GetPCLen(engine), 100.5F);
}

TEST(RollJob, AStartThatIsAWholeUnitButForTheToleranceCountsAsThat) {
    SharedState state;
    state.EstOption = 1;
    const auto lengthOf = [&](double length, Single begin) {
        const EngineArrays engine = FillBeginningAt(state, length, begin);
        RollJob roll = RollJobOf(state, engine);
        roll.AlongUnit = length / 100;
        const LayoutMerit merit = LayoutMeritOf(roll, engine);
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
