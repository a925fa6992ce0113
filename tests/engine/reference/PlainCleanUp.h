#pragma once

#include "engine/reference/PlainSearch.h"

#include <vector>

/// What is done to the chosen layout. Row i of the pieces lies where row i of the placed says.
namespace tarn::reference {

/// True when the piece is wider than the usable width (inches) by the tolerance or more.
bool TooWide(const PlainPiece& piece, float usable);

/// Raises RunTimeError 51 unless every piece is placed, inside the usable width (a piece too wide
/// for it excepted), and no two share an area.
void CheckLayout(const std::vector<PlainPiece>& rows, const std::vector<PlainPlaced>& placed,
                 float usable);

/// Joins parts of one piece that came to lie end to end.
void JoinParts(std::vector<PlainPiece>& rows, std::vector<PlainPlaced>& placed);

/// Moves pieces that touch nothing to the left.
void ShiftLooseLeft(std::vector<PlainPlaced>& placed, float usable);

} // namespace tarn::reference
