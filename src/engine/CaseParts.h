#pragma once

#include "engine/Cases.h"
#include "engine/PieceOrder.h"

#include <vector>

namespace tarn {

/// The parts into which a case divides the undivided pieces, in the order in which they are placed.
/// Every layout is made from these: the trials need only their sizes, the chosen one the pieces
/// too.
class CaseParts {
  public:
    /// `wholes`, the undivided pieces, lie along Y and must outlive this.
    CaseParts(const std::vector<Piece>& wholes, Double scale, Integer minCut)
        : wholes_(wholes)
        , scale_(scale)
        , minCut_(minCut) {}

    /// Divide every piece into one part more than the case has cuts for it (see EqualParts).
    /// Raises "Overflow" as edges and sizes do.
    void Divide(const CaseCuts& cuts);

    /// The sizes of the parts in the order of a power. Raises as OrderKey.
    const std::vector<PieceSize>& SizesInOrder(Integer power);

    /// The parts themselves in the order of a power. Raises as OrderKey.
    std::vector<Piece> PiecesInOrder(Integer power);

  private:
    struct Part {
        std::size_t Whole;
        Single Top;
        Single Bottom;
    };

    const std::vector<Piece>& wholes_;
    Double scale_;
    Integer minCut_;
    // By row: the first parts of all pieces, then the others. Of equal keys the lower row goes
    // first.
    std::vector<Part> parts_;
    std::vector<PieceSize> sizes_;

    PieceOrder order_;
    std::vector<PieceSize> ordered_;
};

} // namespace tarn
