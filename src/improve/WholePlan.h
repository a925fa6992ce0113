#pragma once

#include "improve/RankedFills.h"
#include "improve/SkylinePlan.h"

namespace tarn {

/// A plan that divides no fill: the fast one.
class WholePlan : public SkylinePlan {
  public:
    /// `job` has at least one fill and must outlive the plan.
    explicit WholePlan(const ImproveJob& job);

    std::size_t Orders() const override { return orders_.size(); }
    void Begin(std::size_t order, PlacingRule rule) override;
    void Change(RandomSteps& random, bool departures) override;
    void Undo() override;
    std::unique_ptr<Plan> Copy() const override;
    void TakeFrom(const Plan& other) override;

  private:
    bool LayOut(const Limits& limits) override;
    RankedFills::Choice Choose(const Gap& gap, const Walls& walls, Long room);
    /// What of a placing differs after fills were exchanged; see FillGapsAgain.
    class Moves;
    bool AreUnequal(std::size_t rankA, std::size_t rankB) const;

    bool allEqual_;
    std::vector<std::vector<std::size_t>> orders_;
    RankedFills fills_;
    PlacingSteps<RankedFills::Choice> steps_;
    std::size_t swappedA_ = 0;
    std::size_t swappedB_ = 0;
};

} // namespace tarn
