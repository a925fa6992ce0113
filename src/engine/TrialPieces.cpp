#include "engine/TrialPieces.h"

#include "engine/Division.h"
#include "engine/Pieces.h"

#include <algorithm>

namespace tarn {

PieceSize TrialPieces::SizeOf(Integer k, Single top, Single bottom) const {
    const PieceRows& pieces = engine_.Undivided;
    return {SizeBetween(pieces.PCX1[k], pieces.PCX2[k], dimScale_),
            SizeBetween(top, bottom, dimScale_)};
}

void TrialPieces::Divide() {
    const PieceRows& pieces = engine_.Undivided;
    rows_.resize(static_cast<std::size_t>(engine_.OrgCount));
    for (Integer k = 0; k < engine_.OrgCount; ++k) {
        const auto parts = static_cast<Integer>(engine_.CaseDigit[k] + 1);
        PartEdges edges{pieces.PCY1[k], pieces.PCY2[k]};
        if (parts > 1) {
            edges = EdgesOfParts(pieces.PCY1[k], pieces.PCY2[k], parts, engine_.MinCut);
        }
        for (std::size_t part = 0; part < static_cast<std::size_t>(parts); ++part) {
            const PieceSize size = SizeOf(k, edges.at(part), edges.at(part + 1));
            if (part == 0) {
                rows_[static_cast<std::size_t>(k)] = {0, size, static_cast<std::size_t>(k)};
            } else {
                rows_.push_back({0, size, rows_.size()});
            }
        }
    }
}

const std::vector<PieceSize>& TrialPieces::InOrder(Integer power) {
    for (Row& row : rows_) {
        row.Key = SizeKey(row.Size.Width, row.Size.Length, power);
    }
    std::sort(rows_.begin(), rows_.end(), [](const Row& a, const Row& b) {
        return a.Key != b.Key ? a.Key > b.Key : a.Number < b.Number;
    });
    ordered_.clear();
    for (const Row& row : rows_) {
        ordered_.push_back(row.Size);
    }
    return ordered_;
}

} // namespace tarn
