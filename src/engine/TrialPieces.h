#pragma once

#include "engine/EngineArrays.h"
#include "engine/RollLayout.h"

#include <vector>

namespace tarn {

/// The pieces of a case in the order in which they are placed, without dividing and sorting the
/// shared arrays: what RestoreFillPC, DivideAll, GetPieceSZ and QuickSortPiece make of them.
class TrialPieces {
  public:
    /// For the undivided pieces, MaxParts and MinCut of `engine`, which must not change meanwhile.
    TrialPieces(const EngineArrays& engine, Double dimScale)
        : engine_(engine)
        , dimScale_(dimScale) {}

    /// Divide the pieces as CaseDigit says. Raises "Overflow" as the sizes do.
    void Divide();

    /// The pieces of the case, largest first by `power` (SizeKey). Raises as SizeKey.
    const std::vector<PieceSize>& InOrder(Integer power);

  private:
    struct Row {
        Double Key;
        PieceSize Size;
        std::size_t Number; ///< the row it would have; equal keys keep the order of rows
    };

    PieceSize SizeOf(Integer k, Single top, Single bottom) const;

    const EngineArrays& engine_;
    Double dimScale_;
    std::vector<Row> rows_;
    std::vector<PieceSize> ordered_;
};

} // namespace tarn
