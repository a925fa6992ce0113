#include "engine/Division.h"

#include "app/Lengths.h"
#include "app/Numbers.h"
#include "app/Text.h"
#include "engine/Pieces.h"
#include "engine/Placement.h"

#include <algorithm>

namespace tarn {

namespace {

/// Put the parts into the piece arrays in place of piece `i`.
void SwitchFill(EngineArrays& engine, Integer i, Integer parts, const PartEdges& edges) {
    for (Integer part = 0; part < parts; ++part) {
        const Integer row = part == 0 ? i : AppendCopy(engine, i);
        engine.PCY1[row] = edges[static_cast<std::size_t>(part)];
        engine.PCY2[row] = edges[static_cast<std::size_t>(part) + 1];
    }
}

} // namespace

Integer AppendCopy(EngineArrays& engine, Integer i) {
    const Integer row = engine.PieceCount;
    if (row >= MaxPiece) {
        RaiseSubscript("There are more than " + TrimStr(MaxPiece) +
                       " pieces: estimate the rooms in two projects.");
    }
    CopyRow(engine, i, engine, row);
    CountUp(engine.PieceCount);
    return row;
}

void CopyFillPC(EngineArrays& engine) {
    CopyRows(engine, engine.Undivided, engine.PieceCount);
    engine.OrgCount = engine.PieceCount;
}

void RestoreFillPC(EngineArrays& engine) {
    CopyRows(engine.Undivided, engine, engine.OrgCount);
    engine.PieceCount = engine.OrgCount;
}

void CheckLargePC(EngineArrays& engine, Double dimScale) {
    const Single usable = UsableWidth(engine);
    const Integer count = engine.PieceCount;
    for (Integer i = 0; i < count; ++i) {
        const Single across = engine.PCX2[i] - engine.PCX1[i];
        const Single width = CSng(static_cast<Double>(across) * dimScale);
        if (IsWithinTolerance(width - usable)) {
            continue;
        }
        const Integer strip = AppendCopy(engine, i);
        engine.PCX2[strip] =
            CSng(static_cast<Double>(engine.PCX1[i]) + static_cast<Double>(usable) / dimScale);
        engine.PCDivide[strip] = 0;
        engine.PCX1[i] = engine.PCX2[strip];
    }
    engine.OrgCount = engine.PieceCount;
}

PartEdges EdgesOfParts(Single top, Single bottom, Integer parts, Integer minCut) {
    constexpr Double RoundingUp = 0.9; // per part; shares below a tenth of a unit are dropped
    const Single length = bottom - top;
    const Double share = Int((static_cast<Double>(length) + parts * RoundingUp) / parts);
    const Double partLength = std::max(share, static_cast<Double>(minCut));
    PartEdges edges{};
    for (Integer edge = 0; edge <= parts; ++edge) {
        edges.at(static_cast<std::size_t>(edge)) =
            CSng(edge * partLength + static_cast<Double>(top));
    }
    return edges;
}

void DivPiece(EngineArrays& engine, Integer i, Integer parts) {
    SwitchFill(engine, i, parts,
               EdgesOfParts(engine.PCY1[i], engine.PCY2[i], parts, engine.MinCut));
}

void DivideAll(EngineArrays& engine, const BoundedArray<Integer>& digits) {
    engine.CutCount = 0;
    for (Integer k = 0; k < engine.OrgCount; ++k) {
        const auto parts = static_cast<Integer>(digits[k] + 1);
        if (parts > 1) {
            DivPiece(engine, k, parts);
        }
        engine.CutCount = ToInteger(engine.CutCount + parts);
    }
}

} // namespace tarn
