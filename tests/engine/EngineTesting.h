#pragma once

#include "app/SharedState.h"
#include "engine/EngineArrays.h"

#include <initializer_list>
#include <random>

namespace tarn::testing {

/// A whole number 0 .. `bound` - 1, the same for equal seeds with every standard library.
inline int Below(std::mt19937& random, int bound) {
    return static_cast<int>(random() % static_cast<unsigned>(bound));
}

/// Width across and length along the roll of a piece, inches.
struct Size {
    double Wid;
    double Len;
};

/// Append a divisible piece of that size at (0, 0), in coordinate units.
inline void AddPiece(EngineArrays& engine, Size size, Integer divide = 1) {
    const Integer row = engine.PieceCount;
    engine.PCX1[row] = 0;
    engine.PCY1[row] = 0;
    engine.PCX2[row] = static_cast<Single>(size.Wid * 100);
    engine.PCY2[row] = static_cast<Single>(size.Len * 100);
    engine.OrgPC[row] = row;
    engine.PCDivide[row] = divide;
    engine.PCTurn[row] = engine.LayDir;
    engine.PCOrder[row] = row;
    engine.PieceCount = static_cast<Integer>(row + 1);
    engine.OrgCount = engine.PieceCount;
}

/// A roll of that width with those pieces; the whole width may be used.
inline EngineArrays MakeEngine(Single rollWidth, std::initializer_list<Size> pieces = {}) {
    EngineArrays engine;
    engine.RollWidth = rollWidth;
    engine.FillFlag = 1;
    for (const Size& size : pieces) {
        AddPiece(engine, size);
    }
    engine.CutCount = engine.PieceCount;
    return engine;
}

/// Record a piece as placed, inches.
inline void Place(EngineArrays& engine, Single x, Single y, Single w, Single l) {
    engine.PosX[engine.PosCount] = x;
    engine.PosY[engine.PosCount] = y;
    engine.PosW[engine.PosCount] = w;
    engine.PosL[engine.PosCount] = l;
    engine.PosCount = static_cast<Integer>(engine.PosCount + 1);
}

} // namespace tarn::testing
