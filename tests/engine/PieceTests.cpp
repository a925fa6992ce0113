#include "app/RunTimeError.h"
#include "engine/EngineTesting.h"
#include "engine/Pieces.h"
#include "engine/Placement.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <vector>

namespace tarn {
namespace {

using testing::MakeEngine;
using testing::Place;

std::vector<int> Numbers(const EngineArrays& engine) {
    std::vector<int> numbers;
    for (Integer i = 0; i < engine.PieceCount; ++i) {
        numbers.push_back(engine.OrgPC[i]);
    }
    return numbers;
}

TEST(GetPieceSZ, TurnsCoordinatesIntoInches) {
    EngineArrays engine = MakeEngine(144, {{36.5, 120}, {0.01, 333.33}});
    engine.PCX1[0] = 100;
    GetPieceSZ(engine, 0.01);
    EXPECT_EQ(engine.PieceWid[0], 35.5F);
    EXPECT_EQ(engine.PieceLen[0], 120.0F);
    EXPECT_EQ(engine.PieceWid[1], static_cast<Single>(1.0F * 0.01));
    EXPECT_EQ(engine.PieceLen[1], static_cast<Single>(static_cast<double>(33333.0F) * 0.01));
}

TEST(GetPieceSZ, LeavesTheSizesOfAnEmptyListAlone) {
    EngineArrays engine = MakeEngine(144);
    engine.PieceWid[0] = 7;
    GetPieceSZ(engine, 0.01);
    EXPECT_EQ(engine.PieceWid[0], 7);
}

TEST(GetPieceSZ, ASizeThatIsNotFiniteIsAnOverflow) {
    EngineArrays engine = MakeEngine(144, {{1, 1}});
    engine.PCX1[0] = -std::numeric_limits<Single>::max();
    engine.PCX2[0] = std::numeric_limits<Single>::max();
    EXPECT_THROW(GetPieceSZ(engine, 0.01), RunTimeError);
}

TEST(GetPCLen, IsZeroWithoutPlacedPieces) {
    EXPECT_EQ(GetPCLen(MakeEngine(144)), 0);
}

TEST(GetPCLen, IsTheFarthestEnd) {
    EngineArrays engine = MakeEngine(144);
    Place(engine, 0, 0, 10, 30);
    Place(engine, 0, 30, 10, 20.5F);
    Place(engine, 20, 10, 10, 10);
    EXPECT_EQ(GetPCLen(engine), 50.5F);
}

TEST(SwitchXY, TransposesEveryPieceWithoutRounding) {
    EngineArrays engine = MakeEngine(144, {{1.505, 20}});
    engine.PCX1[0] = 0.25F;
    SwitchXY(engine);
    EXPECT_EQ(engine.PCX1[0], 0);
    EXPECT_EQ(engine.PCX2[0], 2000);
    EXPECT_EQ(engine.PCY1[0], 0.25F);
    EXPECT_EQ(engine.PCY2[0], 150.5F);
}

TEST(SwitchXY2, SnapsTheAlongCoordinatesOfTurnedPiecesHalfToEven) {
    EngineArrays engine = MakeEngine(144, {{10, 20}, {10, 20}});
    engine.PCX1[0] = 150.5F;
    engine.PCX2[0] = 151.5F;
    engine.PCY1[0] = 0.25F;
    engine.PCTurn[0] = 1;
    engine.PCX1[1] = 150.5F;
    SwitchXY2(engine);
    EXPECT_EQ(engine.PCY1[0], 150);
    EXPECT_EQ(engine.PCY2[0], 152);
    EXPECT_EQ(engine.PCX1[0], 0.25F) << "across stays exact";
    EXPECT_EQ(engine.PCX2[0], 2000);
    EXPECT_EQ(engine.PCX1[1], 150.5F) << "its lay is the roll's: untouched";
}

TEST(SwitchXY2, LooksAtBitZeroOfTheLayAlone) {
    EngineArrays engine = MakeEngine(144, {{10, 20}, {10, 20}});
    engine.LayDir = 1;
    engine.PCTurn[0] = 3;
    engine.PCTurn[1] = 2;
    SwitchXY2(engine);
    EXPECT_EQ(engine.PCX2[0], 1000);
    EXPECT_EQ(engine.PCX2[1], 2000);
}

TEST(SwitchXY2, ACoordinateBeyondAnIntegerIsAnOverflow) {
    EngineArrays engine = MakeEngine(144, {{10, 20}});
    engine.PCX2[0] = 32767.5F;
    engine.PCTurn[0] = 1;
    EXPECT_THROW(SwitchXY2(engine), RunTimeError);
    engine = MakeEngine(144, {{10, 20}});
    engine.PCX2[0] = 32767;
    engine.PCTurn[0] = 1;
    EXPECT_NO_THROW(SwitchXY2(engine));
}

TEST(SwitchPiece, ExchangesEveryFieldOfTwoRows) {
    EngineArrays engine = MakeEngine(144, {{1, 2}, {3, 4}});
    engine.PCX1[0] = 5;
    engine.PCY1[0] = 6;
    engine.PCTurn[0] = 1;
    engine.PCDivide[1] = 0;
    engine.PCOrder[0] = 9;
    GetPieceSZ(engine, 0.01);
    const EngineArrays before = engine;
    SwitchPiece(engine, 0, 1);
    for (const int from : {0, 1}) {
        const int to = 1 - from;
        EXPECT_EQ(engine.PCX1[to], before.PCX1[from]);
        EXPECT_EQ(engine.PCX2[to], before.PCX2[from]);
        EXPECT_EQ(engine.PCY1[to], before.PCY1[from]);
        EXPECT_EQ(engine.PCY2[to], before.PCY2[from]);
        EXPECT_EQ(engine.OrgPC[to], before.OrgPC[from]);
        EXPECT_EQ(engine.PCDivide[to], before.PCDivide[from]);
        EXPECT_EQ(engine.PCTurn[to], before.PCTurn[from]);
        EXPECT_EQ(engine.PCOrder[to], before.PCOrder[from]);
        EXPECT_EQ(engine.PieceWid[to], before.PieceWid[from]);
        EXPECT_EQ(engine.PieceLen[to], before.PieceLen[from]);
    }
}

TEST(SwitchFillPC, TakesThePlacementAlong) {
    for (const auto exchange : {&SwitchFillPC, &SwitchPCOrder}) {
        EngineArrays engine = MakeEngine(144, {{1, 2}, {3, 4}});
        Place(engine, 1, 2, 3, 4);
        Place(engine, 5, 6, 7, 8);
        exchange(engine, 0, 1);
        EXPECT_EQ(engine.OrgPC[0], 1);
        EXPECT_EQ(engine.PosX[0], 5);
        EXPECT_EQ(engine.PosY[0], 6);
        EXPECT_EQ(engine.PosW[0], 7);
        EXPECT_EQ(engine.PosL[0], 8);
        EXPECT_EQ(engine.PosX[1], 1);
    }
}

TEST(QuickSortPiece, PowerOneOrdersByAreaLargestFirst) {
    EngineArrays engine = MakeEngine(144, {{5, 5}, {3, 10}});
    GetPieceSZ(engine, 0.01);
    QuickSortPiece(engine, 0, 2, 1);
    EXPECT_EQ(Numbers(engine), (std::vector{1, 0}));
}

TEST(QuickSortPiece, PowerTwoPutsLengthFirst) {
    EngineArrays engine = MakeEngine(144, {{12, 10}, {6, 20}});
    GetPieceSZ(engine, 0.01);
    QuickSortPiece(engine, 0, 2, 2);
    EXPECT_EQ(Numbers(engine), (std::vector{1, 0}));
}

TEST(QuickSortPiece, PowerZeroOrdersByWidthAlone) {
    EngineArrays engine = MakeEngine(144, {{5, 900}, {6, 1}, {7, 2}});
    GetPieceSZ(engine, 0.01);
    QuickSortPiece(engine, 0, 3, 0);
    EXPECT_EQ(Numbers(engine), (std::vector{2, 1, 0}));
}

TEST(QuickSortPiece, LeavesTheRowsFromTheLastBoundOn) {
    EngineArrays engine = MakeEngine(144, {{1, 1}, {2, 2}, {9, 9}});
    GetPieceSZ(engine, 0.01);
    QuickSortPiece(engine, 0, 2, 1);
    EXPECT_EQ(Numbers(engine), (std::vector{1, 0, 2}));
}

TEST(QuickSortPiece, AKeyThatIsNotFiniteIsAnOverflow) {
    EngineArrays engine = MakeEngine(144, {{1, 1}});
    engine.PieceLen[0] = std::numeric_limits<Single>::max();
    engine.PieceWid[0] = 1;
    EXPECT_THROW(QuickSortPiece(engine, 0, 1, 9), RunTimeError);
}

TEST(QuickSortPiece, SortsRandomPiecesAndKeepsTheOrderOfEqualKeys) {
    for (unsigned seed = 0; seed < 200; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        EngineArrays engine = MakeEngine(144);
        const int count = 1 + testing::Below(random, 60);
        for (int i = 0; i < count; ++i) {
            testing::AddPiece(engine,
                              {1.0 + testing::Below(random, 4), 1.0 + testing::Below(random, 4)});
        }
        GetPieceSZ(engine, 0.01);
        const auto power = static_cast<Integer>(testing::Below(random, 3));
        QuickSortPiece(engine, 0, engine.PieceCount, power);
        const auto key = [&](Integer i) {
            return std::pow(static_cast<double>(engine.PieceLen[i]), power) *
                   static_cast<double>(engine.PieceWid[i]);
        };
        for (Integer i = 1; i < engine.PieceCount; ++i) {
            const auto before = static_cast<Integer>(i - 1);
            ASSERT_GE(key(before), key(i));
            if (key(before) == key(i)) {
                ASSERT_LT(engine.OrgPC[before], engine.OrgPC[i]);
            }
            ASSERT_EQ(engine.PieceWid[i], engine.PCX2[i] / 100)
                << "the fields of a row stay together";
        }
    }
}

TEST(QuickSortOrgpc, RestoresTheOrderOfCreationWithPlacements) {
    for (unsigned seed = 0; seed < 100; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        EngineArrays engine = MakeEngine(144);
        const int count = 1 + testing::Below(random, 40);
        for (int i = 0; i < count; ++i) {
            testing::AddPiece(engine, {1.0 + i, 1});
            Place(engine, static_cast<Single>(i), 0, 1, 1);
        }
        for (int i = 0; i < count; ++i) {
            SwitchFillPC(engine, i, testing::Below(random, count));
        }
        QuickSortOrgpc(engine, 0, engine.PieceCount);
        for (Integer i = 0; i < engine.PieceCount; ++i) {
            ASSERT_EQ(engine.OrgPC[i], i);
            ASSERT_EQ(engine.PosX[i], i);
            ASSERT_EQ(engine.PCX2[i], (1 + i) * 100);
        }
    }
}

TEST(QuickSortPCOrder, OrdersByPlacingOrderAndKeepsEqualOnes) {
    EngineArrays engine = MakeEngine(144, {{1, 1}, {2, 1}, {3, 1}, {4, 1}});
    engine.PCOrder[0] = 2;
    engine.PCOrder[1] = 1;
    engine.PCOrder[2] = 2;
    engine.PCOrder[3] = 0;
    QuickSortPCOrder(engine, 0, 4);
    EXPECT_EQ(Numbers(engine), (std::vector{3, 1, 0, 2}));
}

TEST(CountUp, PastAnIntegerIsAnOverflow) {
    Integer counter = 32766;
    CountUp(counter);
    EXPECT_EQ(counter, 32767);
    EXPECT_THROW(CountUp(counter), RunTimeError);
}

} // namespace
} // namespace tarn
