#pragma once

#include "app/Types.h"
#include "engine/EngineArrays.h"

namespace tarn {

/// Save the pieces as they are, undivided: every case starts from them. Sets OrgCount.
void CopyFillPC(EngineArrays& engine);

/// Bring back the pieces that CopyFillPC saved; PieceCount becomes OrgCount.
void RestoreFillPC(EngineArrays& engine);

/// Cut every piece that is too wide for the usable width in two along the roll: a strip of the
/// usable width, appended, never divided along the roll, and the rest, which stays in the piece's
/// row. Looks once at each piece that is there on entry, so the rest of a piece more than twice the
/// usable width stays too wide. Sets OrgCount. Raises "Subscript out of range" beyond MaxPiece
/// pieces.
void CheckLargePC(EngineArrays& engine, Double dimScale);

/// Cut piece `i` into `parts` (2 .. 10) equal parts along the roll: each the share of the length
/// rounded up to whole units unless its fraction is below 0.1, and not below MinCut, so that the
/// last may run past the piece's end. The first part takes the piece's row, the others are appended
/// in order and take over its OrgPC, PCTurn, PCDivide and PCOrder. Raises "Subscript out of range"
/// beyond MaxPiece pieces.
void DivPiece(EngineArrays& engine, Integer i, Integer parts);

/// Divide every undivided piece k into `digits`(k) + 1 parts; sets CutCount to the sum of the
/// parts. A piece of one part keeps its row and coordinates untouched.
void DivideAll(EngineArrays& engine, const BoundedArray<Integer>& digits);

} // namespace tarn
