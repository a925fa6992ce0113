#include "app/RunTimeError.h"
#include "engine/CleanUp.h"
#include "engine/EngineTesting.h"
#include "engine/Pieces.h"

#include <gtest/gtest.h>

#include <functional>

namespace tarn {
namespace {

using testing::MakeEngine;
using testing::Place;

/// Two pieces side by side and one behind them: a sound layout.
EngineArrays SoundLayout() {
    EngineArrays engine = MakeEngine(144, {{72, 100}, {72, 50}, {144, 30}});
    Place(engine, 0, 0, 72, 100);
    Place(engine, 72, 0, 72, 50);
    Place(engine, 0, 100, 144, 30);
    return engine;
}

int CheckNumber(const EngineArrays& engine) {
    try {
        CheckFill(engine);
    } catch (const RunTimeError& error) {
        return error.Number();
    }
    return 0;
}

TEST(CheckFill, AcceptsASoundLayout) {
    EXPECT_EQ(CheckNumber(SoundLayout()), 0);
}

TEST(CheckFill, EveryFaultOfALayoutIsAnInternalError) {
    const std::function<void(EngineArrays&)> faults[] = {
        [](EngineArrays& engine) { --engine.PosCount; },
        [](EngineArrays& engine) { engine.PosX[1] = 71; },
        [](EngineArrays& engine) { engine.PosX[1] = 73; },
        [](EngineArrays& engine) { engine.PosX[0] = -1; },
        [](EngineArrays& engine) { engine.PosY[0] = -1; },
        [](EngineArrays& engine) { engine.PosY[2] = 99; },
        [](EngineArrays& engine) { engine.FillFlag = 0; },
    };
    int number = 0;
    for (const auto& spoil : faults) {
        EngineArrays engine = SoundLayout();
        spoil(engine);
        EXPECT_EQ(CheckNumber(engine), InternalNumber) << "fault " << number;
        ++number;
    }
}

TEST(CheckFill, APieceTooWideForTheRollMayStandOut) {
    EngineArrays engine = MakeEngine(144, {{150, 10}});
    Place(engine, 0, 0, 150, 10);
    EXPECT_EQ(CheckNumber(engine), 0);
}

TEST(CheckFill, HalfAUnitIsTolerated) {
    EngineArrays engine = SoundLayout();
    engine.PosX[1] = 71.996F;
    EXPECT_EQ(CheckNumber(engine), 0);
    engine.PosX[1] = 72.004F;
    EXPECT_EQ(CheckNumber(engine), 0);
}

/// Three parts of piece 0, 10 inches wide and 30 long each, standing at the given places.
EngineArrays ThreeParts(Single x0, Single y0, Single x1, Single y1, Single x2, Single y2) {
    EngineArrays engine = MakeEngine(144, {{10, 30}, {10, 30}, {10, 30}});
    for (Integer i = 0; i < 3; ++i) {
        engine.OrgPC[i] = 0;
        engine.PCY1[i] = static_cast<Single>(3000 * i);
        engine.PCY2[i] = static_cast<Single>(3000 * (i + 1));
    }
    GetPieceSZ(engine, 0.01);
    Place(engine, x0, y0, 10, 30);
    Place(engine, x1, y1, 10, 30);
    Place(engine, x2, y2, 10, 30);
    return engine;
}

TEST(CombinePiece, PartsThatCameToLieEndToEndBecomeOneStrip) {
    EngineArrays engine = ThreeParts(0, 0, 0, 30, 0, 60);
    CombinePiece(engine, 0.01);
    ASSERT_EQ(engine.PieceCount, 1);
    EXPECT_EQ(engine.PosCount, 1);
    EXPECT_EQ(engine.CutCount, 1);
    EXPECT_EQ(engine.PCY1[0], 0);
    EXPECT_EQ(engine.PCY2[0], 9000);
    EXPECT_EQ(engine.PieceLen[0], 90);
    EXPECT_EQ(engine.PosY[0], 0);
    EXPECT_EQ(engine.PosL[0], 90);
}

TEST(CombinePiece, AlsoWhenALaterRowBeginsTheStrip) {
    EngineArrays engine = ThreeParts(0, 0, 0, 30, 0, 60);
    SwitchFillPC(engine, 0, 2);
    CombinePiece(engine, 0.01);
    ASSERT_EQ(engine.PieceCount, 1);
    EXPECT_EQ(engine.PCY1[0], 0);
    EXPECT_EQ(engine.PCY2[0], 9000);
    EXPECT_EQ(engine.PosY[0], 0);
    EXPECT_EQ(engine.PosL[0], 90);
}

TEST(CombinePiece, PartsInAnotherOrderOnTheRollStayApart) {
    EngineArrays engine = ThreeParts(0, 30, 0, 0, 40, 0);
    CombinePiece(engine, 0.01);
    EXPECT_EQ(engine.PieceCount, 3);
}

TEST(CombinePiece, PartsBesideEachOtherOrOfOtherPiecesStayApart) {
    EngineArrays engine = ThreeParts(0, 0, 10, 0, 20, 0);
    CombinePiece(engine, 0.01);
    EXPECT_EQ(engine.PieceCount, 3);
    engine = ThreeParts(0, 0, 0, 30, 0, 60);
    engine.OrgPC[1] = 1;
    CombinePiece(engine, 0.01);
    EXPECT_EQ(engine.PieceCount, 3);
    engine = ThreeParts(0, 0, 0, 30, 0, 60);
    engine.PCX2[1] = 999;
    CombinePiece(engine, 0.01);
    EXPECT_EQ(engine.PieceCount, 3);
    engine = ThreeParts(0, 0, 0, 30, 0, 60);
    engine.PCY1[1] = 3001;
    engine.PCY1[2] = 6001;
    CombinePiece(engine, 0.01);
    EXPECT_EQ(engine.PieceCount, 3);
}

TEST(CombinePiece, TheEndOfTheStripDoesNotMove) {
    EngineArrays engine = ThreeParts(0, 0, 0.004F, 30.004F, 40, 0);
    CombinePiece(engine, 0.01);
    ASSERT_EQ(engine.PieceCount, 2);
    EXPECT_EQ(engine.PosX[0], 0);
    EXPECT_EQ(engine.PosY[0] + engine.PosL[0], 30.004F + 30.0F);
    EXPECT_EQ(engine.PieceLen[0], 60);
}

TEST(CombinePiece, TheRowsBehindAJoinedOneKeepTheirPlacements) {
    EngineArrays engine = ThreeParts(0, 0, 0, 30, 50, 0);
    testing::AddPiece(engine, {7, 8});
    Place(engine, 90, 1, 7, 8);
    CombinePiece(engine, 0.01);
    ASSERT_EQ(engine.PieceCount, 3);
    EXPECT_EQ(engine.PosX[1], 50);
    EXPECT_EQ(engine.PosX[2], 90);
    EXPECT_EQ(engine.PCX2[2], 700);
}

//   0   40      100   144
// 0 +----+             |
//   | 0  |   +--+      |    piece 1 touches nothing: it moves left against piece 0
// 30 |    |   |1 |      |
//   +----+   +--+
TEST(ShiftLeft, APieceThatTouchesNothingMovesAgainstTheNearestOneBesideIt) {
    EngineArrays engine = MakeEngine(144, {{40, 60}, {20, 20}});
    Place(engine, 0, 0, 40, 60);
    Place(engine, 100, 10, 20, 20);
    ShiftLeft(engine);
    EXPECT_EQ(engine.PosX[1], 40);
    EXPECT_EQ(engine.PosY[1], 10);
}

TEST(ShiftLeft, WithNothingBesideItThePieceMovesToTheRollsEdge) {
    EngineArrays engine = MakeEngine(144, {{40, 60}, {20, 20}});
    Place(engine, 0, 0, 40, 60);
    Place(engine, 100, 70, 20, 20);
    ShiftLeft(engine);
    EXPECT_EQ(engine.PosX[1], 0);
}

TEST(ShiftLeft, TouchingPiecesAndPiecesAtAnEdgeStay) {
    EngineArrays engine = MakeEngine(144, {{40, 60}, {20, 20}, {20, 20}, {20, 20}});
    Place(engine, 0, 0, 40, 60);    // at the left edge
    Place(engine, 124, 10, 20, 20); // at the far edge
    Place(engine, 110, 30, 20, 20); // shares part of an edge with piece 1
    Place(engine, 40, 50, 20, 20);  // beside piece 0
    ShiftLeft(engine);
    EXPECT_EQ(engine.PosX[0], 0);
    EXPECT_EQ(engine.PosX[1], 124);
    EXPECT_EQ(engine.PosX[2], 110);
    EXPECT_EQ(engine.PosX[3], 40);
}

TEST(ShiftLeft, ACornerAndTheStartOfTheRollAreNoContact) {
    EngineArrays engine = MakeEngine(144, {{40, 60}, {20, 20}, {20, 10}});
    Place(engine, 0, 0, 40, 60);
    Place(engine, 90, 0, 20, 20);   // stands on the roll's start alone
    Place(engine, 110, 20, 20, 10); // shares a corner with piece 1 alone
    ShiftLeft(engine);
    EXPECT_EQ(engine.PosX[1], 40);
    EXPECT_EQ(engine.PosX[2], 40);
}

TEST(ShiftLeft, EachPieceIsJudgedWhereTheOthersStandAtThatMoment) {
    EngineArrays engine = MakeEngine(144, {{20, 20}, {20, 20}});
    Place(engine, 50, 0, 20, 20);
    Place(engine, 90, 5, 20, 20);
    ShiftLeft(engine);
    EXPECT_EQ(engine.PosX[0], 0);
    EXPECT_EQ(engine.PosX[1], 20) << "against the first where it now stands";
}

} // namespace
} // namespace tarn
