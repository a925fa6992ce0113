#include "improve/ImproveTesting.h"
#include "improve/Skyline.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

void ExpectGap(const Gap& gap, Long x, Long y, Long width, Long left, Long right) {
    EXPECT_EQ(gap.X, x);
    EXPECT_EQ(gap.Y, y);
    EXPECT_EQ(gap.Width, width);
    EXPECT_EQ(gap.Left, left);
    EXPECT_EQ(gap.Right, right);
}

TEST(Skyline, AnEmptyRollIsOneGapWithoutWalls) {
    Skyline skyline;
    skyline.Reset(12);
    ExpectGap(skyline.Lowest(), 0, 0, 12, NoWall, NoWall);
}

//   0    4      9   12
// 0 +----+------+---+
//   | a  |      | b |     a is 4 x 6, b 3 x 2
// 2 |    |      +---+
// 6 +----+
TEST(Skyline, PiecesStandAtEitherSideOfTheGap) {
    Skyline skyline;
    skyline.Reset(12);
    EXPECT_EQ(skyline.Place(skyline.Lowest(), true, 4, 6), 0);
    ExpectGap(skyline.Lowest(), 4, 0, 8, 6, NoWall);
    EXPECT_EQ(skyline.Place(skyline.Lowest(), false, 3, 2), 9);
    ExpectGap(skyline.Lowest(), 4, 0, 5, 6, 2);
}

TEST(Skyline, AGapRaisedToItsNeighbourBecomesOneWithIt) {
    Skyline skyline;
    skyline.Reset(12);
    skyline.Place(skyline.Lowest(), true, 4, 6);
    skyline.Place(skyline.Lowest(), false, 3, 2);
    skyline.Raise(skyline.Lowest(), 2);
    EXPECT_EQ(skyline.Count(), 2U);
    ExpectGap(skyline.Lowest(), 4, 2, 8, 4, NoWall);
}

TEST(Skyline, APieceLevelWithBothWallsJoinsThem) {
    Skyline skyline;
    skyline.Reset(12);
    skyline.Place(skyline.Lowest(), true, 4, 6);
    skyline.Place(skyline.Lowest(), false, 3, 6);
    EXPECT_EQ(skyline.Place(skyline.Lowest(), true, 5, 6), 4);
    EXPECT_EQ(skyline.Count(), 1U);
    ExpectGap(skyline.Lowest(), 0, 6, 12, NoWall, NoWall);
}

//   0  2    6    12
// 0 +--+----+-----+
//   |  |    |     |    a piece of 4 x 3 at (2, 5)
// 5 |  +----+     |
// 8 |  +----+     |
TEST(Skyline, APieceCanBeLaidAnywhereAboveTheGap) {
    Skyline skyline;
    skyline.Reset(12);
    skyline.Cover(skyline.Lowest(), 2, 4, 8);
    EXPECT_EQ(skyline.Count(), 3U);
    ExpectGap(skyline.Lowest(), 0, 0, 2, NoWall, 8);
    skyline.Cover(skyline.Lowest(), 0, 2, 8);
    EXPECT_EQ(skyline.Count(), 2U) << "level with the first";
    ExpectGap(skyline.Lowest(), 6, 0, 6, 8, NoWall);
    skyline.Cover(skyline.Lowest(), 7, 5, 1);
    ExpectGap(skyline.Lowest(), 6, 0, 1, 8, 1);
    skyline.Cover(skyline.Lowest(), 6, 1, 1);
    ExpectGap(skyline.Lowest(), 6, 1, 6, 7, NoWall);
    skyline.Cover(skyline.Lowest(), 6, 6, 8);
    EXPECT_EQ(skyline.Count(), 1U);
    ExpectGap(skyline.Lowest(), 0, 8, 12, NoWall, NoWall);
}

TEST(Skyline, OfEquallyLowGapsTheLeftmostComesFirst) {
    Skyline skyline;
    skyline.Reset(12);
    skyline.Place(skyline.Lowest(), true, 3, 5);
    skyline.Place(skyline.Lowest(), true, 3, 2);
    skyline.Place(skyline.Lowest(), true, 3, 5);
    skyline.Place(skyline.Lowest(), true, 3, 2);
    ExpectGap(skyline.Lowest(), 3, 2, 3, 3, 3);
}

/// The skyline as a height for each unit of width.
class Heights {
  public:
    explicit Heights(Long width)
        : heights_(static_cast<std::size_t>(width), 0) {}

    Gap Lowest() const {
        const auto low = std::min_element(heights_.begin(), heights_.end());
        auto end = low;
        while (end != heights_.end() && *end == *low) {
            ++end;
        }
        const auto at = [&](auto i) { return static_cast<Long>(i - heights_.begin()); };
        return {0,
                at(low),
                *low,
                at(end) - at(low),
                low == heights_.begin() ? NoWall : *(low - 1) - *low,
                end == heights_.end() ? NoWall : *end - *low};
    }
    void Fill(Long x, Long width, Long length) {
        for (Long i = x; i < x + width; ++i) {
            heights_[static_cast<std::size_t>(i)] += length;
        }
    }

  private:
    std::vector<Long> heights_;
};

TEST(Skyline, FindsTheGapsThatHeightsByUnitShow) {
    for (unsigned seed = 1; seed <= 50; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        const Long width = testing::Between(random, 1, 30);
        Skyline skyline;
        skyline.Reset(width);
        Heights heights(width);
        for (int step = 0; step < 60; ++step) {
            const Gap gap = skyline.Lowest();
            const Gap expected = heights.Lowest();
            ExpectGap(gap, expected.X, expected.Y, expected.Width, expected.Left, expected.Right);
            const Long wall = std::min(gap.Left, gap.Right);
            if (wall < NoWall && testing::Below(random, 3) == 0) {
                skyline.Raise(gap, wall);
                heights.Fill(gap.X, gap.Width, wall);
                continue;
            }
            const Long piece = testing::Between(random, 1, gap.Width);
            const Long length = testing::Between(random, 1, 5);
            const Long x = skyline.Place(gap, testing::Below(random, 2) == 0, piece, length);
            EXPECT_TRUE(x == gap.X || x + piece == gap.X + gap.Width);
            heights.Fill(x, piece, length);
        }
    }
}

} // namespace
} // namespace tarn
