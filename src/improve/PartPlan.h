#pragma once

#include "improve/PartTurns.h"
#include "improve/SkylinePlan.h"

#include <cstddef>
#include <memory>

namespace tarn {

/// A plan that divides fills.
class PartPlan : public SkylinePlan {
  public:
    /// `job` has at least one fill and must outlive the plan.
    explicit PartPlan(const ImproveJob& job);

    std::size_t Orders() const override { return turns_.Orders(); }
    void Begin(std::size_t order, PlacingRule rule) override;
    void Change(RandomSteps& random, bool skips) override;
    void Undo() override;
    std::unique_ptr<Plan> Copy() const override;
    void TakeFrom(const Plan& other) override;

  private:
    /// A part that may be laid in a gap.
    struct Choice;

    bool LayOut(const Limits& limits) override;
    Choice Choose(const Gap& gap, const Walls& walls, Long room) const;
    Long PartLength(std::size_t fill, const Walls& walls, Long room) const;

    PartTurns turns_;
};

} // namespace tarn
