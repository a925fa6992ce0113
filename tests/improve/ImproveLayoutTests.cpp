#include "improve/ImproveLayout.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

TEST(LayoutMerit, ShorterThenFewerPartsThenLargerFreeEnd) {
    const LayoutMerit merit{100, 5, 40};
    EXPECT_TRUE((LayoutMerit{99, 9, 0}.BetterThan(merit)));
    EXPECT_FALSE((LayoutMerit{101, 1, 90}.BetterThan(merit)));
    EXPECT_TRUE((LayoutMerit{100, 4, 0}.BetterThan(merit)));
    EXPECT_FALSE((LayoutMerit{100, 6, 90}.BetterThan(merit)));
    EXPECT_TRUE((LayoutMerit{100, 5, 41}.BetterThan(merit)));
    EXPECT_FALSE(merit.BetterThan(merit));
}

TEST(JoinAndOrder, JoinsPartsOfOneFillThatLieEndToEnd) {
    std::vector<ImprovePart> parts{{0, 4, 20, 5}, {0, 4, 10, 10}, {1, 0, 0, 7}, {0, 4, 0, 10}};
    JoinAndOrder(parts);
    ASSERT_EQ(parts.size(), 2U);
    EXPECT_EQ(parts[0].Fill, 1U);
    EXPECT_EQ(parts[1].Fill, 0U);
    EXPECT_EQ(parts[1].Y, 0);
    EXPECT_EQ(parts[1].Length, 25);
}

TEST(JoinAndOrder, LeavesPartsApartThatLieBesideOrAreOfOtherFills) {
    std::vector<ImprovePart> parts{{0, 0, 10, 10}, {0, 1, 0, 10}, {1, 0, 20, 7}};
    JoinAndOrder(parts);
    ASSERT_EQ(parts.size(), 3U);
    EXPECT_EQ(parts[0].X, 1) << "along the roll";
    EXPECT_EQ(parts[2].Fill, 1U);
}

//    0    4       12
//  0 +----+-------+
//    | a  |   b   |     a is 4 x 10, b 8 x 6: free are 8 x 4 behind b
//  6 |    +-------+
// 10 +----+
TEST(LargestFreeEnd, IsTheLargestRectangleBehindTheParts) {
    EXPECT_EQ(LargestFreeEnd({{0, 4, 10}, {4, 8, 6}}, 12, 10), 32);
    EXPECT_EQ(LargestFreeEnd({{0, 4, 10}, {4, 8, 6}}, 12, 13), 56) << "7 behind b, or 3 x 12";
    EXPECT_EQ(LargestFreeEnd({{0, 4, 3}, {4, 8, 2}}, 12, 10), 84) << "7 x 12, not 8 x 8";
    EXPECT_EQ(LargestFreeEnd({}, 12, 10), 120);
}

TEST(MeritOf, CountsLengthPartsAndFreeEnd) {
    const ImproveJob job{12, 1, 1, 100, {{4, 10, 1}, {8, 6, 1}}};
    const LayoutMerit merit = MeritOf(job, {{0, 0, 0, 10}, {1, 4, 0, 6}});
    EXPECT_EQ(merit.Length, 10);
    EXPECT_EQ(merit.Parts, 2);
    EXPECT_EQ(merit.FreeEnd, 32);
}

} // namespace
} // namespace tarn
