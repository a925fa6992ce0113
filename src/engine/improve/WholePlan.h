#pragma once

#include "engine/improve/LeftFree.h"
#include "engine/improve/Plan.h"
#include "engine/improve/RankedFills.h"

namespace tarn {

/// A plan that divides no fill: the fast one.
class WholePlan : public Plan {
  public:
    /// `job` has at least one fill and must outlive the plan.
    explicit WholePlan(const ImproveJob& job);

    std::size_t Orders() const override { return orders_.size(); }
    void Begin(std::size_t order, PlacingRule rule) override;
    Area64 Unpacked(Long roof, Area64 limit) override;
    Area64 Length(Area64 limit) override;
    void Change(RandomSteps& random, bool skips) override;
    void Undo() override;
    std::vector<ImprovePart> Layout() const override { return placed_; }
    std::unique_ptr<Plan> Copy() const override;
    void TakeFrom(const Plan& other) override;

  private:
    /// Lay the fills out below the roof, until more than `mostWaste` is left free below them or one
    /// ends above `farthest`. False when it was given up.
    bool LayOut(Long roof, Area64 mostWaste, Area64 farthest);
    void Put(const Gap& gap, const Walls& walls, const RankedFills::Choice& choice);
    bool AreUnequal(std::size_t rankA, std::size_t rankB) const;

    const ImproveJob* job_;
    Area64 area_;
    bool allEqual_;
    std::vector<std::vector<std::size_t>> orders_;
    RankedFills fills_;
    PlacingRule rule_;
    LeftFree skips_;
    LeftFree skipsBefore_;
    std::size_t swappedA_ = 0;
    std::size_t swappedB_ = 0;

    Skyline skyline_;
    std::vector<ImprovePart> placed_;
    Area64 placedArea_ = 0;
    Area64 end_ = 0;
};

} // namespace tarn
