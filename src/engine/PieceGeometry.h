// Sizes of pieces in inches, from their edges in coordinate units; pieces turned.

#pragma once

#include "engine/Geometry.h"
#include "engine/Piece.h"

namespace tarn {

/// Across and along extent of a piece on the roll, inches.
struct PieceSize {
    Single Width;
    Single Length;

    bool operator==(const PieceSize&) const = default;
};

/// The size in inches between two edges in coordinate units: the difference as a Single, times the
/// scale, rounded once. Raises "Overflow" when it is not finite.
Single SizeBetween(Single from, Single to, Double scale);

/// The size of a piece that lies along Y. Raises as SizeBetween.
PieceSize SizeOf(const Piece& piece, Double scale);

/// The piece with its across and along edges exchanged.
Piece Transposed(const Piece& piece);

/// The rectangle of a placed piece on the roll, inches.
Box BoxOf(const Placed& placed);

} // namespace tarn
