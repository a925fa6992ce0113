#pragma once

#include "improve/SkylinePlan.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace tarn {

/// A plan that divides fills. Every part that a fill may have holds a place in the order and a rule
/// that says how long the part is; a fill's next part is laid when its turn comes, until the fill
/// is used up. A division that leaves less than the minimum part on either side does not happen.
class PartPlan : public SkylinePlan {
  public:
    /// `job` has at least one fill and must outlive the plan.
    explicit PartPlan(const ImproveJob& job);

    std::size_t Orders() const override;
    void Begin(std::size_t order, PlacingRule rule) override;
    void Change(RandomSteps& random, bool skips) override;
    void Undo() override;
    std::unique_ptr<Plan> Copy() const override;
    void TakeFrom(const Plan& other) override;

  private:
    /// How long a part is.
    enum class Cut : std::uint8_t {
        Rest,    ///< all that is left of the fill
        ToTall,  ///< up to the taller wall
        ToShort, ///< up to the shorter wall
        OfLength ///< a length of its own
    };
    /// A part that a fill may have.
    struct Turn {
        std::size_t Fill;
        Long Place; ///< in the order: the least goes first
        Cut Rule;
        Long Length; ///< for OfLength
    };
    /// A fill while it is laid.
    struct State {
        std::size_t Turn; ///< number of its next turn
        Long Rest;        ///< what is left of its length
    };
    /// A part that may be laid in a gap.
    struct Choice;

    bool LayOut(const Limits& limits) override;
    Choice Choose(const Gap& gap, const Walls& walls, Long room) const;
    Long PartLength(const State& state, const Walls& walls, Long room) const;
    bool MayCut(const State& state, Long length) const;
    Long WholeSteps(Long length) const { return length - length % Job().CutStep; }
    /// What was laid is taken off its fill.
    void TakeOff(const Choice& choice);

    void ChangeRule(RandomSteps& random);
    void ChangePlaces(RandomSteps& random);
    Long SomeLength(RandomSteps& random, const ImproveFill& fill) const;
    /// A turn that mattered in the last layout, or the one after it.
    std::size_t SomeTurn(RandomSteps& random) const;

    std::vector<std::vector<std::size_t>> orders_;
    std::vector<std::size_t> firstTurn_; ///< by fill; one more at the end
    std::vector<std::size_t> divisible_; ///< fills that may be divided
    std::vector<Turn> turns_;

    std::array<std::size_t, 2> changed_{}; ///< turns as they were before the change
    std::array<Turn, 2> before_{};
    std::size_t changes_ = 0;

    std::vector<State> states_;
    std::vector<std::size_t> open_; ///< fills that are not used up
};

} // namespace tarn
