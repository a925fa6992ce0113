#include "base/RunTimeError.h"
#include "engine/EngineTesting.h"
#include "engine/PiecePlacer.h"

#include <gtest/gtest.h>

#include <limits>
#include <ostream>
#include <vector>

namespace tarn {

bool operator==(const Box& a, const Box& b) {
    return a.X1 == b.X1 && a.Y1 == b.Y1 && a.X2 == b.X2 && a.Y2 == b.Y2;
}

void PrintTo(const Box& box, std::ostream* out) {
    *out << "(" << box.X1 << ", " << box.Y1 << ")-(" << box.X2 << ", " << box.Y2 << ")";
}

namespace {

using testing::Point;

constexpr PieceSize Nothing{0, 0}; ///< no corner is useless for it

/// A roll on which pieces of the given sizes were placed.
PiecePlacer PlacerWith(Single usableWidth, const std::vector<PieceSize>& pieces) {
    PiecePlacer placer;
    placer.Clear(usableWidth);
    for (const PieceSize& piece : pieces) {
        placer.Place(piece, Nothing);
    }
    return placer;
}

std::vector<Point> Corners(const PiecePlacer& placer) {
    std::vector<Point> corners;
    for (std::size_t k = 0; k < placer.Corners().Count(); ++k) {
        corners.push_back({placer.Corners()[k].X, placer.Corners()[k].Y});
    }
    return corners;
}

Box Last(const PiecePlacer& placer) {
    return placer.Boxes().back();
}

TEST(Place, TheFirstPieceGoesToTheStartOfTheRoll) {
    const PiecePlacer placer = PlacerWith(144, {{60, 100}});
    EXPECT_EQ(Last(placer), (Box{0, 0, 60, 100}));
    EXPECT_EQ(Corners(placer), (std::vector<Point>{{60, 0}, {0, 100}}));
}

//   0      60        100  144
// 0 +------+----------+----+
//   |  0   |          | 1  |   the second stands alone on its row: pushed to the edge
//   |      |          +----+ 50
// 100+------+
TEST(Place, APieceAloneOnItsRowIsPushedToTheFarEdge) {
    const PiecePlacer placer = PlacerWith(144, {{60, 100}, {44, 50}});
    EXPECT_EQ(Last(placer), (Box{100, 0, 144, 50}));
    EXPECT_EQ(Corners(placer), (std::vector<Point>{{144, 0}, {60, 50}, {0, 100}}));
}

//   0     40         100  144
// 0 +-----+-----------+----+
//   |  0  |           | 1  | 30
// 60|     +---+-------+----+    2 takes (40, 30) and is pushed; 3 finds 2 on its row
TEST(Place, APieceWithAnotherToItsRightStaysAtItsCorner) {
    const PiecePlacer placer = PlacerWith(144, {{40, 60}, {44, 30}, {50, 20}, {50, 20}});
    EXPECT_EQ(placer.Boxes()[2], (Box{94, 30, 144, 50}));
    EXPECT_EQ(Last(placer), (Box{94, 50, 144, 70})) << "its corner (40, 50) has a free row";
    // Beside a piece that stands left of the edge there is one to the right.
    const PiecePlacer beside = PlacerWith(144, {{40, 60}, {104, 20}, {30, 40}, {60, 30}});
    EXPECT_EQ(beside.Boxes()[2], (Box{114, 20, 144, 60}));
    EXPECT_EQ(Last(beside), (Box{0, 60, 60, 90}));
}

TEST(Place, APieceThatFillsTheRestExactlyTouchesTheFarEdge) {
    EXPECT_EQ(Last(PlacerWith(144, {{60, 100}, {84, 100}})), (Box{60, 0, 144, 100}));
}

// The strip of 12 x 168 has a free row at its corner (72, 120), but the far edge is taken lower
// down: pushed there it would lie on another piece.
TEST(Place, APushIntoAPieceThatBeginsLowerDownIsNotMade) {
    const std::vector<PieceSize> rooms{{36, 132}, {48, 120}, {72, 60}, {36, 96},
                                       {36, 84},  {24, 120}, {12, 168}};
    const PiecePlacer placer = PlacerWith(144, rooms);
    const Box strip = Last(placer);
    for (std::size_t i = 0; i + 1 < placer.Boxes().size(); ++i) {
        EXPECT_FALSE(Overlaps(strip, placer.Boxes()[i])) << i;
    }
}

TEST(Place, APieceWiderThanTheUsableWidthGoesBehindEverything) {
    const PiecePlacer placer = PlacerWith(144, {{60, 100}, {145, 10}});
    EXPECT_EQ(Last(placer), (Box{0, 100, 145, 110}));
    EXPECT_EQ(Corners(placer), (std::vector<Point>{{60, 0}, {0, 100}, {0, 110}}))
        << "no corner is replaced, the point behind it is appended";
}

TEST(Place, APieceThatFitsNowhereTakesNoCorner) {
    const PiecePlacer placer = PlacerWith(142, {{144, 10}, {142, 10}});
    EXPECT_EQ(placer.Boxes()[0], (Box{0, 0, 144, 10}));
    EXPECT_EQ(Corners(PlacerWith(142, {{144, 10}})), (std::vector<Point>{{0, 0}, {0, 10}}))
        << "its corner was not taken";
    EXPECT_EQ(Last(placer), (Box{0, 10, 142, 20}));
}

TEST(Place, APieceTooWideByLessThanHalfAUnitFits) {
    EXPECT_EQ(Corners(PlacerWith(144, {{144.004F, 10}})),
              (std::vector<Point>{{144.004F, 0}, {0, 10}}));
    EXPECT_EQ(Corners(PlacerWith(144, {{144.01F, 10}})), (std::vector<Point>{{0, 0}, {0, 10}}));
}

TEST(Place, EqualCornersOfTwoPlacementsAreKeptOnce) {
    // The point below each of the two moves left to (0, 100).
    EXPECT_EQ(Corners(PlacerWith(144, {{72, 100}, {72, 100}})),
              (std::vector<Point>{{144, 0}, {0, 100}}));
}

TEST(Place, ThePointBesideMovesUpToThePieceAboveIt) {
    // 0: the left; 1: pushed to the edge, short; 2: at (0, 100), wider than 0: beside it there is
    // room up to the end of 1.
    const PiecePlacer placer = PlacerWith(144, {{60, 100}, {44, 50}, {110, 30}});
    EXPECT_EQ(Last(placer), (Box{0, 100, 110, 130}));
    EXPECT_EQ(Corners(placer), (std::vector<Point>{{144, 0}, {60, 50}, {110, 50}, {0, 130}}));
}

TEST(Place, CornersTooSmallForAllThatIsToComeAreDropped) {
    PiecePlacer placer;
    placer.Clear(144);
    placer.Place({60, 100}, {60, 100});
    placer.Place({60, 100}, {60, 100}); // corner (60, 0): 84 are left
    placer.Place({60, 100}, {60, 100}); // corner (144, 0) is useless
    EXPECT_EQ(Last(placer), (Box{0, 100, 60, 200}));
    for (const Point& corner : Corners(placer)) {
        EXPECT_NE(corner.X, 144) << "at " << corner.Y;
    }
}

TEST(PlaceAll, RoundsTheLengthHalfToEven) {
    PiecePlacer placer;
    constexpr Long NoBound = std::numeric_limits<Long>::max();
    EXPECT_EQ(placer.PlaceAll({{10, 10.5F}}, 144, NoBound), 10);
    EXPECT_EQ(placer.PlaceAll({{10, 11.5F}}, 144, NoBound), 12);
    EXPECT_EQ(placer.PlaceAll({{10, 11.25F}}, 144, NoBound), 11);
    EXPECT_EQ(placer.PlaceAll({}, 144, NoBound), 0);
}

TEST(PlaceAll, EndsAsSoonAsTheBoundIsReached) {
    PiecePlacer placer;
    const std::vector<PieceSize> pieces{{144, 10}, {144, 10}, {144, 10}, {144, 10}};
    EXPECT_EQ(placer.PlaceAll(pieces, 144, 41), 40);
    EXPECT_EQ(placer.Boxes().size(), 4U);
    EXPECT_GE(placer.PlaceAll(pieces, 144, 20), 20);
    EXPECT_EQ(placer.Boxes().size(), 2U);
}

TEST(PlaceAll, BeginsOnAnEmptyRoll) {
    PiecePlacer placer = PlacerWith(100, {{90, 90}});
    EXPECT_EQ(placer.PlaceAll({{144, 10}}, 144, 1000), 10);
    EXPECT_EQ(placer.Boxes().size(), 1U);
}

TEST(PlaceAll, ALengthBeyondALongIsAnOverflow) {
    PiecePlacer placer;
    EXPECT_THROW(placer.PlaceAll({{10, 3e9F}}, 144, std::numeric_limits<Long>::max()),
                 RunTimeError);
}

TEST(PlaceAll, NoPiecesOverlapAndAllAreInsideTheUsableWidth) {
    PiecePlacer placer;
    for (unsigned seed = 0; seed < 300; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        std::vector<PieceSize> pieces;
        for (int i = testing::Below(random, 50); i >= 0; --i) {
            pieces.push_back({1 + static_cast<Single>(testing::Below(random, 14300)) / 100,
                              1 + static_cast<Single>(testing::Below(random, 300)) / 2});
        }
        placer.PlaceAll(pieces, 144, std::numeric_limits<Long>::max());
        ASSERT_EQ(placer.Boxes().size(), pieces.size());
        for (std::size_t i = 0; i < pieces.size(); ++i) {
            const Box& box = placer.Boxes()[i];
            ASSERT_EQ(box.X2, box.X1 + pieces[i].Width) << "placed in their order";
            ASSERT_EQ(box.Y2, box.Y1 + pieces[i].Length);
            ASSERT_GE(box.X1, 0);
            ASSERT_LT(box.X2, 144.005);
            for (std::size_t j = 0; j < i; ++j) {
                ASSERT_FALSE(Overlaps(box, placer.Boxes()[j])) << i << " and " << j;
            }
        }
    }
}

} // namespace
} // namespace tarn
