#pragma once

#include "improve/OpenFills.h"
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

    std::size_t Orders() const override;
    void Begin(std::size_t order, PlacingRule rule) override;
    void Change(RandomSteps& random, bool departures) override;
    void Undo() override;
    std::unique_ptr<Plan> Copy() const override;
    void TakeFrom(const Plan& other) override;

  private:
    bool LayOut(const Limits& limits) override;
    OpenFills::Choice Choose(const Gap& gap, const Walls& walls, Long room);
    /// What of a placing differs after turns were changed; see FillGapsAgain.
    class Moves;

    PartTurns turns_;
    OpenFills open_;
    PlacingSteps<OpenFills::Choice> steps_;
};

} // namespace tarn
