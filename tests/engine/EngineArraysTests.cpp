#include "app/ErrorNumber.h"
#include "engine/EngineArrays.h"

#include <gtest/gtest.h>

#include <vector>

namespace tarn {
namespace {

template <typename Array>
void ExpectPieceBound(Array& array, const char* name) {
    EXPECT_EQ(array.UpperBound(), 3000) << name;
    EXPECT_EQ(ErrorNumber([&] { return array[3000]; }), 0) << name;
    EXPECT_EQ(ErrorNumber([&] { return array[3001]; }), SubscriptNumber) << name;
    EXPECT_EQ(ErrorNumber([&] { return array[-1]; }), SubscriptNumber) << name;
}

void ExpectRowBounds(PieceRows& rows) {
    ExpectPieceBound(rows.PCX1, "PCX1");
    ExpectPieceBound(rows.PCX2, "PCX2");
    ExpectPieceBound(rows.PCY1, "PCY1");
    ExpectPieceBound(rows.PCY2, "PCY2");
    ExpectPieceBound(rows.OrgPC, "OrgPC");
    ExpectPieceBound(rows.PCDivide, "PCDivide");
    ExpectPieceBound(rows.PCTurn, "PCTurn");
    ExpectPieceBound(rows.PCOrder, "PCOrder");
}

TEST(EngineArrays, HasRoomFor3001PiecesInEveryArray) {
    EngineArrays engine;
    ExpectRowBounds(engine);
    ExpectRowBounds(engine.Undivided);
    ExpectPieceBound(engine.PieceWid, "PieceWid");
    ExpectPieceBound(engine.PieceLen, "PieceLen");
    ExpectPieceBound(engine.PosX, "PosX");
    ExpectPieceBound(engine.PosY, "PosY");
    ExpectPieceBound(engine.PosW, "PosW");
    ExpectPieceBound(engine.PosL, "PosL");
    ExpectPieceBound(engine.CaseRadix, "CaseRadix");
    ExpectPieceBound(engine.CaseDigit, "CaseDigit");
    ExpectPieceBound(engine.BestCase, "BestCase");
}

TEST(EngineArrays, DimAllArraysEmptiesThemAll) {
    EngineArrays engine;
    engine.RollWidth = 144;
    engine.PieceCount = engine.OrgCount = engine.CutCount = engine.PosCount = 3;
    engine.BestLen = engine.ResultLen = 120;
    engine.PCX2[2] = engine.PosY[2] = engine.Undivided.PCY2[1] = 1;

    engine.DimAllArrays();
    EXPECT_EQ(engine.RollWidth, 0);
    EXPECT_EQ(engine.PieceCount + engine.OrgCount + engine.CutCount + engine.PosCount, 0);
    EXPECT_EQ(engine.BestLen + engine.ResultLen, 0);
    EXPECT_EQ(engine.PCX2[2] + engine.PosY[2] + engine.Undivided.PCY2[1], 0);
    ExpectRowBounds(engine);
}

/// Rows 0 .. 3000, each field of each row a value of its own.
PieceRows NumberedRows() {
    PieceRows rows;
    for (Integer i = 0; i <= MaxPiece; ++i) {
        rows.PCX1[i] = static_cast<Single>(i + 1);
        rows.PCX2[i] = static_cast<Single>(i + 10001);
        rows.PCY1[i] = static_cast<Single>(i + 20001);
        rows.PCY2[i] = static_cast<Single>(i + 30001);
        rows.OrgPC[i] = static_cast<Integer>(i + 1);
        rows.PCDivide[i] = static_cast<Integer>(i + 4001);
        rows.PCTurn[i] = static_cast<Integer>(i + 8001);
        rows.PCOrder[i] = static_cast<Integer>(i + 12001);
    }
    return rows;
}

/// The eight fields of a row.
std::vector<Double> Row(const PieceRows& rows, Integer i) {
    return {rows.PCX1[i],
            rows.PCX2[i],
            rows.PCY1[i],
            rows.PCY2[i],
            static_cast<Double>(rows.OrgPC[i]),
            static_cast<Double>(rows.PCDivide[i]),
            static_cast<Double>(rows.PCTurn[i]),
            static_cast<Double>(rows.PCOrder[i])};
}

TEST(CopyRows, CopiesTheRowsInUseAndNoOther) {
    const PieceRows from = NumberedRows();
    const std::vector<Double> empty(8, 0.0);
    for (const Integer count : {Integer{0}, Integer{1}, Integer{2}, Integer{100}, Integer{3001}}) {
        PieceRows to;
        CopyRows(from, to, count);
        for (Integer i = 0; i <= MaxPiece; ++i) {
            ASSERT_EQ(Row(to, i), i < count ? Row(from, i) : empty) << count << ", row " << i;
        }
    }
}

TEST(CopyRows, RefusesMoreRowsThanThereAre) {
    const PieceRows from = NumberedRows();
    PieceRows to;
    EXPECT_EQ(ErrorNumber([&] {
                  CopyRows(from, to, 3002);
                  return 0;
              }),
              SubscriptNumber);
}

} // namespace
} // namespace tarn
