#include "engine/PieceGeometry.h"

#include "base/Numbers.h"

#include <utility>

namespace tarn {

Single SizeBetween(Single from, Single to, Double scale) {
    const Single difference = to - from;
    return CSng(static_cast<Double>(difference) * scale);
}

PieceSize SizeOf(const Piece& piece, Double scale) {
    return {SizeBetween(piece.X1, piece.X2, scale), SizeBetween(piece.Y1, piece.Y2, scale)};
}

Piece Transposed(const Piece& piece) {
    Piece turned = piece;
    std::swap(turned.X1, turned.Y1);
    std::swap(turned.X2, turned.Y2);
    return turned;
}

Box BoxOf(const Placed& placed) {
    return {placed.X, placed.Y, placed.X + placed.Width, placed.Y + placed.Length};
}

} // namespace tarn
