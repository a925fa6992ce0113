#include "engine/EngineTesting.h"
#include "engine/PiecePlacer.h"
#include "engine/PlacedIndex.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <vector>

namespace tarn {
namespace {

using testing::Below;

/// The same questions, asked of every piece.
struct LinearScans {
    std::vector<Box> Placed;

    bool FindOverlap(const Box& piece) const {
        return std::any_of(Placed.begin(), Placed.end(),
                           [&](const Box& placed) { return Overlaps(piece, placed); });
    }
    bool IsAnyToTheRight(Single x, Single y, Single usable) const {
        return std::any_of(Placed.begin(), Placed.end(), [&](const Box& placed) {
            return Crosses({x, y, usable, y}, placed) || (placed.Y1 == y && placed.X1 > x);
        });
    }
    Single Left(Single px, Single py) const {
        Single limit = 0;
        for (auto placed = Placed.rbegin(); placed != Placed.rend(); ++placed) {
            if (placed->X2 >= limit && placed->X2 <= px && placed->Y1 <= py && py < placed->Y2) {
                limit = placed->X2;
            }
        }
        return limit;
    }
    Single Up(Single px, Single py) const {
        Single limit = 0;
        for (auto placed = Placed.rbegin(); placed != Placed.rend(); ++placed) {
            if (placed->Y2 >= limit && placed->Y2 <= py && placed->X1 <= px && px < placed->X2) {
                limit = placed->Y2;
            }
        }
        return limit;
    }
};

PlacedIndex IndexOf(const std::vector<Box>& placed) {
    PlacedIndex index;
    for (const Box& box : placed) {
        index.Add(box);
    }
    return index;
}

//   0    40   60    80     144
// 0 +----+
//   | 0  |    +-----+ 10
//   |    |    |  1  |
// 30 +----+    +-----+
const std::vector<Box> Two{{0, 0, 40, 30}, {60, 10, 80, 30}};

TEST(NearestEdgeToTheLeft, FindsTheNearestRightEdgeOnTheRow) {
    const PlacedIndex index = IndexOf(Two);
    EXPECT_EQ(index.NearestEdgeToTheLeft(144, 15), 80);
    EXPECT_EQ(index.NearestEdgeToTheLeft(144, 5), 40);
    EXPECT_EQ(index.NearestEdgeToTheLeft(70, 15), 40)
        << "an edge right of the point does not count";
    EXPECT_EQ(index.NearestEdgeToTheLeft(80, 15), 80) << "an edge at the point does";
    EXPECT_EQ(index.NearestEdgeToTheLeft(30, 15), 0);
    EXPECT_EQ(index.NearestEdgeToTheLeft(144, 30), 0)
        << "pieces that end at the row do not stop it";
    EXPECT_EQ(index.NearestEdgeToTheLeft(144, 10), 80) << "a piece that begins at the row does";
}

TEST(NearestEndUpTheRoll, FindsTheFurthestEndOnTheColumn) {
    const PlacedIndex index = IndexOf({{0, 0, 30, 40}, {10, 60, 30, 80}});
    EXPECT_EQ(index.NearestEndUpTheRoll(15, 144), 80);
    EXPECT_EQ(index.NearestEndUpTheRoll(5, 144), 40);
    EXPECT_EQ(index.NearestEndUpTheRoll(15, 70), 40) << "an end beyond the point does not count";
    EXPECT_EQ(index.NearestEndUpTheRoll(15, 80), 80) << "an end at the point does";
    EXPECT_EQ(index.NearestEndUpTheRoll(30, 144), 0)
        << "pieces that end at the column do not stop it";
    EXPECT_EQ(index.NearestEndUpTheRoll(10, 144), 80) << "a piece that begins at the column does";
    EXPECT_EQ(index.NearestEndUpTheRoll(15, 9000), 80) << "however far away";
}

TEST(FindOverlap, PiecesThatTouchAlongAnEdgeAreAccepted) {
    const PlacedIndex index = IndexOf({{0, 0, 40, 30}});
    EXPECT_FALSE(index.FindOverlap({40, 0, 50, 100}));
    EXPECT_FALSE(index.FindOverlap({0, 30, 100, 40}));
    EXPECT_TRUE(index.FindOverlap({39, 0, 49, 100}));
    EXPECT_TRUE(index.FindOverlap({0, 29, 100, 39}));
}

TEST(FindOverlap, FindsAPieceThatCrossesWithoutACornerInside) {
    EXPECT_TRUE(IndexOf({{20, 0, 40, 100}}).FindOverlap({0, 40, 60, 50}));
}

TEST(IsAnyToTheRight, FindsAPieceTheRowMeets) {
    const PlacedIndex index = IndexOf({{100, 0, 120, 50}});
    EXPECT_TRUE(index.IsAnyToTheRight(40, 10, 144));
    EXPECT_TRUE(index.IsAnyToTheRight(40, 49, 144));
    EXPECT_FALSE(index.IsAnyToTheRight(40, 50, 144)) << "the piece ends at the row";
    EXPECT_FALSE(index.IsAnyToTheRight(120, 10, 144)) << "the piece stands to the left";
}

TEST(IsAnyToTheRight, FindsAPieceThatStartsOnTheSameRowFurtherRight) {
    const PlacedIndex index = IndexOf({{100, 10, 120, 60}});
    EXPECT_TRUE(index.IsAnyToTheRight(40, 10, 144));
    EXPECT_FALSE(index.IsAnyToTheRight(100, 10, 144)) << "it does not start further right";
}

TEST(PlacedIndex, IsEmptyAtFirstAndAfterClear) {
    PlacedIndex index = IndexOf({{0, 0, 144, 500}});
    index.Clear();
    for (const PlacedIndex& empty : {PlacedIndex(), index}) {
        EXPECT_FALSE(empty.FindOverlap({0, 0, 10, 10}));
        EXPECT_EQ(empty.NearestEdgeToTheLeft(10, 10), 0);
        EXPECT_EQ(empty.NearestEndUpTheRoll(10, 10), 0);
        EXPECT_FALSE(empty.IsAnyToTheRight(0, 0, 144));
    }
}

TEST(PlacedIndex, FindsPiecesHoweverFarDownTheRoll) {
    const PlacedIndex index = IndexOf({{0, 3e9F, 10, 4e9F}, {20, 100000, 30, 100010}});
    EXPECT_TRUE(index.FindOverlap({0, 3.5e9F, 10, 3.6e9F}));
    EXPECT_TRUE(index.FindOverlap({25, 100005, 26, 100006}));
    EXPECT_FALSE(index.FindOverlap({25, 100020, 26, 100030}));
    EXPECT_EQ(index.NearestEndUpTheRoll(25, 5e9F), 100010);
    EXPECT_EQ(index.NearestEdgeToTheLeft(144, 100005), 30);
}

TEST(PlacedIndex, AnswersWhatScansOverAllPiecesAnswer) {
    for (unsigned seed = 0; seed < 200; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        std::vector<PieceSize> pieces;
        for (int i = Below(random, 60); i >= 0; --i) {
            const int units = seed % 2 == 0 ? 1 : 100;
            pieces.push_back(
                {static_cast<Single>(1 + Below(random, 150 * units)) / static_cast<Single>(units),
                 static_cast<Single>(1 + Below(random, 200 * units)) / static_cast<Single>(units)});
        }
        PiecePlacer layout;
        const Long length = layout.PlaceAll(pieces, 144, std::numeric_limits<Long>::max());
        const LinearScans all{layout.Boxes()};
        const PlacedIndex index = IndexOf(layout.Boxes());
        for (int question = 0; question < 300; ++question) {
            // Half of the points lie on edges, where a mistake would show.
            const auto i = static_cast<std::size_t>(Below(random, static_cast<int>(pieces.size())));
            const bool onEdge = Below(random, 2) == 0;
            const Single x = onEdge ? all.Placed[i].X2 : static_cast<Single>(Below(random, 160));
            const Single y =
                onEdge ? all.Placed[i].Y2 : static_cast<Single>(Below(random, length + 40));
            const Box box{x, y, x + static_cast<Single>(1 + Below(random, 60)),
                          y + static_cast<Single>(1 + Below(random, 200))};
            ASSERT_EQ(index.NearestEdgeToTheLeft(x, y), all.Left(x, y));
            ASSERT_EQ(index.NearestEndUpTheRoll(x, y), all.Up(x, y));
            ASSERT_EQ(index.FindOverlap(box).has_value(), all.FindOverlap(box));
            ASSERT_EQ(index.IsAnyToTheRight(x, y, 144), all.IsAnyToTheRight(x, y, 144));
        }
    }
}

} // namespace
} // namespace tarn
