#pragma once

#include "engine/EngineArrays.h"

namespace tarn {

/// The width that pieces may use, inches: the whole roll when FillFlag is 1, else two inches less.
Single UsableWidth(const EngineArrays& engine);

/// The roll length in use, inches: the largest PosY + PosL over the placed pieces, 0 without any.
Single GetPCLen(const EngineArrays& engine);

/// Order corners first .. last (both included) by ascending StartPY + StartPX / 1000, computed in
/// Double and rounded once to Single: the position along the roll decides, the position across
/// breaks near-ties. Equal keys keep their order. Raises "Overflow" for a key that is not finite.
void QuickSortStartPY(EngineArrays& engine, Integer first, Integer last);

/// Remove every corner among 0 .. StartCount that equals an earlier one exactly.
void CheckStartPC(EngineArrays& engine);

/// Whether a piece of `w` × `l` inches with its corner at (x, y) would overlap a placed piece.
bool OverlapsPlaced(const EngineArrays& engine, Single x, Single y, Single w, Single l);
/// The same at corner `k`.
bool PCOverLap(const EngineArrays& engine, Integer k, Single w, Single l);

/// Whether a placed piece stands to the right of corner `k` on its row: its rectangle meets the row
/// from the corner to the usable edge, or it starts on the very same row further right.
bool IsAnyRightSide(const EngineArrays& engine, Integer k);

/// The rightmost right edge, not left of `limit` and not right of `px`, of the first `n` placed
/// pieces that cover the row `py`; `limit` when there is none. A piece that ends exactly at `py`
/// does not cover it.
Single scanleftnew(const EngineArrays& engine, Single px, Single py, Single limit, Integer n);

/// The furthest end, not before `limit` and not beyond `py`, of the first `n` placed pieces that
/// cover the column `px`; `limit` when there is none.
Single scanupnew(const EngineArrays& engine, Single px, Single py, Single limit, Integer n);

/// Place a piece of `w` × `l` inches at the first free corner, in corner order, or, when it fits at
/// none, at the left edge behind everything placed so far. A piece that would stand alone on its
/// row is pushed against the far edge of the usable width where that is free. Updates the corners.
/// Returns the number of the corner taken, or -1 for none.
Integer FillOnePieceNew(EngineArrays& engine, Single w, Single l);

/// Sort the pieces 0 .. CutCount - 1 by size with the given power (see QuickSortPiece), number them
/// in that order (PCOrder) and place them one by one on the empty roll.
void ReorderPiece(EngineArrays& engine, Integer power, Double dimScale);

} // namespace tarn
