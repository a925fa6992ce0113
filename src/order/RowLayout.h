// The strips of a row as a job of the improving search, and its layouts as pieces.

#pragma once

#include "improve/ImproveLayout.h"
#include "order/Order.h"
#include "order/OrderStrips.h"

#include <vector>

namespace tarn {

/// What a row has to lay out. Strips as wide as the roll have no choice but to lie one behind the
/// other; without a pattern they go first, and only the others are searched for.
class RowLayout {
  public:
    RowLayout(std::vector<OrderStrip> strips, const OrderRequest& request, Long usable);

    const std::vector<OrderStrip>& Strips() const { return strips_; }
    /// What is searched; without a fill when everything is stacked.
    const ImproveJob& Job() const { return job_; }
    /// The length of what lies before the searched layout.
    Long StackedLength() const { return stacked_; }
    /// All pieces in cutting order; `parts` is a whole layout of the job.
    std::vector<OrderPiece> PiecesOf(const std::vector<ImprovePart>& parts) const;

  private:
    /// Number the parts of each strip and say where they begin in it.
    void NumberParts(std::vector<OrderPiece>& pieces, bool pattern) const;

    std::vector<OrderStrip> strips_;
    ImproveJob job_;
    std::vector<std::size_t> searched_; ///< by fill of the job: the strip
    std::vector<std::size_t> wholes_;   ///< strips that are stacked
    Long stacked_ = 0;
};

} // namespace tarn
