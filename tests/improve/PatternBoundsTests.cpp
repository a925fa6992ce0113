#include "improve/PatternBounds.h"
#include "improve/PatternTesting.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using testing::GoOn;

constexpr Long Far = 100000;

/// A room of one or two drops and a fill.
ImproveJob RandomRoom(std::mt19937& random, Long most) {
    ImproveJob job;
    const Long drops = testing::Between(random, 1, 2);
    job.Width = testing::Between(random, 2, 4);
    job.MinPart = testing::Between(random, 1, 3);
    job.Repeat = {0, testing::Between(random, 1, 6), false};
    job.Repeat.HalfDrop = job.Repeat.Along % 2 == 0 && testing::Below(random, 2) == 0;
    if (testing::Below(random, 2) == 0 && (drops == 1 || job.Width % 2 == 0)) {
        job.Repeat.Across = drops == 1 ? testing::Between(random, 1, job.Width) : 2;
    }
    const Long length = testing::Between(random, 2, 12 / drops);
    for (Long drop = 0; drop < drops; ++drop) {
        job.Fills.push_back({job.Width, length, 1, 0, drop * job.Width, drop});
    }
    const Long begin = drops * job.Width;
    const Long left = job.Repeat.Across == 0 ? 0 : begin % job.Repeat.Across;
    job.Fills.push_back({testing::Between(random, 1, std::max(1, job.Width - left)), length,
                         testing::Between(random, 1, most), 0, begin, drops});
    return job;
}

TEST(OneRoomBound, IsNeverAboveTheLeast) {
    int reached = 0;
    for (unsigned seed = 1; seed <= 200; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        const ImproveJob job = RandomRoom(random, 3);
        SCOPED_TRACE(testing::Describe(job));
        const Long least = testing::LeastPatternLength::Of(job);
        const Long bound = PatternBound(job, Far, GoOn);
        EXPECT_LE(bound, least);
        reached += bound == least ? 1 : 0;
    }
    EXPECT_GT(reached, 100);
}

TEST(PatternStackBound, IsNeverAboveTheLeast) {
    int reached = 0;
    for (unsigned seed = 1; seed <= 300; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        const ImproveJob job = testing::SmallPattern(random);
        SCOPED_TRACE(testing::Describe(job));
        const Long least = testing::LeastPatternLength::Of(job);
        const Long bound = PatternStackBound(job, Far, GoOn);
        EXPECT_LE(bound, least);
        reached += bound == least ? 1 : 0;
    }
    EXPECT_GT(reached, 60);
}

// Drops of two rooms, two each, 16 and 20 beyond whole repeats of 24. In turns they leave 12 free.
TEST(PatternStackBound, TriesEveryOrder) {
    ImproveJob job{144, 36, 1, 1000, {}, {0, 24, false}};
    job.Fills = {
        {144, 136, 1, 0}, {144, 136, 1, 0, 144, 1}, {144, 92, 1, 1}, {144, 92, 1, 1, 144, 1}};
    EXPECT_EQ(PatternStackBound(job, Far, GoOn), 468);
    EXPECT_EQ(PatternStackBound(job, 460, GoOn), 460) << "no further than what is known";
    job.Repeat.HalfDrop = true;
    EXPECT_EQ(PatternStackBound(job, Far, GoOn), 456);
    job.Fills.push_back({73, 12, 1});
    job.Repeat.HalfDrop = false;
    EXPECT_EQ(PatternStackBound(job, Far, GoOn), 468) << "a free piece fills what was left free";
}

TEST(PatternStackBound, IsNoneWithoutFillsThatMatchAlong) {
    ImproveJob job{144, 36, 1, 1000, {}, {18, 0, false}};
    job.Fills = {{144, 136, 1, 0}, {144, 136, 1, 0, 144, 1}};
    EXPECT_EQ(PatternStackBound(job, Far, GoOn), 0);
    EXPECT_EQ(OneRoomBound(job, Far), 0);
}

TEST(PatternStackBound, ProvesWhatItCanUntilItIsStopped) {
    ImproveJob job{144, 36, 1, 1000, {}, {0, 24, false}};
    for (Long room = 0; room < 9; ++room) {
        job.Fills.push_back({144, 100 + 7 * room, 1, room});
        job.Fills.push_back({144, 100 + 7 * room, 1, room, 144, 1});
    }
    const Long sum = static_cast<Long>(StackedLength(job));
    EXPECT_GE(PatternStackBound(job, Far, GoOn), sum);
    EXPECT_GE(PatternStackBound(job, Far, [] { return false; }), sum);
}

TEST(OneRoomBound, CountsWhatThePatternLosesBetweenParts) {
    ImproveJob job{144, 36, 1, 1000, {}, {18, 24, false}};
    job.Fills = {{144, 188, 1, 0}, {36, 188, 4, 0, 144, 1}};
    EXPECT_EQ(OneRoomBound(job, Far), 236) << "four parts of 47 would not match";
    job.Repeat = {0, 24, true};
    EXPECT_EQ(OneRoomBound(job, Far), 248);
}

} // namespace
} // namespace tarn
