#include "engine/Placement.h"

#include "engine/Pieces.h"
#include "engine/RollLayout.h"

#include <limits>

namespace tarn {

namespace {

constexpr Single EdgeAllowance = 2.0F; ///< inches kept free at the roll's edge

} // namespace

Single UsableWidth(const EngineArrays& engine) {
    return engine.FillFlag == 1 ? engine.RollWidth : engine.RollWidth - EdgeAllowance;
}

Single GetPCLen(const EngineArrays& engine) {
    Single length = 0;
    for (Integer i = 0; i < engine.PosCount; ++i) {
        const Single end = engine.PosY[i] + engine.PosL[i];
        if (end > length) {
            length = end;
        }
    }
    return length;
}

void ReorderPiece(EngineArrays& engine, Integer power, Double dimScale) {
    GetPieceSZ(engine, dimScale);
    QuickSortPiece(engine, 0, engine.CutCount, power);
    std::vector<PieceSize> pieces;
    for (Integer i = 0; i < engine.CutCount; ++i) {
        engine.PCOrder[i] = i;
        pieces.push_back({engine.PieceWid[i], engine.PieceLen[i]});
    }
    RollLayout layout;
    layout.PlaceAll(pieces, UsableWidth(engine), std::numeric_limits<Long>::max());
    engine.PosCount = 0;
    for (const Box& placed : layout.Placed()) {
        const Integer i = engine.PosCount;
        engine.PosX[i] = placed.X1;
        engine.PosY[i] = placed.Y1;
        engine.PosW[i] = engine.PieceWid[i];
        engine.PosL[i] = engine.PieceLen[i];
        CountUp(engine.PosCount);
    }
}

} // namespace tarn
