#include "app/RunTimeError.h"
#include "engine/RollLayout.h"

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

constexpr PieceSize Nothing{0, 0}; ///< no corner is useless for it

struct Point {
    Single X, Y;
    bool operator==(const Point&) const = default;
};

void PrintTo(const Point& point, std::ostream* out) {
    *out << "(" << point.X << ", " << point.Y << ")";
}

/// A roll on which pieces of the given sizes were placed.
RollLayout Placed(Single usableWidth, const std::vector<PieceSize>& pieces) {
    RollLayout layout;
    layout.Clear(usableWidth);
    for (const PieceSize& piece : pieces) {
        layout.FillOnePieceNew(piece, Nothing);
    }
    return layout;
}

std::vector<Point> Corners(const RollLayout& layout) {
    std::vector<Point> corners;
    for (std::size_t k = 0; k < layout.Corners().Count(); ++k) {
        corners.push_back({layout.Corners()[k].StartPX, layout.Corners()[k].StartPY});
    }
    return corners;
}

Box Last(const RollLayout& layout) {
    return layout.Placed().back();
}

TEST(FillOnePieceNew, TheFirstPieceGoesToTheStartOfTheRoll) {
    const RollLayout layout = Placed(144, {{60, 100}});
    EXPECT_EQ(Last(layout), (Box{0, 0, 60, 100}));
    EXPECT_EQ(Corners(layout), (std::vector<Point>{{60, 0}, {0, 100}}));
}

//   0      60        100  144
// 0 +------+----------+----+
//   |  0   |          | 1  |   the second stands alone on its row: pushed to the edge
//   |      |          +----+ 50
// 100+------+
TEST(FillOnePieceNew, APieceAloneOnItsRowIsPushedToTheFarEdge) {
    const RollLayout layout = Placed(144, {{60, 100}, {44, 50}});
    EXPECT_EQ(Last(layout), (Box{100, 0, 144, 50}));
    EXPECT_EQ(Corners(layout), (std::vector<Point>{{144, 0}, {60, 50}, {0, 100}}));
}

//   0     40         100  144
// 0 +-----+-----------+----+
//   |  0  |           | 1  | 30
// 60|     +---+-------+----+    2 takes (40, 30) and is pushed; 3 finds 2 on its row
TEST(FillOnePieceNew, APieceWithAnotherToItsRightStaysAtItsCorner) {
    const RollLayout layout = Placed(144, {{40, 60}, {44, 30}, {50, 20}, {50, 20}});
    EXPECT_EQ(layout.Placed()[2], (Box{94, 30, 144, 50}));
    EXPECT_EQ(Last(layout), (Box{94, 50, 144, 70})) << "its corner (40, 50) has a free row";
    // Beside a piece that stands left of the edge there is one to the right.
    const RollLayout beside = Placed(144, {{40, 60}, {104, 20}, {30, 40}, {60, 30}});
    EXPECT_EQ(beside.Placed()[2], (Box{114, 20, 144, 60}));
    EXPECT_EQ(Last(beside), (Box{0, 60, 60, 90}));
}

TEST(FillOnePieceNew, APieceThatFillsTheRestExactlyTouchesTheFarEdge) {
    EXPECT_EQ(Last(Placed(144, {{60, 100}, {84, 100}})), (Box{60, 0, 144, 100}));
}

// The strip of 12 x 168 has a free row at its corner (72, 120), but the far edge is taken lower
// down: pushed there it would lie on another piece.
TEST(FillOnePieceNew, APushIntoAPieceThatBeginsLowerDownIsNotMade) {
    const std::vector<PieceSize> rooms{{36, 132}, {48, 120}, {72, 60}, {36, 96},
                                       {36, 84},  {24, 120}, {12, 168}};
    const RollLayout layout = Placed(144, rooms);
    const Box strip = Last(layout);
    for (std::size_t i = 0; i + 1 < layout.Placed().size(); ++i) {
        EXPECT_FALSE(Overlaps(strip, layout.Placed()[i])) << i;
    }
}

TEST(FillOnePieceNew, APieceWiderThanTheUsableWidthGoesBehindEverything) {
    const RollLayout layout = Placed(144, {{60, 100}, {145, 10}});
    EXPECT_EQ(Last(layout), (Box{0, 100, 145, 110}));
    EXPECT_EQ(Corners(layout), (std::vector<Point>{{60, 0}, {0, 100}, {0, 110}}))
        << "no corner is replaced, the point behind it is appended";
}

TEST(FillOnePieceNew, WithTheAllowanceAPieceAsWideAsTheRollNeverFits) {
    const RollLayout layout = Placed(142, {{144, 10}, {142, 10}});
    EXPECT_EQ(layout.Placed()[0], (Box{0, 0, 144, 10}));
    EXPECT_EQ(Corners(Placed(142, {{144, 10}})), (std::vector<Point>{{0, 0}, {0, 10}}))
        << "its corner was not taken";
    EXPECT_EQ(Last(layout), (Box{0, 10, 142, 20}));
}

TEST(FillOnePieceNew, APieceTooWideByLessThanHalfAUnitFits) {
    EXPECT_EQ(Corners(Placed(144, {{144.004F, 10}})), (std::vector<Point>{{144.004F, 0}, {0, 10}}));
    EXPECT_EQ(Corners(Placed(144, {{144.01F, 10}})), (std::vector<Point>{{0, 0}, {0, 10}}));
}

TEST(FillOnePieceNew, EqualCornersOfTwoPlacementsAreKeptOnce) {
    // The point below each of the two moves left to (0, 100).
    EXPECT_EQ(Corners(Placed(144, {{72, 100}, {72, 100}})),
              (std::vector<Point>{{144, 0}, {0, 100}}));
}

TEST(FillOnePieceNew, ThePointBesideMovesUpToThePieceAboveIt) {
    // 0: the left; 1: pushed to the edge, short; 2: at (0, 100), wider than 0: beside it there is
    // room up to the end of 1.
    const RollLayout layout = Placed(144, {{60, 100}, {44, 50}, {110, 30}});
    EXPECT_EQ(Last(layout), (Box{0, 100, 110, 130}));
    EXPECT_EQ(Corners(layout), (std::vector<Point>{{144, 0}, {60, 50}, {110, 50}, {0, 130}}));
}

TEST(FillOnePieceNew, CornersTooSmallForAllThatIsToComeAreDropped) {
    RollLayout layout;
    layout.Clear(144);
    layout.FillOnePieceNew({60, 100}, {60, 100});
    layout.FillOnePieceNew({60, 100}, {60, 100}); // corner (60, 0): 84 are left
    layout.FillOnePieceNew({60, 100}, {60, 100}); // corner (144, 0) is useless
    EXPECT_EQ(Last(layout), (Box{0, 100, 60, 200}));
    for (const Point& corner : Corners(layout)) {
        EXPECT_NE(corner.X, 144) << "at " << corner.Y;
    }
}

TEST(PlaceAll, RoundsTheLengthHalfToEven) {
    RollLayout layout;
    constexpr Long NoBound = std::numeric_limits<Long>::max();
    EXPECT_EQ(layout.PlaceAll({{10, 10.5F}}, 144, NoBound), 10);
    EXPECT_EQ(layout.PlaceAll({{10, 11.5F}}, 144, NoBound), 12);
    EXPECT_EQ(layout.PlaceAll({{10, 11.25F}}, 144, NoBound), 11);
    EXPECT_EQ(layout.PlaceAll({}, 144, NoBound), 0);
}

TEST(PlaceAll, EndsAsSoonAsTheBoundIsReached) {
    RollLayout layout;
    const std::vector<PieceSize> pieces{{144, 10}, {144, 10}, {144, 10}, {144, 10}};
    EXPECT_EQ(layout.PlaceAll(pieces, 144, 41), 40);
    EXPECT_EQ(layout.Placed().size(), 4U);
    EXPECT_GE(layout.PlaceAll(pieces, 144, 20), 20);
    EXPECT_EQ(layout.Placed().size(), 2U);
}

TEST(PlaceAll, BeginsOnAnEmptyRoll) {
    RollLayout layout = Placed(100, {{90, 90}});
    EXPECT_EQ(layout.PlaceAll({{144, 10}}, 144, 1000), 10);
    EXPECT_EQ(layout.Placed().size(), 1U);
}

TEST(PlaceAll, ALengthBeyondALongIsAnOverflow) {
    RollLayout layout;
    EXPECT_THROW(layout.PlaceAll({{10, 3e9F}}, 144, std::numeric_limits<Long>::max()),
                 RunTimeError);
}

} // namespace
} // namespace tarn
