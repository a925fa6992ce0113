#include "Sanitized.h"
#include "improve/Improver.h"
#include "improve/PatternPlan.h"
#include "improve/PatternTesting.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using testing::FaultOf;
using testing::GoOn;
using testing::PatternFaultOf;

/// Worse than any layout that drops with a pattern can have.
LayoutMerit Worst(const ImproveJob& job) {
    return {4 * static_cast<Long>(StackedLength(job)) + 1000, 1000, 0};
}

/// A full-width drop and a fill of a room, and what the fill needs besides.
ImproveJob DropAndFill(Long length, Long fillWidth, Long parts, ImproveRepeat repeat) {
    ImproveJob job{144, 36, 1, 1000, {}, repeat};
    job.Fills = {{144, length, 1, 0}, {fillWidth, length, parts, 0, 144, 1}};
    return job;
}

//      0   36         144
//    0 +--------------+
//      |     drop     |
//   20 +--------------+
//      |              |   the next begin of the pattern is at 36
//   36 +---+----------+
//      | f |
//   56 +---+
TEST(PatternPlan, MovesAPieceToWhereItMatches) {
    const ImproveJob job = DropAndFill(20, 36, 1, {18, 36, false});
    PatternPlan plan(job);
    plan.Begin(0, {});
    EXPECT_EQ(plan.Length(LongestRoll), 56);
    const std::vector<ImprovePart> parts = plan.Layout();
    ASSERT_EQ(parts.size(), 2U);
    EXPECT_EQ(parts[1].X % 18, 0);
    EXPECT_EQ(parts[1].Y, 36);
}

// With a repeat of 20 across the fill, 144 in its room, lies at 4, 24, 44, ..
TEST(PatternPlan, MovesAPieceAcrossToo) {
    const ImproveJob job = DropAndFill(40, 30, 1, {20, 0, false});
    PatternPlan plan(job);
    plan.Begin(0, {});
    EXPECT_EQ(plan.Length(LongestRoll), 80);
    EXPECT_EQ(plan.Layout().at(1).X % 20, 4);
}

// In an odd column the pattern stands half a repeat further: the fill goes on where the drop ends.
TEST(PatternPlan, UsesTheColumnsOfAHalfDrop) {
    const ImproveJob job = DropAndFill(132, 36, 1, {18, 24, true});
    PatternPlan plan(job);
    plan.Begin(0, {});
    EXPECT_EQ(plan.Length(LongestRoll), 264);
    EXPECT_EQ((144 - plan.Layout().at(1).X) / 18 % 2, 1);
}

TEST(PatternPlan, CountsColumnsByStripsWithoutARepeatAcross) {
    const ImproveJob job = DropAndFill(132, 36, 1, {0, 24, true});
    PatternPlan plan(job);
    plan.Begin(0, {});
    EXPECT_EQ(plan.Length(LongestRoll), 264);
    const ImproveJob even = DropAndFill(144, 36, 1, {0, 24, true});
    PatternPlan other(even);
    other.Begin(0, {});
    EXPECT_EQ(other.Length(LongestRoll), 300) << "half a repeat is lost";
}

/// Changes plans of random jobs; `look` is called after each change.
template <typename Look>
void ForChangedPlans(Look look) {
    for (unsigned seed = 1; seed <= testing::UnlessSanitized(40U, 10U); ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        const ImproveJob job =
            testing::RandomPattern(random, 12, 12, static_cast<Long>(1 + seed % 4));
        if (!HasPattern(job)) {
            continue;
        }
        SCOPED_TRACE(testing::Describe(job));
        PatternPlan plan(job);
        RandomSteps steps(seed);
        for (std::size_t order = 0; order < plan.Orders(); ++order) {
            plan.Begin(order, PlacingRule::Number(order % PlacingRule::Count));
            for (int step = 0; step < 15; ++step) {
                look(job, plan, steps);
                plan.Change(steps, true);
            }
        }
    }
}

TEST(PatternPlan, LaysEveryFillOutWholeAndMatching) {
    ForChangedPlans([](const ImproveJob& job, Plan& plan, RandomSteps&) {
        const Area64 length = plan.Length(LongestRoll);
        std::vector<ImprovePart> parts = plan.Layout();
        ASSERT_EQ(FaultOf(job, parts), "");
        ASSERT_EQ(PatternFaultOf(job, parts), "");
        EXPECT_EQ(MeritOf(job, parts).Length, length);
        JoinAndOrder(parts, true);
        EXPECT_EQ(FaultOf(job, parts), "");
        EXPECT_EQ(PatternFaultOf(job, parts), "");
    });
}

TEST(PatternPlan, TellsTheAreaThatStaysUnpackedBelowARoof) {
    ForChangedPlans([](const ImproveJob& job, Plan& plan, RandomSteps& steps) {
        const auto roof = static_cast<Long>(TotalArea(job) / job.Width + 1 + steps.Below(20));
        const Area64 unpacked = plan.Unpacked(roof, NoLimit);
        Area64 packed = 0;
        for (const ImprovePart& part : plan.Layout()) {
            EXPECT_LE(part.Y + part.Length, roof);
            packed += static_cast<Area64>(job.Fills[part.Fill].Width) * part.Length;
        }
        EXPECT_EQ(packed + unpacked, TotalArea(job));
        const Area64 most = std::max<Area64>(0, unpacked - 2 + steps.Below(5));
        const Area64 bounded = plan.Unpacked(roof, most);
        EXPECT_EQ(bounded <= most, unpacked <= most);
    });
}

TEST(PatternPlan, GivesUpOnlyAboveTheLimit) {
    ForChangedPlans([](const ImproveJob&, Plan& plan, RandomSteps& steps) {
        const Area64 length = plan.Length(LongestRoll);
        const Area64 limit = length - 2 + steps.Below(5);
        const Area64 limited = plan.Length(limit);
        EXPECT_EQ(limited <= limit, length <= limit);
    });
}

TEST(PatternPlan, UndoneAndCopiedPlansGiveTheSame) {
    ForChangedPlans([](const ImproveJob&, Plan& plan, RandomSteps& steps) {
        const Area64 before = plan.Length(LongestRoll);
        const std::unique_ptr<Plan> copy = plan.Copy();
        plan.Change(steps, true);
        plan.Length(LongestRoll);
        plan.Undo();
        EXPECT_EQ(plan.Length(LongestRoll), before);
        EXPECT_EQ(copy->Length(LongestRoll), before);
        plan.Change(steps, true);
        plan.TakeFrom(*copy);
        EXPECT_EQ(plan.Length(LongestRoll), before);
    });
}

TEST(PatternSearch, FindsTheLeastLengthOfSmallJobs) {
    for (unsigned seed = 1; seed <= testing::UnlessSanitized(150U, 40U); ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        const ImproveJob job = testing::SmallPattern(random);
        SCOPED_TRACE(testing::Describe(job));
        const Long least = testing::LeastPatternLength::Of(job);
        ImproveRun run(job, Worst(job), {0, 6000, seed}, GoOn);
        Improve(run, seed);
        EXPECT_EQ(FaultOf(job, run.BestParts()), "");
        EXPECT_EQ(PatternFaultOf(job, run.BestParts()), "");
        EXPECT_EQ(run.Best().Length, least);
        EXPECT_LE(run.Bound(), least);
    }
}

} // namespace
} // namespace tarn
