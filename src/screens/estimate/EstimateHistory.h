#pragma once

#include "drawing/Drawing.h"
#include "estimate/Estimate.h"

#include <optional>
#include <vector>

namespace tarn {

/// An estimate as it stands on the screen, with all that was pasted into its drawing.
struct ShownEstimate {
    Estimate Value;
    Drawing Picture;
};

/// The improvements of an estimate that can be taken back, and done again.
class EstimateHistory {
  public:
    /// An improvement takes the place of `before`.
    void Add(ShownEstimate before);
    /// Another estimate takes its place: nothing of this one can be taken back.
    void Clear();

    bool CanUndo() const { return !before_.empty(); }
    bool CanRedo() const { return !after_.empty(); }
    /// What stood before the last improvement, in place of `now`; nothing when there is none.
    std::optional<ShownEstimate> Undo(ShownEstimate now);
    /// What was taken back last, in place of `now`; nothing when there is none.
    std::optional<ShownEstimate> Redo(ShownEstimate now);

  private:
    std::vector<ShownEstimate> before_;
    std::vector<ShownEstimate> after_;
};

} // namespace tarn
