#include "Sanitized.h"
#include "engine/EngineTesting.h"
#include "improve/Bounds.h"
#include "improve/ExactSearch.h"
#include "improve/ImproveTesting.h"
#include "improve/Improver.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using testing::Between;
using testing::FaultOf;
using testing::GoOn;

constexpr std::int64_t ManyCases = 50'000'000;

/// The least length by an exact search alone, from the bound upwards; its layouts are looked at.
Long LeastByDeciding(const ImproveJob& job) {
    ExactSearch search(job);
    for (Long roof = 1;; ++roof) {
        const ExactAnswer answer = search.Decide(roof, ManyCases, GoOn);
        EXPECT_NE(answer, ExactAnswer::Unknown);
        if (answer != ExactAnswer::None) {
            EXPECT_EQ(FaultOf(job, search.Layout()), "");
            EXPECT_LE(MeritOf(job, search.Layout()).Length, roof);
            return roof;
        }
    }
}

/// Up to so many undivided fills, equal ones among them.
ImproveJob FewFills(std::mt19937& random, int most) {
    ImproveJob job = testing::RandomFills(random, most, Between(random, 3, 6), 1, 5);
    if (Between(random, 0, 2) == 0) {
        job.Fills.push_back(job.Fills.front());
        job.Fills.resize(std::min(job.Fills.size(), static_cast<std::size_t>(most)));
    }
    return job;
}

TEST(ExactSearch, DecidesAsTryingEveryPlaceDoes) {
    constexpr unsigned Jobs = testing::UnlessSanitized(50U, 20U);
    constexpr int MostFills = testing::UnlessSanitized(7, 6);
    for (unsigned seed = 1; seed <= Jobs * testing::JobsFactor(); ++seed) {
        std::mt19937 random(seed);
        const ImproveJob job = FewFills(random, MostFills);
        SCOPED_TRACE(std::to_string(seed) + ": " + testing::Describe(job));
        ASSERT_EQ(LeastByDeciding(job), testing::LeastLength::Of(job));
    }
}

// Wider rolls than trying every place can do: beside the search from another side.
TEST(ExactSearch, ProvesNoLeastThatAnotherSearchUndercuts) {
    int proven = 0;
    for (unsigned seed = 1; seed <= 30; ++seed) {
        std::mt19937 random(seed);
        const ImproveJob job = testing::RandomFills(random, 9, 40, 1, 60);
        SCOPED_TRACE(std::to_string(seed) + ": " + testing::Describe(job));
        const Long least = LeastByDeciding(job);
        EXPECT_GE(least, QuickBound(job));
        ImproveRun run(job, {static_cast<Long>(StackedLength(job)) + 1, 100, 0}, {0, 3000, seed},
                       GoOn);
        Improve(run, seed);
        EXPECT_GE(run.Best().Length, least);
        EXPECT_LE(run.Bound(), least);
        proven += run.IsLeast() ? 1 : 0;
    }
    EXPECT_GE(proven, 20);
}

//   0     5   8
// 0 +-----+---+
//   |     |   |      three of 5 x 10 and one of 3 x 30 on a roll of 8: the area takes 30
// 10+-----+   |
//   |     |   |
TEST(ExactSearch, FindsALayoutWithNothingToSpare) {
    const ImproveJob job{8, 1, 1, 100, {{5, 10, 1}, {3, 30, 1}, {5, 10, 1}, {5, 10, 1}}};
    ExactSearch search(job);
    EXPECT_EQ(search.Decide(29, ManyCases, GoOn), ExactAnswer::None);
    EXPECT_EQ(search.Decide(30, ManyCases, GoOn), ExactAnswer::Found);
    EXPECT_EQ(FaultOf(job, search.Layout()), "");
}

// Three of 5 side by side are wider than the roll, though the area would take 15.
TEST(ExactSearch, ProvesMoreThanTheAreaDoes) {
    const ImproveJob job{12, 1, 1, 100, {{5, 10, 1}, {5, 10, 1}, {5, 10, 1}}};
    ExactSearch search(job);
    EXPECT_EQ(search.Decide(19, ManyCases, GoOn), ExactAnswer::None);
    EXPECT_EQ(search.Decide(20, ManyCases, GoOn), ExactAnswer::Found);
}

ImproveJob ManyFills() {
    std::mt19937 random(5);
    ImproveJob job{100, 1, 1, 1000, {}};
    for (int i = 0; i < 25; ++i) {
        job.Fills.push_back({Between(random, 10, 60), Between(random, 10, 200), 1});
    }
    return job;
}

TEST(ExactSearch, GivesUpAfterSoManyCases) {
    const ImproveJob job = ManyFills();
    ExactSearch search(job);
    const Long roof = AreaBound(job) + 20;
    std::int64_t asked = 0;
    const auto count = [&] { return ++asked > 0; };
    EXPECT_EQ(search.Decide(roof, 6400, count), ExactAnswer::Unknown);
    EXPECT_LE(asked, 6400 / ExactSearch::CasesPerStep);
    EXPECT_GT(asked, 0);
}

TEST(ExactSearch, StopsWhenItIsTold) {
    const ImproveJob job = ManyFills();
    ExactSearch search(job);
    int asked = 0;
    const Long roof = AreaBound(job) + 20;
    EXPECT_EQ(search.Decide(roof, ManyCases, [&] { return ++asked < 3; }), ExactAnswer::Unknown);
    EXPECT_EQ(asked, 3);
}

TEST(ExactSearch, ToldToStopItDecidesAgainAsIfNothingHadBeen) {
    const ImproveJob job{12, 1, 1, 100, {{5, 10, 1}, {7, 10, 1}, {4, 10, 1}, {3, 9, 1}, {8, 2, 1}}};
    ExactSearch search(job);
    const Long least = LeastByDeciding(job);
    for (std::int64_t cases = 1; cases < 40; ++cases) {
        search.Decide(least - 1, cases, GoOn);
        search.Decide(least, cases, GoOn);
    }
    EXPECT_EQ(search.Decide(least - 1, ManyCases, GoOn), ExactAnswer::None);
    EXPECT_EQ(search.Decide(least, ManyCases, GoOn), ExactAnswer::Found);
}

TEST(ExactSearch, LeavesDividedFillsAndPatternsAlone) {
    EXPECT_TRUE(ExactSearch::CanDecide({12, 1, 1, 100, {{5, 10, 1}}}));
    EXPECT_FALSE(ExactSearch::CanDecide({12, 1, 1, 100, {{5, 10, 2}}}));
    EXPECT_TRUE(ExactSearch::CanDecide({12, 6, 1, 100, {{5, 10, 2}}})) << "too short to be divided";
    EXPECT_FALSE(ExactSearch::CanDecide({12, 1, 1, 100, {{5, 10, 1, 0}, {5, 10, 1, 0}}, {0, 4}}));
    EXPECT_FALSE(ExactSearch::CanDecide({12, 1, 1, 100, {}}));
}

TEST(LengthMeasures, NeverCountWhatFitsBelowTheRoofMoreThanTheRoof) {
    for (unsigned seed = 1; seed <= 60; ++seed) {
        std::mt19937 random(seed);
        const ImproveJob job = testing::RandomFills(random, 8, 10, 1, 20);
        SCOPED_TRACE(std::to_string(seed) + ": " + testing::Describe(job));
        const Long roof = Between(random, 20, 45);
        for (const LengthMeasure& measure : LengthMeasures(job, roof, 1000)) {
            for (unsigned set = 0; set < 1U << job.Fills.size(); ++set) {
                Long length = 0;
                Area64 counted = 0;
                for (std::size_t i = 0; i < job.Fills.size(); ++i) {
                    length += (set >> i & 1U) != 0 ? job.Fills[i].Length : 0;
                    counted += (set >> i & 1U) != 0 ? measure.Of[i] : 0;
                }
                if (length <= roof) {
                    EXPECT_LE(counted, measure.Roof);
                }
            }
        }
    }
}

} // namespace
} // namespace tarn
