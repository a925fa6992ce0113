#include "engine/CaseParts.h"

#include "engine/Division.h"

namespace tarn {

void CaseParts::Divide(const CaseCuts& cuts) {
    parts_.resize(wholes_.size());
    sizes_.resize(wholes_.size());
    for (std::size_t k = 0; k < wholes_.size(); ++k) {
        const Piece& whole = wholes_[k];
        const auto parts = static_cast<Integer>(cuts[k] + 1);
        const EqualParts equal(whole.Y1, whole.Y2, parts, minCut_);
        Single top = equal.Edge(0);
        for (Integer part = 0; part < parts; ++part) {
            const Single bottom = equal.Edge(static_cast<Integer>(part + 1));
            const PieceSize size{SizeBetween(whole.X1, whole.X2, scale_),
                                 SizeBetween(top, bottom, scale_)};
            if (part == 0) {
                parts_[k] = {k, top, bottom};
                sizes_[k] = size;
            } else {
                parts_.push_back({k, top, bottom});
                sizes_.push_back(size);
            }
            top = bottom;
        }
    }
}

const std::vector<PieceSize>& CaseParts::SizesInOrder(Integer power) {
    ordered_.clear();
    for (const std::size_t row : order_.LargestFirst(sizes_, power)) {
        ordered_.push_back(sizes_[row]);
    }
    return ordered_;
}

std::vector<Piece> CaseParts::PiecesInOrder(Integer power) {
    std::vector<Piece> pieces;
    for (const std::size_t row : order_.LargestFirst(sizes_, power)) {
        const Part& part = parts_[row];
        Piece& piece = pieces.emplace_back(wholes_[part.Whole]);
        piece.Y1 = part.Top;
        piece.Y2 = part.Bottom;
    }
    return pieces;
}

} // namespace tarn
