#include "engine/PreparePieces.h"

#include "base/Lengths.h"
#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "base/Words.h"
#include "engine/PieceOrder.h"

namespace tarn {

namespace {

std::vector<Piece> AlongTheRoll(const SearchJob& job) {
    std::vector<Piece> pieces = job.Pieces;
    if (job.Direction == Lay::Cross) {
        for (Piece& piece : pieces) {
            piece = Transposed(piece);
        }
    }
    return pieces;
}

/// Take a strip as wide as the roll off every piece that is too wide; the strips go behind all.
void CutToWidth(std::vector<Piece>& pieces, const SearchJob& job) {
    const std::size_t count = pieces.size();
    for (std::size_t i = 0; i < count; ++i) {
        const Single width = SizeBetween(pieces[i].X1, pieces[i].X2, job.Scale);
        if (IsWithinTolerance(width - job.RollWidth)) {
            continue;
        }
        if (pieces.size() >= static_cast<std::size_t>(MaxPieces)) {
            RaiseSubscript(Words("There are more than %1 pieces: estimate the rooms in two "
                                 "projects.",
                                 TrimStr(MaxPieces)));
        }
        Piece strip = pieces[i];
        strip.X2 =
            CSng(static_cast<Double>(strip.X1) + static_cast<Double>(job.RollWidth) / job.Scale);
        strip.IsDivisible = false;
        pieces[i].X1 = strip.X2;
        pieces.push_back(strip);
    }
}

} // namespace

std::vector<Piece> PreparePieces(const SearchJob& job) {
    std::vector<Piece> pieces = AlongTheRoll(job);
    CutToWidth(pieces, job);
    std::vector<PieceSize> sizes;
    sizes.reserve(pieces.size());
    for (const Piece& piece : pieces) {
        sizes.push_back(SizeOf(piece, job.Scale));
    }
    std::vector<Piece> ordered;
    ordered.reserve(pieces.size());
    PieceOrder order;
    for (const std::size_t i : order.LargestFirst(sizes, LongestFirst)) {
        ordered.push_back(pieces[i]);
    }
    return ordered;
}

} // namespace tarn
