#include "engine/EngineTesting.h"
#include "engine/Pieces.h"
#include "engine/Placement.h"

#include <gtest/gtest.h>

#include <cmath>
#include <ostream>
#include <random>
#include <vector>

namespace tarn {
namespace {

using testing::MakeEngine;
using testing::Place;

struct Corner {
    Single X, Y;
    bool operator==(const Corner&) const = default;
};

void PrintTo(const Corner& corner, std::ostream* out) {
    *out << "(" << corner.X << ", " << corner.Y << ")";
}

std::vector<Corner> Corners(const EngineArrays& engine) {
    std::vector<Corner> corners;
    for (Integer k = 0; k <= engine.StartCount; ++k) {
        corners.push_back({engine.StartPX[k], engine.StartPY[k]});
    }
    return corners;
}

void SetCorners(EngineArrays& engine, const std::vector<Corner>& corners) {
    for (std::size_t k = 0; k < corners.size(); ++k) {
        engine.StartPX[static_cast<long long>(k)] = corners[k].X;
        engine.StartPY[static_cast<long long>(k)] = corners[k].Y;
    }
    engine.StartCount = static_cast<Integer>(corners.size() - 1);
}

Corner LastPlaced(const EngineArrays& engine) {
    return {engine.PosX[engine.PosCount - 1], engine.PosY[engine.PosCount - 1]};
}

TEST(UsableWidth, LeavesTwoInchesUnlessTheWholeWidthMayBeUsed) {
    EngineArrays engine = MakeEngine(144);
    EXPECT_EQ(UsableWidth(engine), 144);
    engine.FillFlag = 0;
    EXPECT_EQ(UsableWidth(engine), 142);
    engine.FillFlag = -1;
    EXPECT_EQ(UsableWidth(engine), 142);
}

TEST(QuickSortStartPY, ThePositionAlongDecidesAndAcrossBreaksTies) {
    EngineArrays engine = MakeEngine(144);
    SetCorners(engine, {{100, 50}, {0, 60}, {10, 50}, {140, 0}});
    QuickSortStartPY(engine, 0, 3);
    EXPECT_EQ(Corners(engine), (std::vector<Corner>{{140, 0}, {10, 50}, {100, 50}, {0, 60}}));
}

TEST(QuickSortStartPY, NearTiesAlongComeOutByTheCombinedKey) {
    EngineArrays engine = MakeEngine(144);
    SetCorners(engine, {{140, 50}, {0, 50.1F}});
    QuickSortStartPY(engine, 0, 1);
    EXPECT_EQ(Corners(engine), (std::vector<Corner>{{0, 50.1F}, {140, 50}}));
}

TEST(QuickSortStartPY, EqualKeysKeepTheirOrderAlsoWhereSingleRoundsThemTogether) {
    EngineArrays engine = MakeEngine(144);
    // 20000 + 0.0001 rounds to 20000 in a Single.
    SetCorners(engine, {{0.1F, 20000}, {0, 20000}});
    QuickSortStartPY(engine, 0, 1);
    EXPECT_EQ(Corners(engine), (std::vector<Corner>{{0.1F, 20000}, {0, 20000}}));
}

TEST(QuickSortStartPY, IncludesBothBoundsAndNothingBeyond) {
    EngineArrays engine = MakeEngine(144);
    SetCorners(engine, {{0, 9}, {0, 3}, {0, 2}, {0, 1}});
    QuickSortStartPY(engine, 1, 2);
    EXPECT_EQ(Corners(engine), (std::vector<Corner>{{0, 9}, {0, 2}, {0, 3}, {0, 1}}));
}

TEST(CheckStartPC, EqualCornersAreKeptOnceTheFirstOnes) {
    EngineArrays engine = MakeEngine(144);
    SetCorners(engine, {{0, 1}, {0, 1}, {0, 1}, {2, 1}, {2, 1}, {5, 5}});
    CheckStartPC(engine);
    EXPECT_EQ(Corners(engine), (std::vector<Corner>{{0, 1}, {2, 1}, {5, 5}}));
}

TEST(CheckStartPC, FindsEqualCornersApartWhereOthersHaveTheSameKey) {
    EngineArrays engine = MakeEngine(144);
    SetCorners(engine, {{0.1F, 20000}, {0, 20000}, {0.1F, 20000}});
    CheckStartPC(engine);
    EXPECT_EQ(Corners(engine), (std::vector<Corner>{{0.1F, 20000}, {0, 20000}}));
}

TEST(CheckStartPC, LooksAtTheCornersInUseAlone) {
    EngineArrays engine = MakeEngine(144);
    SetCorners(engine, {{0, 1}, {2, 2}, {2, 2}});
    engine.StartCount = 1;
    CheckStartPC(engine);
    EXPECT_EQ(engine.StartCount, 1);
}

TEST(CheckStartPC, CornersThatDifferByTheLeastBitStay) {
    EngineArrays engine = MakeEngine(144);
    SetCorners(engine, {{1, 1}, {std::nextafter(1.0F, 2.0F), 1}});
    CheckStartPC(engine);
    EXPECT_EQ(engine.StartCount, 1);
}

//   0    40   60       144
// 0 +----+
//   | 0  |    +---+ 10
//   |    |    | 1 |
// 30 +----+    +---+ 30
TEST(Scanleftnew, FindsTheNearestRightEdgeOnTheRow) {
    EngineArrays engine = MakeEngine(144);
    Place(engine, 0, 0, 40, 30);
    Place(engine, 60, 10, 20, 20);
    EXPECT_EQ(scanleftnew(engine, 144, 15, 0, 2), 80);
    EXPECT_EQ(scanleftnew(engine, 144, 5, 0, 2), 40);
    EXPECT_EQ(scanleftnew(engine, 70, 15, 0, 2), 40) << "an edge right of the point does not count";
    EXPECT_EQ(scanleftnew(engine, 80, 15, 0, 2), 80) << "an edge at the point does";
    EXPECT_EQ(scanleftnew(engine, 144, 30, 0, 2), 0) << "pieces that end at the row do not stop it";
    EXPECT_EQ(scanleftnew(engine, 144, 10, 0, 2), 80) << "a piece that begins at the row does";
    EXPECT_EQ(scanleftnew(engine, 144, 15, 0, 1), 40) << "the first n pieces alone";
    EXPECT_EQ(scanleftnew(engine, 144, 5, 50, 2), 50) << "edges left of the limit do not count";
    EXPECT_EQ(scanleftnew(engine, 144, 5, 40, 2), 40);
}

TEST(Scanupnew, FindsTheFurthestEndOnTheColumn) {
    EngineArrays engine = MakeEngine(144);
    Place(engine, 0, 0, 30, 40);
    Place(engine, 10, 60, 20, 20);
    EXPECT_EQ(scanupnew(engine, 15, 144, 0, 2), 80);
    EXPECT_EQ(scanupnew(engine, 5, 144, 0, 2), 40);
    EXPECT_EQ(scanupnew(engine, 15, 70, 0, 2), 40);
    EXPECT_EQ(scanupnew(engine, 15, 80, 0, 2), 80);
    EXPECT_EQ(scanupnew(engine, 30, 144, 0, 2), 0);
    EXPECT_EQ(scanupnew(engine, 10, 144, 0, 2), 80);
    EXPECT_EQ(scanupnew(engine, 15, 144, 0, 1), 40);
    EXPECT_EQ(scanupnew(engine, 5, 144, 50, 2), 50);
}

TEST(PCOverLap, PiecesThatTouchAlongAnEdgeAreAccepted) {
    EngineArrays engine = MakeEngine(144);
    Place(engine, 0, 0, 40, 30);
    SetCorners(engine, {{40, 0}, {0, 30}, {39, 0}, {0, 29}});
    EXPECT_FALSE(PCOverLap(engine, 0, 10, 100));
    EXPECT_FALSE(PCOverLap(engine, 1, 100, 10));
    EXPECT_TRUE(PCOverLap(engine, 2, 10, 100));
    EXPECT_TRUE(PCOverLap(engine, 3, 100, 10));
}

TEST(PCOverLap, FindsAPieceThatCrossesWithoutACornerInside) {
    EngineArrays engine = MakeEngine(144);
    Place(engine, 20, 0, 20, 100);
    SetCorners(engine, {{0, 40}});
    EXPECT_TRUE(PCOverLap(engine, 0, 60, 10));
}

TEST(IsAnyRightSide, FindsAPieceTheRowMeets) {
    EngineArrays engine = MakeEngine(144);
    Place(engine, 100, 0, 20, 50);
    SetCorners(engine, {{40, 10}, {40, 50}, {40, 49}, {120, 10}});
    EXPECT_TRUE(IsAnyRightSide(engine, 0));
    EXPECT_FALSE(IsAnyRightSide(engine, 1)) << "the piece ends at the row";
    EXPECT_TRUE(IsAnyRightSide(engine, 2));
    EXPECT_FALSE(IsAnyRightSide(engine, 3)) << "the piece stands to the left";
}

TEST(IsAnyRightSide, FindsAPieceThatStartsOnTheSameRowFurtherRight) {
    EngineArrays engine = MakeEngine(144);
    Place(engine, 100, 10, 20, 50);
    SetCorners(engine, {{40, 10}, {100, 10}});
    EXPECT_TRUE(IsAnyRightSide(engine, 0));
    EXPECT_FALSE(IsAnyRightSide(engine, 1)) << "it does not start further right";
}

TEST(FillOnePieceNew, TheFirstPieceGoesToTheStartOfTheRoll) {
    EngineArrays engine = MakeEngine(144);
    EXPECT_EQ(FillOnePieceNew(engine, 60, 100), 0);
    EXPECT_EQ(LastPlaced(engine), (Corner{0, 0}));
    EXPECT_EQ(Corners(engine), (std::vector<Corner>{{60, 0}, {0, 100}}));
}

//   0      60        100  144
// 0 +------+----------+----+
//   |  0   |          | 1  |   the second stands alone on its row: pushed to the edge
//   |      |          +----+ 50
// 100+------+
TEST(FillOnePieceNew, APieceAloneOnItsRowIsPushedToTheFarEdge) {
    EngineArrays engine = MakeEngine(144);
    FillOnePieceNew(engine, 60, 100);
    EXPECT_EQ(FillOnePieceNew(engine, 44, 50), 0);
    EXPECT_EQ(LastPlaced(engine), (Corner{100, 0}));
    EXPECT_EQ(Corners(engine), (std::vector<Corner>{{144, 0}, {60, 50}, {0, 100}}));
}

TEST(FillOnePieceNew, APieceWithAnotherToItsRightStaysAtItsCorner) {
    EngineArrays engine = MakeEngine(144);
    FillOnePieceNew(engine, 60, 100); // (0, 0)
    FillOnePieceNew(engine, 44, 50);  // pushed to (100, 0)
    FillOnePieceNew(engine, 20, 30);  // no room between on row 0 at a corner: (60, 50) or lower
    EXPECT_EQ(LastPlaced(engine), (Corner{124, 50}));
    engine = MakeEngine(144);
    Place(engine, 0, 0, 60, 100);
    Place(engine, 100, 0, 44, 50);
    SetCorners(engine, {{60, 0}});
    FillOnePieceNew(engine, 20, 30);
    EXPECT_EQ(LastPlaced(engine), (Corner{60, 0}));
}

TEST(FillOnePieceNew, APieceThatFillsTheRestExactlyTouchesTheFarEdge) {
    EngineArrays engine = MakeEngine(144);
    FillOnePieceNew(engine, 60, 100);
    FillOnePieceNew(engine, 84, 100);
    EXPECT_EQ(LastPlaced(engine), (Corner{60, 0}));
}

// A pushed piece must not land on one that begins lower down.
//   0        72     132 144
// 0 +--------+
//   |   0    |          +--+ 40 : placed at the edge, lower down
//   |        |          |1 |
TEST(FillOnePieceNew, APushIntoAPieceThatBeginsLowerDownIsNotMade) {
    EngineArrays engine = MakeEngine(144);
    Place(engine, 0, 0, 72, 120);
    Place(engine, 132, 40, 12, 60);
    SetCorners(engine, {{72, 0}, {0, 120}});
    FillOnePieceNew(engine, 24, 80);
    EXPECT_EQ(LastPlaced(engine), (Corner{72, 0}));
    engine = MakeEngine(144);
    Place(engine, 0, 0, 72, 120);
    Place(engine, 132, 80, 12, 60);
    SetCorners(engine, {{72, 0}, {0, 120}});
    FillOnePieceNew(engine, 24, 80);
    EXPECT_EQ(LastPlaced(engine), (Corner{120, 0})) << "free there: pushed";
}

TEST(FillOnePieceNew, APieceWiderThanTheUsableWidthGoesBehindEverything) {
    EngineArrays engine = MakeEngine(144);
    FillOnePieceNew(engine, 60, 100);
    EXPECT_EQ(FillOnePieceNew(engine, 145, 10), -1);
    EXPECT_EQ(LastPlaced(engine), (Corner{0, 100}));
    EXPECT_EQ(Corners(engine), (std::vector<Corner>{{60, 0}, {0, 100}, {0, 110}}))
        << "no corner is replaced, the point behind it is appended";
}

TEST(FillOnePieceNew, WithTheAllowanceAPieceAsWideAsTheRollNeverFits) {
    EngineArrays engine = MakeEngine(144);
    EXPECT_EQ(FillOnePieceNew(engine, 144, 10), 0);
    engine = MakeEngine(144);
    engine.FillFlag = 0;
    EXPECT_EQ(FillOnePieceNew(engine, 144, 10), -1);
    EXPECT_EQ(FillOnePieceNew(engine, 142, 10), 1);
    EXPECT_EQ(LastPlaced(engine), (Corner{0, 10}));
}

TEST(FillOnePieceNew, APieceTooWideByLessThanHalfAUnitFits) {
    EngineArrays engine = MakeEngine(144);
    EXPECT_EQ(FillOnePieceNew(engine, 144.004F, 10), 0);
    engine = MakeEngine(144);
    EXPECT_EQ(FillOnePieceNew(engine, 144.01F, 10), -1);
}

TEST(FillOnePieceNew, EqualCornersOfTwoPlacementsAreKeptOnce) {
    EngineArrays engine = MakeEngine(144);
    FillOnePieceNew(engine, 72, 100);
    FillOnePieceNew(engine, 72, 100);
    // The point below each of the two moves left to (0, 100).
    EXPECT_EQ(Corners(engine), (std::vector<Corner>{{144, 0}, {0, 100}}));
}

TEST(ReorderPiece, NumbersThePiecesInTheOrderInWhichItPlacesThem) {
    EngineArrays engine = MakeEngine(144, {{10, 10}, {30, 10}, {20, 10}});
    ReorderPiece(engine, 1, 0.01);
    ASSERT_EQ(engine.PosCount, 3);
    EXPECT_EQ(engine.OrgPC[0], 1);
    EXPECT_EQ(engine.OrgPC[1], 2);
    EXPECT_EQ(engine.OrgPC[2], 0);
    for (Integer i = 0; i < 3; ++i) {
        EXPECT_EQ(engine.PCOrder[i], i);
        EXPECT_EQ(engine.PosW[i], engine.PieceWid[i]);
    }
}

TEST(ReorderPiece, StartsEveryPassOnAnEmptyRoll) {
    EngineArrays engine = MakeEngine(144, {{10, 10}, {30, 10}});
    ReorderPiece(engine, 1, 0.01);
    ReorderPiece(engine, 1, 0.01);
    EXPECT_EQ(engine.PosCount, 2);
    EXPECT_EQ(GetPCLen(engine), 10);
}

TEST(ReorderPiece, NoPlacementOverlapsAndAllAreInsideTheUsableWidth) {
    for (unsigned seed = 0; seed < 300; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        EngineArrays engine = MakeEngine(144);
        const int count = 1 + testing::Below(random, 50);
        for (int i = 0; i < count; ++i) {
            testing::AddPiece(engine, {1 + (testing::Below(random, 14300)) / 100.0,
                                       1 + testing::Below(random, 300) / 2.0});
        }
        engine.CutCount = engine.PieceCount;
        ReorderPiece(engine, static_cast<Integer>(testing::Below(random, 3)), 0.01);
        ASSERT_EQ(engine.PosCount, engine.PieceCount);
        for (Integer i = 0; i < engine.PosCount; ++i) {
            const Box box = PlacedBox(engine, i);
            ASSERT_GE(box.X1, 0);
            ASSERT_LT(box.X2, 144.005);
            for (Integer j = 0; j < i; ++j) {
                ASSERT_FALSE(Overlaps(box, PlacedBox(engine, j))) << i << " and " << j;
            }
        }
    }
}

} // namespace
} // namespace tarn
