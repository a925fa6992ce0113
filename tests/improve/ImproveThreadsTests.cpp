#include "Sanitized.h"
#include "improve/Bounds.h"
#include "improve/ImproveTesting.h"
#include "improve/ImproveThreads.h"
#include "improve/Improver.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <thread>

namespace tarn {
namespace {

using testing::FaultOf;
using testing::GoOn;
using testing::InSteps;
using testing::RandomFills;
using testing::Stacked;

ImproveLimits Seconds(Double seconds, std::size_t threads) {
    return {seconds, 0, 1, threads};
}

void ExpectSound(const ImproveJob& job, const ImproveOutcome& outcome) {
    EXPECT_LE(outcome.Bound(), outcome.Best.Length);
    EXPECT_GE(outcome.Bound(), QuickBound(job));
    ASSERT_FALSE(outcome.Parts.empty());
    EXPECT_EQ(FaultOf(job, outcome.Parts), "");
    const LayoutMerit merit = MeritOf(job, outcome.Parts);
    EXPECT_EQ(merit.Length, outcome.Best.Length);
    EXPECT_EQ(merit.Parts, outcome.Best.Parts);
    EXPECT_EQ(merit.FreeEnd, outcome.Best.FreeEnd);
}

/// Jobs of undivided and of divided fills take turns.
ImproveJob JobNumber(unsigned number) {
    std::mt19937 random(number);
    return RandomFills(random, 20, 24, number % 2 == 0 ? 1 : 4, 60);
}

TEST(ImproveThreads, TheSameSeedStepsAndThreadsGiveTheSameLayout) {
    for (unsigned number = 1; number <= 8; ++number) {
        const ImproveJob job = JobNumber(number);
        SCOPED_TRACE(testing::Describe(job));
        for (const std::size_t threads : {1U, 2U, 3U}) {
            const ImproveLimits limits = InSteps(901, number, threads);
            const ImproveOutcome first = ImproveOnThreads(job, Stacked(job), limits, GoOn);
            const ImproveOutcome again = ImproveOnThreads(job, Stacked(job), limits, GoOn);
            ExpectSound(job, first);
            EXPECT_LE(first.Steps, 901);
            EXPECT_EQ(again.Steps, first.Steps);
            EXPECT_EQ(again.RulesBound, first.RulesBound);
            ASSERT_EQ(again.Parts.size(), first.Parts.size());
            for (std::size_t i = 0; i < first.Parts.size(); ++i) {
                EXPECT_EQ(again.Parts[i].Fill, first.Parts[i].Fill);
                EXPECT_EQ(again.Parts[i].X, first.Parts[i].X);
                EXPECT_EQ(again.Parts[i].Y, first.Parts[i].Y);
                EXPECT_EQ(again.Parts[i].Length, first.Parts[i].Length);
            }
        }
    }
}

TEST(ImproveThreads, OneThreadIsTheSearchItself) {
    const ImproveJob job = JobNumber(4);
    const ImproveOutcome outcome = ImproveOnThreads(job, Stacked(job), InSteps(700, 3, 1), GoOn);
    ImproveRun run(job, Stacked(job), InSteps(700, 3, 1), GoOn);
    Improve(run, 3);
    EXPECT_EQ(outcome.Best.Length, run.Best().Length);
    EXPECT_EQ(outcome.Best.Parts, run.Best().Parts);
    EXPECT_EQ(outcome.Best.FreeEnd, run.Best().FreeEnd);
    EXPECT_EQ(outcome.Steps, run.Steps());
}

TEST(ImproveThreads, WithinATimeTheyFindSoundLayouts) {
    for (unsigned number = 1; number <= 8; ++number) {
        const ImproveJob job = JobNumber(number);
        SCOPED_TRACE(testing::Describe(job));
        ExpectSound(job, ImproveOnThreads(job, Stacked(job), Seconds(0.05, 4), GoOn));
    }
}

// A proof holds against every other seed.
TEST(ImproveThreads, NoProvenLeastIsUndercutByAnotherSeed) {
    int proven = 0;
    for (unsigned number = 1; number <= testing::UnlessSanitized(12U, 4U); ++number) {
        const ImproveJob job = JobNumber(number);
        SCOPED_TRACE(testing::Describe(job));
        const ImproveOutcome outcome = ImproveOnThreads(job, Stacked(job), Seconds(0.3, 3), GoOn);
        proven += outcome.Bound() == outcome.Best.Length ? 1 : 0;
        for (std::uint64_t seed = 1; seed <= 3; ++seed) {
            ImproveRun run(job, Stacked(job), InSteps(3000, seed, 1), GoOn);
            Improve(run, seed);
            EXPECT_GE(run.Best().Length, outcome.Bound());
            EXPECT_LE(run.Bound(), outcome.Best.Length);
        }
    }
    EXPECT_GT(proven, 0);
}

TEST(ImproveThreads, TheReportIsAskedOnTheCallingThreadAlone) {
    const ImproveJob job = JobNumber(3);
    const auto caller = std::this_thread::get_id();
    int asked = 0;
    Long told = Stacked(job).Length;
    const auto report = [&](Long best, Long bound) {
        EXPECT_EQ(std::this_thread::get_id(), caller);
        EXPECT_LE(best, told) << "never longer than before";
        EXPECT_LE(bound, best);
        told = best;
        ++asked;
        return true;
    };
    const ImproveOutcome outcome = ImproveOnThreads(job, Stacked(job), Seconds(0.1, 4), report);
    EXPECT_GT(asked, 0);
    EXPECT_LE(outcome.Best.Length, told);
}

/// Its least is above every quick bound, so that a search does not end at once.
ImproveJob Endless() {
    std::mt19937 random(11);
    ImproveJob job{100, 1, 1, 1000, {}};
    for (int i = 0; i < 60; ++i) {
        job.Fills.push_back(
            {testing::Between(random, 20, 70), testing::Between(random, 10, 200), 1});
    }
    return job;
}

TEST(ImproveThreads, TheCallerStopsThemAll) {
    const ImproveJob job = Endless();
    for (const ImproveLimits& limits : {Seconds(0, 3), InSteps(50'000'000, 1, 3)}) {
        int asked = 0;
        const ImproveOutcome outcome =
            ImproveOnThreads(job, Stacked(job), limits, [&](Long, Long) { return ++asked < 200; });
        EXPECT_EQ(asked, 200) << "and is asked no more";
        ExpectSound(job, outcome);
    }
}

TEST(ImproveThreads, AnErrorOfTheCallerStopsThemAll) {
    const ImproveJob job = Endless();
    int asked = 0;
    const auto report = [&](Long, Long) {
        if (++asked == 20) {
            throw std::runtime_error("the caller's own");
        }
        return true;
    };
    EXPECT_THROW(ImproveOnThreads(job, Stacked(job), Seconds(0, 3), report), std::runtime_error);
    EXPECT_EQ(asked, 20);
}

TEST(ImproveThreads, MoreThreadsThanStepsAreNoTrouble) {
    const ImproveJob job = JobNumber(2);
    ExpectSound(job, ImproveOnThreads(job, Stacked(job), InSteps(2, 1, 5), GoOn));
}

TEST(ImproveThreads, StepsTakeOneThreadUnlessMoreAreAskedFor) {
    EXPECT_EQ(ThreadsFor(InSteps(100)), 1U);
    EXPECT_EQ(ThreadsFor(InSteps(100, 1, 4)), 4U);
    EXPECT_EQ(ThreadsFor(Seconds(1, 3)), 3U);
    EXPECT_EQ(ThreadsFor(Seconds(1, 100)), MostThreads);
    EXPECT_GE(ThreadsFor(Seconds(1, 0)), 1U);
    EXPECT_LE(ThreadsFor(Seconds(1, 0)), MostThreads);
}

TEST(ImproveRun, LearnsWhatIsBetterAlone) {
    const ImproveJob job{12, 1, 1, 1, {{4, 30, 1}}};
    ImproveRun run(job, {40, 1, 0}, ImproveLimits(), GoOn);
    run.Learn({30, 1, 0}, {{0, 0, 0, 30}}, 12);
    EXPECT_EQ(run.Best().Length, 30);
    EXPECT_EQ(run.BestParts().size(), 1U);
    EXPECT_EQ(run.RulesBound(), 12);
    run.Learn({35, 1, 0}, {}, 10);
    EXPECT_EQ(run.Best().Length, 30);
    EXPECT_EQ(run.BestParts().size(), 1U);
    EXPECT_EQ(run.RulesBound(), 12);
}

} // namespace
} // namespace tarn
