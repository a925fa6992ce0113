#pragma once

#include "app/Types.h"
#include "engine/EngineArrays.h"

#include <array>

namespace tarn {

/// Save the pieces as they are, undivided: every case starts from them. Sets OrgCount.
void CopyFillPC(EngineArrays& engine);

/// Append a copy of piece `i`; returns its row. Raises "Subscript out of range" beyond MaxPiece
/// pieces.
Integer AppendCopy(EngineArrays& engine, Integer i);

/// Bring back the pieces that CopyFillPC saved; PieceCount becomes OrgCount.
void RestoreFillPC(EngineArrays& engine);

/// Cut every piece that is too wide for the usable width in two along the roll: a strip of the
/// usable width, appended, never divided along the roll, and the rest, which stays in the piece's
/// row. Looks once at each piece that is there on entry, so the rest of a piece more than twice the
/// usable width stays too wide. Sets OrgCount. Raises "Subscript out of range" beyond MaxPiece
/// pieces.
void CheckLargePC(EngineArrays& engine, Double dimScale);

/// An option has one digit for the parts of a piece, so no piece has more.
inline constexpr Integer MostParts = 10;

/// The edges along the roll of the parts of one piece; part p lies between edges p and p + 1.
using PartEdges = std::array<Single, MostParts + 1>;

/// The edges of `parts` equal parts of a piece from `top` to `bottom` (coordinate units): each is
/// the share of the length, rounded up to whole units unless its fraction is below 0.1, and not
/// below `minCut`; so the last may run past the piece's end.
PartEdges EdgesOfParts(Single top, Single bottom, Integer parts, Integer minCut);

/// Cut piece `i` into `parts` (2 .. MostParts) parts along the roll (EdgesOfParts). The first part
/// takes the piece's row, the others are appended in order and take over its OrgPC, PCTurn,
/// PCDivide and PCOrder. Raises "Subscript out of range" beyond MaxPiece pieces.
void DivPiece(EngineArrays& engine, Integer i, Integer parts);

/// Divide every undivided piece k into `digits`(k) + 1 parts; sets CutCount to the sum of the
/// parts. A piece of one part keeps its row and coordinates untouched.
void DivideAll(EngineArrays& engine, const BoundedArray<Integer>& digits);

} // namespace tarn
