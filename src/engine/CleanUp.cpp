#include "engine/CleanUp.h"

#include "app/Lengths.h"
#include "engine/Geometry.h"
#include "engine/Pieces.h"
#include "engine/Placement.h"

#include <cmath>

namespace tarn {

namespace {

/// Whether two edges are the same line: at most the length tolerance apart.
bool SameEdge(Single a, Single b) {
    return IsWithinTolerance(std::abs(a - b));
}

/// Whether an extent (inches) is more than the length tolerance.
bool IsExtent(Single extent) {
    return !IsWithinTolerance(extent);
}

/// Whether part `j` continues part `i` of the same piece, both in the piece and on the roll.
bool Continues(const EngineArrays& engine, Integer i, Integer j) {
    return engine.OrgPC[i] == engine.OrgPC[j] && engine.PCX1[i] == engine.PCX1[j] &&
           engine.PCX2[i] == engine.PCX2[j] && engine.PCY2[i] == engine.PCY1[j] &&
           SameEdge(engine.PosX[i], engine.PosX[j]) &&
           SameEdge(engine.PosY[i] + engine.PosL[i], engine.PosY[j]);
}

/// Take row `row` out of all arrays; the rows behind it move up.
void RemoveRow(EngineArrays& engine, Integer row) {
    for (long long k = row; k + 1 < engine.PieceCount; ++k) {
        SwitchFillPC(engine, k, k + 1);
    }
    --engine.PieceCount;
    --engine.PosCount;
    --engine.CutCount;
}

/// Join row `j` to row `i`; the end of the strip does not move.
void CombineTwo(EngineArrays& engine, Integer i, Integer j, Double dimScale) {
    engine.PCY2[i] = engine.PCY2[j];
    GetPieceSZ(engine, i, dimScale);
    const Single end = engine.PosY[j] + engine.PosL[j];
    engine.PosL[i] = end - engine.PosY[i];
    RemoveRow(engine, j);
}

/// The first row that continues row `i`; -1 when none does.
Integer FirstContinuation(const EngineArrays& engine, Integer i) {
    for (Integer j = 0; j < engine.PieceCount; ++j) {
        if (j != i && Continues(engine, i, j)) {
            return j;
        }
    }
    return -1;
}

bool Touch(const Box& a, const Box& b) {
    const bool beside = SameEdge(a.X2, b.X1) || SameEdge(b.X2, a.X1);
    const bool behind = SameEdge(a.Y2, b.Y1) || SameEdge(b.Y2, a.Y1);
    return (beside && IsExtent(CommonLength(a, b))) || (behind && IsExtent(CommonWidth(a, b)));
}

bool TouchesAnything(const EngineArrays& engine, Integer i) {
    const Box piece = PlacedBox(engine, i);
    if (SameEdge(piece.X1, 0) || SameEdge(piece.X2, UsableWidth(engine))) {
        return true;
    }
    for (Integer j = 0; j < engine.PosCount; ++j) {
        if (j != i && Touch(piece, PlacedBox(engine, j))) {
            return true;
        }
    }
    return false;
}

/// The nearest right edge to the left of piece `i` along its extent; the roll's edge without one.
Single EdgeToTheLeft(const EngineArrays& engine, Integer i) {
    const Box piece = PlacedBox(engine, i);
    Single edge = 0;
    for (Integer j = 0; j < engine.PosCount; ++j) {
        const Box other = PlacedBox(engine, j);
        if (j != i && IsExtent(CommonLength(piece, other)) &&
            IsWithinTolerance(other.X2 - piece.X1) && other.X2 > edge) {
            edge = other.X2;
        }
    }
    return edge;
}

} // namespace

void CheckFill(const EngineArrays& engine) {
    const Single usable = UsableWidth(engine);
    bool sound = engine.PosCount == engine.PieceCount;
    for (Integer i = 0; sound && i < engine.PosCount; ++i) {
        const Box piece = PlacedBox(engine, i);
        const bool tooWide = IsExtent(engine.PosW[i] - usable);
        sound = piece.X1 >= 0 && piece.Y1 >= 0 && (tooWide || IsWithinTolerance(piece.X2 - usable));
        for (Integer j = 0; sound && j < i; ++j) {
            sound = !Overlaps(piece, PlacedBox(engine, j));
        }
    }
    if (!sound) {
        RaiseInternal("The layout failed its own check and was discarded.");
    }
}

void CombinePiece(EngineArrays& engine, Double dimScale) {
    Integer i = 0;
    while (i < engine.PieceCount) {
        const Integer j = FirstContinuation(engine, i);
        if (j < 0) {
            ++i;
            continue;
        }
        CombineTwo(engine, i, j, dimScale);
        // A join changes no piece's beginning, so the rows before i still have nothing to join;
        // only row i itself is looked at again, one place further up if j stood before it.
        if (j < i) {
            --i;
        }
    }
}

void ShiftLeft(EngineArrays& engine) {
    for (Integer i = 0; i < engine.PosCount; ++i) {
        if (!TouchesAnything(engine, i)) {
            engine.PosX[i] = EdgeToTheLeft(engine, i);
        }
    }
}

} // namespace tarn
