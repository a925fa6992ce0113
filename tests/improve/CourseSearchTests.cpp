#include "Sanitized.h"
#include "improve/Bounds.h"
#include "improve/ColumnGeneration.h"
#include "improve/CourseSearch.h"
#include "improve/ImproveTesting.h"
#include "improve/Improver.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using testing::Between;
using testing::GoOn;

constexpr std::int64_t Many = 100'000;

bool Proves(const ImproveJob& job, Long roof, std::int64_t relaxations = Many,
            std::size_t number = 0) {
    CourseSearch search(job, number);
    return search.ProvesLonger(roof, relaxations, GoOn);
}

Long KnownBound(const ImproveJob& job) {
    return std::max(QuickBound(job), BarRelaxationBound(job, 0, GoOn));
}

// Beside 134 x 120 there is room for 35 alone, 128 long. The other 8 could lie twice side by side
// beside 98, 4 long, were the parts not 18 long at least: 353 then, 355 as it is.
ImproveJob RestTooShort() {
    return {
        180, 18, 1, 100, {{170, 131, 5}, {134, 120, 5}, {57, 150, 5}, {35, 128, 5}, {98, 76, 5}}};
}

TEST(CourseSearch, ProvesWhatTheBarRelaxationCannot) {
    const ImproveJob job = RestTooShort();
    EXPECT_EQ(KnownBound(job), 353);
    EXPECT_TRUE(Proves(job, 353));
    EXPECT_TRUE(Proves(job, 354));
    EXPECT_TRUE(Proves(job, 354, Many, 1)) << "from the other end";
}

TEST(CourseSearch, ProvesNothingOfALengthThatThereIs) {
    EXPECT_FALSE(Proves(RestTooShort(), 355, 5000));
}

TEST(CourseSearch, TellsTheLeastOfAJobThatEndsSo) {
    if (testing::IsSanitized) {
        GTEST_SKIP()
            << "takes a quarter of a minute there, and the tests around it run the same code";
    }
    const ImproveJob job = RestTooShort();
    ImproveRun run(job, {static_cast<Long>(StackedLength(job)), 100, 0}, {0, 3'000'000, 1}, GoOn);
    Improve(run, 1);
    EXPECT_TRUE(run.IsLeast());
    EXPECT_EQ(run.Bound(), 355);
    EXPECT_EQ(testing::FaultOf(job, run.BestParts()), "");
}

// The whole width, and what leaves less than the narrowest needs, lies by itself.
TEST(CourseSearch, LeavesOutWhatLiesAlone) {
    const ImproveJob job{10, 2, 1, 100, {{10, 7, 2}, {8, 9, 2}, {3, 4, 2}}};
    EXPECT_FALSE(Proves(job, 18, 1000)) << "7 and 9, and 2 with both parts of 3 side by side";
    EXPECT_TRUE(Proves(job, 17));
    const ImproveJob whole{10, 2, 1, 100, {{10, 7, 2}, {10, 9, 2}}};
    EXPECT_FALSE(Proves(whole, 16));
    EXPECT_TRUE(Proves(whole, 15));
}

/// A small job in which some fill may be divided.
ImproveJob SmallDivided(std::mt19937& random) {
    ImproveJob job;
    do {
        job = testing::RandomFills(random, Between(random, 2, 5), Between(random, 3, 7), 3,
                                   Between(random, 4, 9));
    } while (TotalArea(job) > 60 || !AnyDivisible(job));
    return job;
}

TEST(CourseSearch, NeverProvesThatTheLeastIsLonger) {
    constexpr unsigned Jobs = testing::UnlessSanitized(100U, 10U);
    for (unsigned seed = 1; seed <= Jobs * testing::JobsFactor(); ++seed) {
        std::mt19937 random(seed);
        const ImproveJob job = SmallDivided(random);
        SCOPED_TRACE(std::to_string(seed) + ": " + testing::Describe(job));
        const Long least = testing::LeastLength::Of(job);
        for (const std::size_t number : {0U, 1U}) {
            CourseSearch search(job, number);
            ASSERT_FALSE(search.ProvesLonger(least, 1500, GoOn));
            ASSERT_FALSE(search.ProvesLonger(least + 1, 500, GoOn));
        }
        if (KnownBound(job) < least) {
            EXPECT_TRUE(Proves(job, least - 1)) << least;
        }
    }
}

// Wider rolls than trying every place can do: beside the search from another side.
TEST(CourseSearch, NeverProvesThatALayoutOfAnotherSearchIsLonger) {
    constexpr unsigned Jobs = testing::UnlessSanitized(40U, 3U);
    for (unsigned seed = 1; seed <= Jobs * testing::JobsFactor(); ++seed) {
        std::mt19937 random(seed);
        ImproveJob job = testing::RandomFills(random, 9, 40, 4, 60);
        job.MinPart = Between(random, 4, 20);
        if (!CourseSearch::CanTry(job)) {
            continue;
        }
        SCOPED_TRACE(std::to_string(seed) + ": " + testing::Describe(job));
        ImproveRun run(job, {static_cast<Long>(StackedLength(job)) + 1, 100, 0}, {0, 4000, seed},
                       GoOn);
        Improve(run, seed);
        EXPECT_FALSE(Proves(job, run.Best().Length, 2000, seed % 2));
    }
}

TEST(CourseSearch, EndsAfterSoManyRelaxationsAndGoesOnFromThere) {
    const ImproveJob job = RestTooShort();
    CourseSearch search(job, 0);
    int asked = 0;
    const auto count = [&] { return ++asked > 0; };
    EXPECT_FALSE(search.ProvesLonger(354, 2000, count));
    EXPECT_EQ(asked, 2000);
    bool proven = false;
    for (int more = 0; more < 100 && !proven; ++more) {
        proven = search.ProvesLonger(354, 2000, count);
    }
    EXPECT_TRUE(proven);
}

TEST(CourseSearch, EndsWhenItIsTold) {
    CourseSearch search(RestTooShort(), 0);
    int asked = 0;
    EXPECT_FALSE(search.ProvesLonger(354, Many, [&] { return ++asked < 30; }));
    EXPECT_EQ(asked, 30);
}

TEST(CourseSearch, IsForAFewDividedFillsWithoutAPattern) {
    EXPECT_TRUE(CourseSearch::CanTry({12, 1, 1, 100, {{5, 10, 2}}}));
    EXPECT_FALSE(CourseSearch::CanTry({12, 1, 1, 100, {{5, 10, 1}}})) << "undivided";
    EXPECT_FALSE(CourseSearch::CanTry({12, 6, 1, 100, {{5, 10, 2}}})) << "too short to be divided";
    EXPECT_FALSE(CourseSearch::CanTry({12, 1, 1, 100, {{5, 10, 2, 0}, {5, 10, 2, 0}}, {0, 4}}));
    const std::vector<ImproveFill> many(13, {5, 10, 2});
    EXPECT_FALSE(CourseSearch::CanTry({12, 1, 1, 100, many}));
}

// Fills of very many parts make very many states.
TEST(CourseSearch, LeavesFillsOfManyPartsUnwatched) {
    const ImproveJob job{10000, 1, 1, 100000, {{1, 5000, 5000}, {2, 4000, 4000}}};
    EXPECT_FALSE(Proves(job, 1));
}

TEST(Watch, KnowsTheStatesThatThereIsRoomFor) {
    const ImproveJob job{10, 5, 1, 100, {{4, 10, 3}, {3, 30, 2}, {9, 3, 1}}};
    const Watch watch(job, {0, 1});
    // 0 to 2 of 4, of which the minimum part allows two, beside 0 to 2 of 3.
    std::vector<std::vector<Long>> states;
    for (std::size_t state = 0; state < watch.States(); ++state) {
        states.push_back({watch.PartsIn(state, 0), watch.PartsIn(state, 1), watch.Room(state)});
    }
    EXPECT_EQ(states,
              (std::vector<std::vector<Long>>{
                  {0, 0, 10}, {0, 1, 7}, {0, 2, 4}, {1, 0, 6}, {1, 1, 3}, {1, 2, 0}, {2, 0, 2}}));
}

/// A course of one watched fill, by its parts side by side along each stretch.
Course CourseOf(std::vector<std::size_t> states, bool fromStart, bool toEnd) {
    return {std::move(states), fromStart, toEnd, {Beyond::Unknown}};
}

std::vector<std::pair<std::size_t, std::size_t>> WholeParts(const Watch& watch,
                                                            const Course& course) {
    std::vector<std::pair<std::size_t, std::size_t>> parts;
    for (const PartInCourse& part : watch.WholeParts(course)) {
        parts.emplace_back(part.First, part.End);
    }
    return parts;
}

TEST(Watch, OfPartsSideBySideTheFirstEndsFirst) {
    using Parts = std::vector<std::pair<std::size_t, std::size_t>>;
    const ImproveJob job{10, 1, 1, 100, {{3, 30, 6}}};
    const Watch watch(job, {0});
    ASSERT_EQ(watch.States(), 4U) << "0 to 3 parts";
    const Course inside = CourseOf({0, 1, 2, 1, 0}, false, false);
    EXPECT_EQ(WholeParts(watch, inside), (Parts{{1, 3}, {2, 4}}));
    EXPECT_EQ(watch.PartsOf(inside, 0), 2);
    const Course open = CourseOf({1, 2, 0, 1}, false, false);
    EXPECT_EQ(WholeParts(watch, open), (Parts{{1, 2}})) << "one reaches before, one behind";
    EXPECT_EQ(watch.PartsOf(open, 0), 3);
    EXPECT_EQ(watch.ReachBefore(open, 0), 1);
    EXPECT_EQ(watch.ReachBehind(open, 0), 1);
    const Course all = CourseOf({1, 2, 0, 1}, true, true);
    EXPECT_EQ(WholeParts(watch, all), (Parts{{0, 2}, {1, 2}, {3, 4}}));
    EXPECT_EQ(watch.ReachBefore(all, 0), 0);
    EXPECT_EQ(watch.ReachBehind(all, 0), 0);
}

// Two parts of 4 x 12 side by side, or one of them alone, of a roll of 10.
TEST(CourseRelaxation, CountsWhatACourseTakes) {
    const ImproveJob job{10, 5, 1, 100, {{4, 12, 2}, {6, 4, 1}}};
    const Watch watch(job, {0});
    ASSERT_EQ(watch.States(), 3U);
    CourseRelaxation relaxation(job, watch);
    const auto longest = [&](const Course& course) {
        Long roof = 0;
        while (relaxation.IsLonger(course, roof)) {
            ++roof;
        }
        return roof;
    };
    EXPECT_EQ(longest(CourseOf({}, false, false)), 8) << "4 beside 6, then 8 in two parts";
    EXPECT_EQ(longest(CourseOf({0}, false, false)), 9) << "1 without it at least: 8.5 and more";
    EXPECT_EQ(longest(CourseOf({0, 1, 0}, true, true)), 14) << "undivided, and 2 without it";
    Course alone = CourseOf({0, 1, 0}, false, false);
    alone.Others = {Beyond::None};
    EXPECT_EQ(longest(alone), 14);
    alone.Others = {Beyond::Some};
    EXPECT_EQ(longest(alone), 14) << "a part of 5 and one of 7";
    relaxation.RuleOut(2);
    EXPECT_EQ(longest(CourseOf({}, false, false)), 12) << "never side by side";
}

} // namespace
} // namespace tarn
