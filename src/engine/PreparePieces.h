#pragma once

#include "engine/Search.h"

namespace tarn {

/// The undivided pieces that a search lays out, from a job's pieces: turned so that they lie along
/// Y; cut to the roll's width; the longest first (see PieceOrder.h). Every case divides these.
///
/// A piece that is too wide for the roll is cut in two along it: a strip as wide as the roll, which
/// is never divided, and the rest. A piece is cut once, so the rest of one more than twice as wide
/// as the roll stays too wide.
///
/// Raises "Subscript out of range" when that gives more than MaxPieces pieces, "Overflow" when a
/// size is not finite.
std::vector<Piece> PreparePieces(const SearchJob& job);

} // namespace tarn
