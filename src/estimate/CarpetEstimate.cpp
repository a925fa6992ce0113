#include "estimate/CarpetEstimate.h"

#include "app/Lengths.h"
#include "app/Numbers.h"
#include "app/RunTimeError.h"
#include "app/Text.h"
#include "engine/Geometry.h"
#include "engine/Pieces.h"

namespace tarn {

namespace {

/// A room's rectangle turned so that X runs across the roll.
Box AcrossRoll(const Box& room, bool downLay) {
    return downLay ? room : Box{room.Y1, room.X1, room.Y2, room.X2};
}

Box RoomBox(const SharedState& state, Integer room) {
    return {state.RoomX(room, 0), state.RoomY(room, 0), state.RoomX(room, 1), state.RoomY(room, 1)};
}

void AppendCut(SharedState& state, const Box& cut) {
    const Integer row = state.ECutCount;
    if (row > MaxPiece) {
        RaiseSubscript("There are more than " + TrimStr(MaxPiece + 1) +
                       " cuts: choose a wider roll or estimate the rooms in two projects.");
    }
    state.ECutX1[row] = cut.X1;
    state.ECutX2[row] = cut.X2;
    state.ECutY1[row] = cut.Y1;
    state.ECutY2[row] = cut.Y2;
    CountUp(state.ECutCount);
}

void AppendPiece(EngineArrays& engine, const Box& piece, bool downLay) {
    const Integer row = engine.PieceCount;
    engine.PCX1[row] = piece.X1;
    engine.PCX2[row] = piece.X2;
    engine.PCY1[row] = piece.Y1;
    engine.PCY2[row] = piece.Y2;
    engine.PCTurn[row] = downLay ? 0 : 1;
    engine.OrgPC[row] = row;
    engine.PCDivide[row] = 1;
    engine.PCOrder[row] = row;
    CountUp(engine.PieceCount);
}

/// Whether length `a` is at least `b` (inches), or the same length.
bool IsAtLeast(Double a, Double b) {
    return IsWithinTolerance(CSng(b - a));
}

void CutRoom(SharedState& state, EngineArrays& engine, const Box& room, bool downLay) {
    const Box turned = AcrossRoll(room, downLay);
    const auto rollWidth = static_cast<Double>(engine.RollWidth);
    const auto edge = [&](Integer k) {
        return CSng(static_cast<Double>(turned.X1) + (k * rollWidth) / state.DimScale);
    };
    Double left = static_cast<Double>(turned.X2 - turned.X1) * state.DimScale;
    Integer k = 0;
    while (IsAtLeast(left, rollWidth)) {
        const auto next = ToInteger(k + 1);
        AppendCut(state, AcrossRoll({edge(k), turned.Y1, edge(next), turned.Y2}, downLay));
        left -= rollWidth;
        k = next;
    }
    if (!IsWithinTolerance(CSng(left))) {
        const Box piece{edge(k), turned.Y1, turned.X2, turned.Y2};
        AppendPiece(engine, AcrossRoll(piece, downLay), downLay);
    }
}

} // namespace

void EmptyEstimate(SharedState& state, EngineArrays& engine, CarpetEstimate& estimate) {
    state.ECutCount = 0;
    engine.PieceCount = 0;
    engine.OrgCount = 0;
    engine.PosCount = 0;
    engine.CaseCount = 0;
    engine.BestLen = 0;
    engine.BestMode = 0;
    engine.ResultLen = 0;
    estimate.SavedFillCount = 0;
    estimate.Improved.reset();
}

void SaveFill(const EngineArrays& engine, CarpetEstimate& estimate) {
    CopyRows(engine, estimate.SavedFills, engine.PieceCount);
    estimate.SavedFillCount = engine.PieceCount;
}

ConvertResult ConvertData(SharedState& state, EngineArrays& engine, CarpetEstimate& estimate,
                          bool downLay) {
    EmptyEstimate(state, engine, estimate);
    try {
        for (Integer room = 0; room < state.ObjNum; ++room) {
            const bool hasArea = state.RoomWidth[room] > 0 && state.RoomLength[room] > 0;
            if (hasArea && state.RoomCarpet[room] == estimate.CarpetNo) {
                CutRoom(state, engine, RoomBox(state, room), downLay);
            }
        }
    } catch (const RunTimeError&) {
        EmptyEstimate(state, engine, estimate);
        throw;
    }
    if (engine.PieceCount > 0) {
        engine.OrgCount = engine.PieceCount;
        SaveFill(engine, estimate);
        engine.FillFlag = 1;
        return ConvertResult::Fills;
    }
    return state.ECutCount > 0 ? ConvertResult::CutsOnly : ConvertResult::Nothing;
}

} // namespace tarn
