#include "engine/EngineTesting.h"
#include "engine/Pieces.h"
#include "engine/Placement.h"

#include <gtest/gtest.h>

#include <random>

namespace tarn {
namespace {

using testing::MakeEngine;

TEST(UsableWidth, LeavesTwoInchesUnlessTheWholeWidthMayBeUsed) {
    EngineArrays engine = MakeEngine(144);
    EXPECT_EQ(UsableWidth(engine), 144);
    engine.FillFlag = 0;
    EXPECT_EQ(UsableWidth(engine), 142);
    engine.FillFlag = -1;
    EXPECT_EQ(UsableWidth(engine), 142);
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
