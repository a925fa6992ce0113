#include "improve/Bounds.h"
#include "improve/ColumnGeneration.h"
#include "improve/ImproveTesting.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

ImproveJob Job(Long width, std::vector<ImproveFill> fills, Long minPart = 1) {
    return {width, minPart, 1, 1000, std::move(fills)};
}

Long BarBound(const ImproveJob& job) {
    return BarRelaxationBound(job, 0, testing::GoOn);
}

TEST(AreaBound, IsTheAreaOverTheWidthRoundedUp) {
    EXPECT_EQ(AreaBound(Job(12, {{6, 10, 1}, {6, 10, 1}})), 10);
    EXPECT_EQ(AreaBound(Job(12, {{6, 10, 1}, {6, 11, 1}})), 11) << "126 / 12 is 10.5";
}

TEST(LongestBound, IsTheLongestFillOrItsPartsSideBySide) {
    EXPECT_EQ(LongestBound(Job(12, {{1, 30, 1}, {1, 20, 1}})), 30);
    EXPECT_EQ(LongestBound(Job(12, {{4, 31, 2}})), 16) << "two parts side by side";
    EXPECT_EQ(LongestBound(Job(12, {{4, 30, 6}})), 10) << "three side by side at most";
    EXPECT_EQ(LongestBound(Job(12, {{7, 30, 6}})), 30) << "none side by side";
    EXPECT_EQ(LongestBound(Job(12, {{4, 30, 6}}, 12)), 15) << "the minimum part allows two";
}

TEST(StackBound, SumsWhatCannotLieSideBySide) {
    EXPECT_EQ(StackBound(Job(12, {{7, 10, 3}, {8, 5, 1}, {6, 100, 1}})), 15);
}

TEST(DualFeasibleBound, CountsWidthsThatLeaveAStripNothingFits) {
    // Two of three fit side by side (5 + 5 of 12), never three: 1.5 rows, area alone gives 13.
    EXPECT_EQ(DualFeasibleBound(Job(12, {{5, 10, 1}, {5, 10, 1}, {5, 10, 1}})), 15);
    // Beside 8 of 12 nothing of 5 fits: 8 counts as 12, (120 + 100) / 12; the area alone gives 15.
    EXPECT_EQ(DualFeasibleBound(Job(12, {{8, 10, 1}, {5, 10, 1}, {5, 10, 1}})), 19);
}

TEST(QuickBound, IsTheLargestOfAll) {
    EXPECT_EQ(QuickBound(Job(12, {{12, 10, 1}, {6, 4, 1}, {6, 4, 1}})), 14) << "area";
    EXPECT_EQ(QuickBound(Job(12, {{1, 30, 1}})), 30) << "longest";
    EXPECT_EQ(QuickBound(Job(12, {{7, 10, 1}, {8, 5, 1}})), 15) << "stack";
    EXPECT_EQ(QuickBound(Job(12, {{5, 10, 1}, {5, 10, 1}, {5, 10, 1}})), 15) << "functions";
}

TEST(BarRelaxation, FindsTheLeastOverAllCrossSections) {
    EXPECT_EQ(BarBound(Job(12, {{5, 10, 1}, {5, 10, 1}, {5, 10, 1}})), 15) << "each pair for 5";
    EXPECT_EQ(BarBound(Job(12, {{8, 10, 1}, {5, 10, 1}, {5, 10, 1}})), 20);
    // Each pair fits, all three do not: 30 in pairs, though the area alone gives 14.
    EXPECT_EQ(BarBound(Job(12, {{7, 10, 1}, {5, 10, 1}, {4, 10, 1}})), 15);
}

TEST(BarRelaxation, AFillIsInACrossSectionAsOftenAsItMayHaveParts) {
    EXPECT_EQ(BarBound(Job(12, {{4, 30, 1}})), 30);
    EXPECT_EQ(BarBound(Job(12, {{4, 30, 2}})), 15);
    EXPECT_EQ(BarBound(Job(12, {{4, 30, 6}})), 10);
    EXPECT_EQ(BarBound(Job(12, {{4, 30, 6}}, 12)), 15) << "the minimum part allows two";
}

TEST(BarRelaxation, EndsEarlyWithABoundThatHolds) {
    const ImproveJob job = Job(12, {{7, 10, 1}, {5, 10, 1}, {4, 10, 1}});
    int all = 0;
    EXPECT_EQ(BarRelaxationBound(job, 0, [&] { return ++all > 0; }), 15);
    EXPECT_GT(all, 2);
    for (int stop = 1; stop < all; ++stop) {
        int asked = 0;
        EXPECT_LE(BarRelaxationBound(job, 0, [&] { return ++asked < stop; }), 15);
        EXPECT_EQ(asked, stop) << "not asked again";
    }
    EXPECT_EQ(BarRelaxationBound(job, 0, [] { return false; }), 0);
}

// Widths of hundredths of thousandths are rounded down: the bound may be smaller, never larger.
TEST(BarRelaxation, HoldsForVerySmallUnits) {
    const Long unit = 123457;
    ImproveJob fine = Job(12 * unit, {});
    ImproveJob plain = Job(12, {});
    for (const ImproveFill& fill :
         {ImproveFill{7, 100, 1}, {5, 130, 1}, {4, 90, 1}, {3, 200, 2}, {8, 20, 1}}) {
        plain.Fills.push_back(fill);
        fine.Fills.push_back({fill.Width * unit, fill.Length, fill.Parts});
    }
    fine.Fills.push_back({20, 5, 1});
    EXPECT_LE(BarBound(fine), BarBound(plain));
    EXPECT_GE(BarBound(fine), AreaBound(plain));
}

TEST(BarRelaxation, EndsWhenNoBetterBoundWillCome) {
    const ImproveJob job = Job(12, {{7, 10, 1}, {5, 10, 1}, {4, 10, 1}});
    int asked = 0;
    EXPECT_LE(BarRelaxationBound(job, 30, [&] { return ++asked > 0; }), 15);
    EXPECT_EQ(asked, 1) << "the fills one behind the other take 30: no bound is above that";
}

class BoundsOfSmallJobs : public ::testing::TestWithParam<Long> {};
INSTANTIATE_TEST_SUITE_P(Parts, BoundsOfSmallJobs, ::testing::Values(1, 3));

TEST_P(BoundsOfSmallJobs, AreNeverAboveTheLeastLength) {
    for (unsigned seed = 1; seed <= 40; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        const ImproveJob job = testing::SmallFills(random, GetParam());
        SCOPED_TRACE(testing::Describe(job));
        const Long least = testing::LeastLength::Of(job);
        EXPECT_LE(AreaBound(job), least);
        EXPECT_LE(LongestBound(job), least);
        EXPECT_LE(StackBound(job), least);
        EXPECT_LE(DualFeasibleBound(job), least);
        EXPECT_LE(QuickBound(job), least);
        EXPECT_LE(BarBound(job), least);
    }
}

TEST(BarRelaxation, IsAtLeastAsGoodAsTheOthersWhereEveryFillCountsAlone) {
    for (unsigned seed = 1; seed <= 60; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        const ImproveJob job = testing::RandomFills(random, 15, 60, 3, 200);
        SCOPED_TRACE(testing::Describe(job));
        EXPECT_GE(BarBound(job), QuickBound(job));
    }
}

} // namespace
} // namespace tarn
