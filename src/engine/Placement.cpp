#include "engine/Placement.h"

#include "app/Lengths.h"
#include "app/Numbers.h"
#include "engine/Pieces.h"

namespace tarn {

namespace {

constexpr Single EdgeAllowance = 2.0F; ///< inches kept free at the roll's edge

Single KeyOf(const EngineArrays& engine, long long k) {
    return CornerKey(engine.StartPX[k], engine.StartPY[k]);
}

bool SameCorner(const EngineArrays& engine, Integer i, Integer j) {
    return engine.StartPX[i] == engine.StartPX[j] && engine.StartPY[i] == engine.StartPY[j];
}

/// The first corner at which the piece fits and is free; -1 when there is none.
Integer FreeCorner(const EngineArrays& engine, Single w, Single l) {
    const Single usable = UsableWidth(engine);
    for (Integer k = 0; k <= engine.StartCount; ++k) {
        if (k > 0 && SameCorner(engine, k, static_cast<Integer>(k - 1))) {
            continue;
        }
        const Single right = engine.StartPX[k] + w;
        if (IsWithinTolerance(right - usable) && !PCOverLap(engine, k, w, l)) {
            return k;
        }
    }
    return -1;
}

/// Where a piece taken to corner `k` stands across the roll.
Single AcrossPosition(const EngineArrays& engine, Integer k, Single w, Single l) {
    const Single corner = engine.StartPX[k];
    if (corner == 0 || IsAnyRightSide(engine, k)) {
        return corner;
    }
    // The push leaves the free area in one block, but pieces that begin lower down may be in the
    // way where the row itself is free.
    const Single pushed = SingMax(corner, UsableWidth(engine) - w);
    return OverlapsPlaced(engine, pushed, engine.StartPY[k], w, l) ? corner : pushed;
}

/// Record corner (x, y) behind the last one and bring the corners into order.
void AppendCorner(EngineArrays& engine, Single x, Single y) {
    CountUp(engine.StartCount);
    engine.StartPX[engine.StartCount] = x;
    engine.StartPY[engine.StartCount] = y;
    QuickSortStartPY(engine, 0, engine.StartCount);
    CheckStartPC(engine);
}

void RecordPlaced(EngineArrays& engine, Single x, Single y, Single w, Single l) {
    engine.PosX[engine.PosCount] = x;
    engine.PosY[engine.PosCount] = y;
    engine.PosW[engine.PosCount] = w;
    engine.PosL[engine.PosCount] = l;
    CountUp(engine.PosCount);
}

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

Single CornerKey(Single x, Single y) {
    return CSng(static_cast<Double>(y) + static_cast<Double>(x) / 1000);
}

void QuickSortStartPY(EngineArrays& engine, Integer first, Integer last) {
    // Insertion suits corners: all but two are in order already, and nothing is allocated.
    for (long long i = first + 1; i <= last; ++i) {
        const Single key = KeyOf(engine, i);
        const Single x = engine.StartPX[i];
        const Single y = engine.StartPY[i];
        long long place = i;
        while (place > first && KeyOf(engine, place - 1) > key) {
            engine.StartPX[place] = engine.StartPX[place - 1];
            engine.StartPY[place] = engine.StartPY[place - 1];
            --place;
        }
        engine.StartPX[place] = x;
        engine.StartPY[place] = y;
    }
}

void CheckStartPC(EngineArrays& engine) {
    Integer kept = 0; // corners 0 .. kept - 1 are kept
    for (Integer j = 0; j <= engine.StartCount; ++j) {
        const Single key = KeyOf(engine, j);
        bool known = false;
        // Equal corners have equal keys, so they stand in one run.
        for (Integer i = kept; i > 0 && !known && KeyOf(engine, i - 1) == key; --i) {
            known = SameCorner(engine, static_cast<Integer>(i - 1), j);
        }
        if (!known) {
            engine.StartPX[kept] = engine.StartPX[j];
            engine.StartPY[kept] = engine.StartPY[j];
            ++kept;
        }
    }
    engine.StartCount = static_cast<Integer>(kept - 1);
}

bool StandsRight(const Box& placed, Single x, Single y, Single usable) {
    return ISLinePass({x, y, usable, y}, placed) || (placed.Y1 == y && placed.X1 > x);
}

bool OverlapsPlaced(const EngineArrays& engine, Single x, Single y, Single w, Single l) {
    const Box piece{x, y, x + w, y + l};
    for (Integer i = 0; i < engine.PosCount; ++i) {
        if (Overlaps(piece, PlacedBox(engine, i))) {
            return true;
        }
    }
    return false;
}

bool PCOverLap(const EngineArrays& engine, Integer k, Single w, Single l) {
    return OverlapsPlaced(engine, engine.StartPX[k], engine.StartPY[k], w, l);
}

bool IsAnyRightSide(const EngineArrays& engine, Integer k) {
    const Single x = engine.StartPX[k];
    const Single y = engine.StartPY[k];
    const Single usable = UsableWidth(engine);
    for (Integer i = 0; i < engine.PosCount; ++i) {
        if (StandsRight(PlacedBox(engine, i), x, y, usable)) {
            return true;
        }
    }
    return false;
}

Single scanleftnew(const EngineArrays& engine, Single px, Single py, Single limit, Integer n) {
    for (long long i = n - 1; i >= 0; --i) {
        const Box placed = PlacedBox(engine, i);
        if (StopsLeft(placed, px, py, limit)) {
            limit = placed.X2;
        }
    }
    return limit;
}

Single scanupnew(const EngineArrays& engine, Single px, Single py, Single limit, Integer n) {
    for (long long i = n - 1; i >= 0; --i) {
        const Box placed = PlacedBox(engine, i);
        if (StopsUp(placed, px, py, limit)) {
            limit = placed.Y2;
        }
    }
    return limit;
}

Integer FillOnePieceNew(EngineArrays& engine, Single w, Single l) {
    const Integer k = FreeCorner(engine, w, l);
    if (k < 0) {
        const Single behind = GetPCLen(engine);
        RecordPlaced(engine, 0, behind, w, l);
        AppendCorner(engine, 0, behind + l);
        return k;
    }
    const Single x = AcrossPosition(engine, k, w, l);
    const Single y = engine.StartPY[k];
    const Single right = x + w;
    const Single end = y + l;
    const Single up = scanupnew(engine, right, y, 0, engine.PosCount);
    const Single left = scanleftnew(engine, x, end, 0, engine.PosCount);
    RecordPlaced(engine, x, y, w, l);
    engine.StartPX[k] = right;
    engine.StartPY[k] = up;
    AppendCorner(engine, left, end);
    return k;
}

void ReorderPiece(EngineArrays& engine, Integer power, Double dimScale) {
    GetPieceSZ(engine, dimScale);
    QuickSortPiece(engine, 0, engine.CutCount, power);
    engine.PosCount = 0;
    engine.StartCount = 0;
    engine.StartPX[0] = 0;
    engine.StartPY[0] = 0;
    for (Integer i = 0; i < engine.CutCount; ++i) {
        engine.PCOrder[i] = i;
        FillOnePieceNew(engine, engine.PieceWid[i], engine.PieceLen[i]);
    }
}

} // namespace tarn
