#pragma once

#include "engine/EngineArrays.h"
#include "engine/Geometry.h"

namespace tarn {

/// The width that pieces may use, inches: the whole roll when FillFlag is 1, else two inches less.
Single UsableWidth(const EngineArrays& engine);

/// The roll length in use, inches: the largest PosY + PosL over the placed pieces, 0 without any.
Single GetPCLen(const EngineArrays& engine);

/// The key by which corners are ordered: y + x / 1000, computed in Double and rounded once to
/// Single. The position along the roll decides, the position across breaks near-ties. Raises
/// "Overflow" when it is not finite.
Single CornerKey(Single x, Single y);

/// Order corners first .. last (both included) by ascending CornerKey. Equal keys keep their order.
void QuickSortStartPY(EngineArrays& engine, Integer first, Integer last);

/// Remove every corner among 0 .. StartCount that equals an earlier one exactly. The corners must be
/// in order (QuickSortStartPY).
void CheckStartPC(EngineArrays& engine);

/// The one-piece tests of the scans below, for a placed piece.
///
/// Whether its right edge, not left of `limit` and not right of `px`, stops a point that moves left
/// on the row `py`: the piece covers the row. One that ends exactly at `py` does not.
constexpr bool StopsLeft(const Box& placed, Single px, Single py, Single limit) {
    return placed.X2 >= limit && placed.X2 <= px && placed.Y1 <= py && py < placed.Y2;
}
/// Whether its end, not before `limit` and not beyond `py`, stops a point that moves up the column
/// `px`.
constexpr bool StopsUp(const Box& placed, Single px, Single py, Single limit) {
    return placed.Y2 >= limit && placed.Y2 <= py && placed.X1 <= px && px < placed.X2;
}
/// Whether it stands to the right of a corner at (x, y): its rectangle meets the row from the
/// corner to the usable edge, or it starts on the very same row further right.
bool StandsRight(const Box& placed, Single x, Single y, Single usable);

/// Whether a piece of `w` × `l` inches with its corner at (x, y) would overlap a placed piece.
bool OverlapsPlaced(const EngineArrays& engine, Single x, Single y, Single w, Single l);
/// The same at corner `k`.
bool PCOverLap(const EngineArrays& engine, Integer k, Single w, Single l);

/// Whether a placed piece stands to the right of corner `k` (StandsRight).
bool IsAnyRightSide(const EngineArrays& engine, Integer k);

/// The rightmost right edge of the first `n` placed pieces that stops a point moving left from
/// (px, py) (StopsLeft); `limit` when there is none.
Single scanleftnew(const EngineArrays& engine, Single px, Single py, Single limit, Integer n);

/// The furthest end of the first `n` placed pieces that stops a point moving up from (px, py)
/// (StopsUp); `limit` when there is none.
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
