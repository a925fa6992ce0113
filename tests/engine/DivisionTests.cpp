#include "app/RunTimeError.h"
#include "engine/Division.h"
#include "engine/EngineTesting.h"
#include "engine/Pieces.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using testing::MakeEngine;

TEST(CopyFillPC, RestoreFillPCBringsBackTheUndividedPieces) {
    EngineArrays engine = MakeEngine(144, {{10, 100}, {20, 200}});
    engine.MinCut = 300;
    CopyFillPC(engine);
    EXPECT_EQ(engine.OrgCount, 2);
    const EngineArrays before = engine;
    DivPiece(engine, 0, 3);
    SwitchPiece(engine, 0, 1);
    RestoreFillPC(engine);
    EXPECT_EQ(engine.PieceCount, 2);
    for (Integer i = 0; i < 2; ++i) {
        EXPECT_EQ(engine.PCX1[i], before.PCX1[i]);
        EXPECT_EQ(engine.PCX2[i], before.PCX2[i]);
        EXPECT_EQ(engine.PCY1[i], before.PCY1[i]);
        EXPECT_EQ(engine.PCY2[i], before.PCY2[i]);
        EXPECT_EQ(engine.OrgPC[i], i);
        EXPECT_EQ(engine.PCDivide[i], 1);
        EXPECT_EQ(engine.PCTurn[i], before.PCTurn[i]);
        EXPECT_EQ(engine.PCOrder[i], i);
    }
}

TEST(DivPiece, PutsTheFirstPartInThePiecesRowAndAppendsTheOthersInOrder) {
    EngineArrays engine = MakeEngine(144, {{10, 90}, {20, 5}});
    engine.MinCut = 300;
    engine.PCTurn[0] = 1;
    engine.PCOrder[0] = 7;
    engine.PCDivide[0] = 1;
    DivPiece(engine, 0, 3);
    ASSERT_EQ(engine.PieceCount, 4);
    const struct {
        Integer Row;
        Single Top, Bottom;
    } parts[] = {{0, 0, 3000}, {2, 3000, 6000}, {3, 6000, 9000}};
    for (const auto& part : parts) {
        EXPECT_EQ(engine.PCY1[part.Row], part.Top);
        EXPECT_EQ(engine.PCY2[part.Row], part.Bottom);
        EXPECT_EQ(engine.PCX1[part.Row], 0);
        EXPECT_EQ(engine.PCX2[part.Row], 1000);
        EXPECT_EQ(engine.OrgPC[part.Row], 0);
        EXPECT_EQ(engine.PCTurn[part.Row], 1);
        EXPECT_EQ(engine.PCOrder[part.Row], 7);
        EXPECT_EQ(engine.PCDivide[part.Row], 1);
    }
    EXPECT_EQ(engine.OrgPC[1], 1);
    EXPECT_EQ(engine.PCY2[1], 500);
}

TEST(DivPiece, RoundsThePartUpUnlessItsFractionIsBelowATenth) {
    const struct {
        Single Length;
        Integer Parts;
        Single Part;
    } cases[] = {
        {1000, 3, 334},      // 333.33
        {1001, 2, 501},      // 500.5
        {1000, 4, 250},      // exact
        {1000.2F, 2, 501},   // 500.1: just a tenth
        {1000.1F, 2, 500},   // 500.05
        {2001, 20 / 2, 201}, // 200.1
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Length);
        EngineArrays engine = MakeEngine(144, {{10, 1}});
        engine.MinCut = 50;
        engine.PCY2[0] = c.Length;
        DivPiece(engine, 0, c.Parts);
        EXPECT_EQ(engine.PCY2[0] - engine.PCY1[0], c.Part);
        const auto last = static_cast<Integer>(engine.PieceCount - 1);
        EXPECT_EQ(engine.PCY2[last], c.Parts * c.Part) << "the parts lie end to end";
    }
}

TEST(DivPiece, APartIsNeverShorterThanTheMinimumCut) {
    EngineArrays engine = MakeEngine(144, {{10, 10}});
    engine.MinCut = 300;
    engine.PCY1[0] = 100;
    engine.PCY2[0] = 700;
    DivPiece(engine, 0, 6);
    ASSERT_EQ(engine.PieceCount, 6);
    EXPECT_EQ(engine.PCY1[0], 100);
    EXPECT_EQ(engine.PCY2[0], 400);
    EXPECT_EQ(engine.PCY1[5], 1600);
    EXPECT_EQ(engine.PCY2[5], 1900) << "the last runs past the piece's end";
}

TEST(DivPiece, MoreThanThreeThousandPiecesIsASubscriptError) {
    EngineArrays engine = MakeEngine(144);
    for (int i = 0; i < 2999; ++i) {
        testing::AddPiece(engine, {1, 10});
    }
    engine.MinCut = 100;
    EXPECT_NO_THROW(DivPiece(engine, 0, 2));
    try {
        DivPiece(engine, 1, 2);
        FAIL() << "a 3001st piece was taken";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), SubscriptNumber);
        EXPECT_FALSE(error.Advice().empty());
    }
}

TEST(DivideAll, APieceOfOnePartKeepsItsRowAndCoordinatesBitForBit) {
    EngineArrays engine = MakeEngine(144, {{10, 1}, {20, 100}});
    engine.MinCut = 300;
    engine.PCY2[0] = 123.456F;
    BoundedArray<Integer> digits(MaxPiece);
    digits[1] = 2;
    DivideAll(engine, digits);
    EXPECT_EQ(engine.PCY2[0], 123.456F);
    EXPECT_EQ(engine.CutCount, 4);
    EXPECT_EQ(engine.PieceCount, 4);
}

TEST(CheckLargePC, CutsAPieceTooWideInAStripAndARest) {
    EngineArrays engine = MakeEngine(144, {{200, 30}, {144, 30}});
    engine.PCX1[0] = 500;
    engine.PCX2[0] = 20500;
    engine.PCOrder[0] = 4;
    engine.PCTurn[0] = 1;
    CheckLargePC(engine, 0.01);
    ASSERT_EQ(engine.PieceCount, 3);
    EXPECT_EQ(engine.OrgCount, 3);
    EXPECT_EQ(engine.PCX1[2], 500);
    EXPECT_EQ(engine.PCX2[2], 500 + 14400);
    EXPECT_EQ(engine.PCY2[2], 3000);
    EXPECT_EQ(engine.OrgPC[2], 0);
    EXPECT_EQ(engine.PCTurn[2], 1);
    EXPECT_EQ(engine.PCOrder[2], 4);
    EXPECT_EQ(engine.PCDivide[2], 0) << "the strip is never divided along the roll";
    EXPECT_EQ(engine.PCX1[0], 500 + 14400);
    EXPECT_EQ(engine.PCX2[0], 20500);
    EXPECT_EQ(engine.PCDivide[0], 1);
    EXPECT_EQ(engine.PCX2[1], 14400) << "a piece as wide as the roll is not too wide";
}

TEST(CheckLargePC, ThePieceThatIsMoreThanTwiceTooWideStaysTooWideInItsRest) {
    EngineArrays engine = MakeEngine(100, {{350, 30}});
    CheckLargePC(engine, 0.01);
    ASSERT_EQ(engine.PieceCount, 2);
    EXPECT_EQ(engine.PCX1[0], 10000);
    EXPECT_EQ(engine.PCX2[0], 35000);
}

TEST(CheckLargePC, UsesTheUsableWidth) {
    EngineArrays engine = MakeEngine(144, {{143, 30}});
    engine.FillFlag = 0;
    CheckLargePC(engine, 0.01);
    ASSERT_EQ(engine.PieceCount, 2);
    EXPECT_EQ(engine.PCX2[1], 14200);
}

TEST(CheckLargePC, LessThanHalfAUnitTooWideIsNotTooWide) {
    EngineArrays engine = MakeEngine(144, {{144, 30}, {144, 30}});
    engine.PCX2[0] = 14400.4F;
    engine.PCX2[1] = 14400.6F;
    CheckLargePC(engine, 0.01);
    ASSERT_EQ(engine.PieceCount, 3);
    EXPECT_EQ(engine.OrgPC[2], 1);
}

} // namespace
} // namespace tarn
