#include "Sanitized.h"
#include "improve/Bounds.h"
#include "improve/ImproveTesting.h"
#include "improve/Improver.h"
#include "improve/PartPlan.h"
#include "improve/Searches.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>
#include <thread>

namespace tarn {
namespace {

using testing::FaultOf;
using testing::GoOn;
using testing::InSteps;
using testing::RandomFills;
using testing::Stacked;

constexpr std::int64_t FewSteps = 400;

/// Whether two runs found the very same layout.
void ExpectSame(const ImproveRun& a, const ImproveRun& b) {
    EXPECT_EQ(a.Steps(), b.Steps());
    EXPECT_EQ(a.Bound(), b.Bound());
    ASSERT_EQ(a.BestParts().size(), b.BestParts().size());
    for (std::size_t i = 0; i < a.BestParts().size(); ++i) {
        EXPECT_EQ(a.BestParts()[i].Fill, b.BestParts()[i].Fill);
        EXPECT_EQ(a.BestParts()[i].X, b.BestParts()[i].X);
        EXPECT_EQ(a.BestParts()[i].Y, b.BestParts()[i].Y);
        EXPECT_EQ(a.BestParts()[i].Length, b.BestParts()[i].Length);
    }
}

constexpr unsigned SmallJobs = testing::UnlessSanitized(40U, 10U);

class ImproverByParts : public ::testing::TestWithParam<Long> {};
INSTANTIATE_TEST_SUITE_P(Parts, ImproverByParts, ::testing::Values(1, 2, 6));

TEST_P(ImproverByParts, FindsWholeLayoutsNotBelowTheBound) {
    for (unsigned seed = 1; seed <= SmallJobs; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        const ImproveJob job = RandomFills(random, 25, 24, GetParam(), 60);
        SCOPED_TRACE(testing::Describe(job));
        ImproveRun run(job, Stacked(job), InSteps(FewSteps), GoOn);
        Improve(run, seed);
        ASSERT_FALSE(run.BestParts().empty());
        EXPECT_EQ(FaultOf(job, run.BestParts()), "");
        const LayoutMerit merit = MeritOf(job, run.BestParts());
        EXPECT_EQ(merit.Length, run.Best().Length);
        EXPECT_EQ(merit.Parts, run.Best().Parts);
        EXPECT_EQ(merit.FreeEnd, run.Best().FreeEnd);
        EXPECT_GE(run.Bound(), QuickBound(job));
        EXPECT_LE(run.Bound(), merit.Length);
        EXPECT_LE(run.Steps(), FewSteps);
    }
}

TEST_P(ImproverByParts, FindsTheLeastLengthOfSmallJobs) {
    for (unsigned seed = 1; seed <= SmallJobs; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        const ImproveJob job = testing::SmallFills(random, GetParam());
        SCOPED_TRACE(testing::Describe(job));
        const Long least = testing::LeastLength::Of(job);
        ImproveRun run(job, Stacked(job), InSteps(5000), GoOn);
        Improve(run, seed);
        EXPECT_EQ(run.Best().Length, least);
        EXPECT_LE(run.Bound(), least);
    }
}

TEST_P(ImproverByParts, SameSeedAndStepsGiveTheSameLayout) {
    for (unsigned seed = 1; seed <= 8; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        const ImproveJob job = RandomFills(random, 25, 24, GetParam(), 60);
        const ImproveLimits limits = InSteps(FewSteps + seed, seed);
        ImproveRun first(job, Stacked(job), limits, GoOn);
        Improve(first, seed);
        // The second one is slow, and asked at other times.
        int asked = 0;
        ImproveRun second(job, Stacked(job), limits, [&](Long, Long) { return ++asked > 0; });
        Improve(second, seed);
        EXPECT_GT(asked, 0);
        ExpectSame(first, second);
    }
}

TEST_P(ImproverByParts, StoppedAtAnyMomentItHoldsAWholeLayout) {
    std::mt19937 random(7);
    const ImproveJob job = RandomFills(random, 20, 24, GetParam(), 60);
    SCOPED_TRACE(testing::Describe(job));
    bool wasStopped = true;
    for (int stop = 1; wasStopped; ++stop) {
        int asked = 0;
        Long told = Stacked(job).Length;
        ImproveRun run(job, Stacked(job), InSteps(FewSteps), [&](Long best, Long bound) {
            EXPECT_LE(bound, best);
            EXPECT_LE(best, told);
            told = best;
            return ++asked != stop;
        });
        Improve(run, 1);
        wasStopped = asked == stop;
        EXPECT_LE(asked, stop) << "not asked again after it was stopped";
        EXPECT_LE(run.Best().Length, told) << "what was found earlier is kept";
        if (!run.BestParts().empty()) {
            EXPECT_EQ(FaultOf(job, run.BestParts()), "");
        }
        ASSERT_LT(stop, 2000);
    }
}

TEST(Improver, AnErrorOfTheCallerLeavesTheBestLayoutWhole) {
    std::mt19937 random(7);
    const ImproveJob job = RandomFills(random, 20, 24, 3, 60);
    int asked = 0;
    ImproveRun run(job, Stacked(job), InSteps(FewSteps), [&](Long, Long) {
        if (++asked == 9) {
            throw std::runtime_error("the caller's own");
        }
        return true;
    });
    EXPECT_THROW(Improve(run, 1), std::runtime_error);
    EXPECT_EQ(FaultOf(job, run.BestParts()), "");
}

TEST(Improver, EndsByItselfWhenNoLayoutIsShorter) {
    const ImproveJob job{12, 1, 1, 100, {{6, 10, 1}, {6, 10, 1}, {12, 4, 1}, {5, 8, 1}, {7, 8, 1}}};
    ImproveRun run(job, Stacked(job), ImproveLimits(), GoOn);
    Improve(run, 1);
    EXPECT_EQ(run.Best().Length, 22);
    EXPECT_TRUE(run.IsLeast());
    EXPECT_FALSE(run.Stopped());
}

TEST(Improver, KeepsAStartThatIsTheLeast) {
    const ImproveJob job{12, 1, 1, 100, {{6, 10, 1}, {6, 10, 1}}};
    ImproveRun run(job, {10, 2, 0}, ImproveLimits(), GoOn);
    Improve(run, 1);
    EXPECT_TRUE(run.BestParts().empty());
    EXPECT_EQ(run.Best().Length, 10);
}

// The bound counts only layouts of the job's own rules; the start may be shorter.
TEST(Improver, NoBoundIsAboveTheStart) {
    const ImproveJob job{12, 1, 1, 100, {{6, 10, 1}, {6, 10, 1}}};
    ImproveRun run(job, {8, 5, 0}, ImproveLimits(), GoOn);
    Improve(run, 1);
    EXPECT_TRUE(run.BestParts().empty());
    EXPECT_EQ(run.Bound(), 8);
    EXPECT_EQ(run.RulesBound(), 10);
    EXPECT_LT(run.Steps(), 1000) << "nothing is left to be found";
}

TEST(Improver, OfEqualLengthsFewerJoinsWin) {
    // Side by side undivided, as long as the start in four parts.
    const ImproveJob job{12, 1, 1, 100, {{6, 10, 2}, {6, 10, 2}}};
    ImproveRun run(job, {10, 4, 0}, ImproveLimits(), GoOn);
    Improve(run, 1);
    EXPECT_EQ(run.Best().Length, 10);
    EXPECT_EQ(run.Best().Parts, 2);
}

// The start is the least length already, in more parts than a search from the sorted orders gives
// at once.
TEST(Improver, SavesJoinsOfAStartThatIsTheLeast) {
    const ImproveJob job{
        12, 2, 1, 100, {{6, 20, 4}, {6, 10, 4}, {12, 5, 4}, {4, 30, 4}, {2, 24, 4}}};
    const Long least = QuickBound(job);
    ImproveRun run(job, {least, 12, 0}, InSteps(60000), GoOn);
    Improve(run, 1);
    EXPECT_EQ(run.Best().Length, least);
    EXPECT_LT(run.Best().Parts, 12);
    EXPECT_EQ(FaultOf(job, run.BestParts()), "");
}

//  0 +--------+--------+          a 12 x 10 roll of 24: c lies behind a and b in any case,
//    |   a    |   b    |          free are 12 x 5 behind b, when c is behind a
// 10 +--------+        |
TEST(Improver, OfEqualJoinsTheLargerFreeEndWins) {
    const ImproveJob job{24, 1, 1, 100, {{12, 20, 1}, {6, 5, 1}, {6, 4, 1}}};
    ImproveRun run(job, {20, 3, 0}, ImproveLimits(), GoOn);
    Improve(run, 1);
    EXPECT_EQ(run.Best().Length, 20);
    EXPECT_EQ(run.Best().FreeEnd, 12 * 15) << "the two small ones side by side at the start";
}

TEST(Improver, NeverLaysMorePartsThanThereIsRoomFor) {
    const ImproveJob job{12, 1, 1, 1, {{4, 30, 3}}};
    ImproveRun run(job, {31, 1, 0}, InSteps(FewSteps), GoOn);
    Improve(run, 1);
    EXPECT_EQ(run.Best().Length, 30) << "10 would take three parts";
}

// Where no bound proves that the start is the least, its joins are looked for all the same.
TEST(Improver, SavesJoinsOfAStartThatIsTheLeastWithoutAProof) {
    constexpr unsigned Jobs = testing::UnlessSanitized(40U, 3U); // one takes over a second then
    constexpr double LeastShare = 0.5;                           // four in five of very many
    constexpr int LeastUnproven = testing::UnlessSanitized(4, 1);
    int unproven = 0;
    int saved = 0;
    for (unsigned seed = 1; seed <= Jobs; ++seed) {
        std::mt19937 random(seed);
        const ImproveJob job = RandomFills(random, 14, 24, 2, 60);
        ImproveRun first(job, Stacked(job), InSteps(60000), GoOn);
        Improve(first, seed);
        if (first.IsLeast()) {
            continue;
        }
        ++unproven;
        ImproveRun run(job, {first.Best().Length, 1000, 0}, InSteps(60000), GoOn);
        Improve(run, seed);
        if (!run.BestParts().empty()) {
            ++saved;
            EXPECT_EQ(FaultOf(job, run.BestParts()), "") << seed;
        }
    }
    ASSERT_GE(unproven, LeastUnproven);
    EXPECT_GE(saved, LeastShare * unproven);
}

TEST(Shorten, OffersWhatIsAsShortAsTheBestInFewerParts) {
    std::mt19937 random(3);
    const ImproveJob job = RandomFills(random, 20, 24, 3, 60);
    PartPlan plan(job);
    plan.Begin(0, {});
    const auto length = static_cast<Long>(plan.Length(LongestRoll));
    ImproveRun run(job, {length, 1000, 0}, InSteps(FewSteps), GoOn);
    RandomSteps steps(1);
    Shorten(run, plan, {0, {}, length}, 50, steps);
    EXPECT_FALSE(run.BestParts().empty());
}

TEST(ImproveRun, AsksAfterALongStepToo) {
    const ImproveJob job{12, 1, 1, 1, {{4, 30, 3}}};
    int asked = 0;
    ImproveRun run(job, {31, 1, 0}, ImproveLimits(), [&](Long, Long) { return ++asked > 0; });
    constexpr Double LongStep = 0.025; // seconds
    while (run.Passed() < LongStep) {
        std::this_thread::yield();
    }
    run.Spend();
    EXPECT_EQ(run.Steps(), 1);
    EXPECT_EQ(asked, 1);
}

TEST(ImproveRun, TellsAGainOfTheLastStep) {
    const ImproveJob job{12, 1, 1, 1, {{4, 30, 1}}};
    Long told = 0;
    ImproveRun run(job, {31, 1, 0}, InSteps(1), [&](Long best, Long) {
        told = best;
        return true;
    });
    EXPECT_FALSE(run.Spend());
    run.Offer({{0, 0, 0, 30}});
    EXPECT_EQ(told, 30);
}

TEST(PackBelow, IsNotDoneByALayoutOfTooManyParts) {
    const ImproveJob job{12, 1, 1, 1, {{4, 30, 3}}};
    ImproveRun run(job, {31, 1, 0}, InSteps(FewSteps), GoOn);
    PartPlan plan(job);
    RandomSteps random(1);
    std::size_t packed = 0;
    for (std::size_t order = 0; order < plan.Orders(); ++order) {
        plan.Begin(order, {});
        packed += plan.Unpacked(15, NoLimit) == 0 ? 1 : 0;
        EXPECT_FALSE(PackBelow(run, plan, {order, {}, 0}, 15, 10, random));
    }
    EXPECT_GT(packed, 0U);
    EXPECT_TRUE(PackBelow(run, plan, {0, {}, 0}, 30, 10, random)) << "in one part";
}

TEST(Improver, AJobWithoutFillsIsLeftAlone) {
    const ImproveJob job{12, 1, 1, 1, {}};
    ImproveRun run(job, {0, 0, 0}, ImproveLimits(), GoOn);
    Improve(run, 1);
    EXPECT_EQ(run.Steps(), 0);
}

TEST(Improver, TheTimeLimitEndsTheSearch) {
    // Its least length is above every bound, so that nothing else ends it.
    const ImproveJob job{10, 1, 1, 100, {{6, 5, 1}, {5, 6, 1}, {5, 6, 1}, {4, 9, 1}, {3, 7, 1}}};
    ImproveRun run(job, Stacked(job), {0.001, 0, 1}, GoOn);
    Improve(run, 1);
    EXPECT_TRUE(run.Stopped() || run.IsLeast());
    EXPECT_EQ(FaultOf(job, run.BestParts()), "");
}

/// Fills of 200 different widths, for which the bar relaxation takes long.
ImproveJob ManyWidths() {
    ImproveJob job{3999, 1, 1, 1 << 20, {}};
    for (Long i = 0; i < 200; ++i) {
        job.Fills.push_back({300 + 13 * i + i % 7, 400 + 37 * i % 211, 1});
    }
    return job;
}

TEST(Improver, TheTimeLimitEndsTheBarRelaxationToo) {
    const ImproveJob job = ManyWidths();
    ImproveRun run(job, Stacked(job), {0.05, 0, 1}, GoOn);
    Improve(run, 1);
    EXPECT_TRUE(run.Stopped());
    EXPECT_LT(run.Passed(), 3);
}

// The relaxation counts no steps: nothing else is asked so long at one and the same step.
TEST(Improver, TheBarRelaxationLeavesTimeForTheSearch) {
    const ImproveJob job = ManyWidths();
    ImproveRun* running = nullptr;
    std::int64_t step = -1;
    Double since = 0;
    Double longest = 0;
    ImproveRun run(job, Stacked(job), {1, 0, 1}, [&](Long, Long) {
        if (running->Steps() != step) {
            step = running->Steps();
            since = running->Passed();
        }
        longest = std::max(longest, running->Passed() - since);
        return true;
    });
    running = &run;
    Improve(run, 1);
    EXPECT_GT(longest, 0);
    EXPECT_LT(longest, 0.6) << "of 1 second";
}

} // namespace
} // namespace tarn
