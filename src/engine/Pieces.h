#pragma once

#include "app/SharedState.h"
#include "engine/EngineArrays.h"
#include "engine/Geometry.h"

namespace tarn {

/// Advance a counter by one. Raises "Overflow" past 32767.
void CountUp(Integer& counter);

/// The size in inches between two edges: the difference as a Single, times DimScale, rounded once.
/// Raises "Overflow" when it is not finite.
Single SizeBetween(Single from, Single to, Double dimScale);

/// The key by which pieces are ordered: length ^ power × width, in Double. Raises "Overflow" when
/// it is not finite.
Double SizeKey(Single width, Single length, Integer power);

/// Fill PieceWid and PieceLen (inches) of pieces 0 .. PieceCount - 1 from their coordinates, by
/// SizeBetween.
void GetPieceSZ(EngineArrays& engine, Double dimScale);
/// The same for piece `i` alone.
void GetPieceSZ(EngineArrays& engine, Integer i, Double dimScale);

/// Exchange the across and along coordinates of every piece, without rounding.
void SwitchXY(EngineArrays& engine);

/// Transpose only the pieces whose PCTurn bit 0 differs from LayDir. Their new along-roll
/// coordinates are rounded to the nearest Integer, halves to even; raises "Overflow" when one does
/// not fit.
void SwitchXY2(EngineArrays& engine);

/// Exchange rows i and j of every per-piece array.
void SwitchPiece(EngineArrays& engine, long long i, long long j);

/// Exchange rows i and j of the per-piece and the placed-piece arrays together, so that a placement
/// stays with its piece.
void SwitchFillPC(EngineArrays& engine, long long i, long long j);
/// The same exchange, for the sort by placing order.
void SwitchPCOrder(EngineArrays& engine, long long i, long long j);

/// Order pieces first .. last - 1 by descending SizeKey.
/// A power of 1 orders by area, 0 by width, 2 by length squared times width. Equal keys keep their
/// order. Raises as SizeKey.
void QuickSortPiece(EngineArrays& engine, Integer first, Integer last, Integer power);

/// Order pieces first .. last - 1, with their placements, by ascending PCOrder; stable.
void QuickSortPCOrder(EngineArrays& engine, Integer first, Integer last);

/// Order pieces first .. last - 1, with their placements, by ascending OrgPC, which restores the
/// order of creation; stable.
void QuickSortOrgpc(EngineArrays& engine, Integer first, Integer last);

/// The rectangle of placed piece `i` on the roll, inches.
Box PlacedBox(const EngineArrays& engine, long long i);

} // namespace tarn
