#pragma once

#include "improve/ImproveJob.h"
#include "improve/RandomSteps.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace tarn {

/// How long a part is.
enum class PartCut : std::uint8_t {
    Rest,    ///< all that is left of the fill
    ToTall,  ///< up to the taller wall
    ToShort, ///< up to the shorter wall
    OfLength ///< a length of its own
};

/// A part that a fill may have.
struct PartTurn {
    std::size_t Fill;
    Long Place; ///< in the order: the least goes first
    PartCut Rule;
    Long Length;          ///< for OfLength
    bool FromEnd = false; ///< with a pattern: taken off the fill's far end
};

/// What a plan varies that divides fills. Every part that a fill may have holds a place in the
/// order and a rule that says how long the part is; a fill's next part is laid when its turn comes,
/// until the fill is used up. A division that leaves less than the minimum part on either side does
/// not happen.
class PartTurns {
  public:
    /// `job` must outlive the turns.
    explicit PartTurns(const ImproveJob& job);

    std::size_t Orders() const;
    /// Begin afresh with order number `order`, sorted in some way and in equal parts.
    void Begin(std::size_t order);

    /// Change a rule or exchange two places.
    void Change(RandomSteps& random);
    void ChangeNothing() { changes_ = 0; }
    /// Take the last change back.
    void Undo();

    /// The turns that the last change changed, and what they were before.
    std::size_t Changes() const { return changes_; }
    std::size_t Changed(std::size_t i) const { return changed_.at(i); }
    const PartTurn& Before(std::size_t i) const { return before_.at(i); }
    const PartTurn& TurnAt(std::size_t turn) const { return turns_[turn]; }
    std::size_t FirstOf(std::size_t fill) const { return firstTurn_[fill]; }
    bool IsLastOf(std::size_t fill, std::size_t turn) const {
        return turn + 1 == firstTurn_[fill + 1];
    }

    /// A fill while it is laid.
    struct State {
        std::size_t Turn; ///< number of its next turn
        Long Rest;        ///< what is left of its length
    };
    void LayNone();
    /// Fills that are not used up.
    const std::vector<std::size_t>& Open() const { return open_; }
    const State& StateOf(std::size_t fill) const { return states_[fill]; }
    const PartTurn& NextOf(std::size_t fill) const { return turns_[states_[fill].Turn]; }
    /// Whether a part of that length can be cut off and leave a rest.
    bool MayCut(std::size_t fill, Long length) const {
        const State& state = states_[fill];
        return HasMore(fill) && length >= job_->MinPart && state.Rest - length >= job_->MinPart;
    }
    /// Whether the fill may be laid in more parts than its next.
    bool HasMore(std::size_t fill) const { return states_[fill].Turn + 1 < firstTurn_[fill + 1]; }
    Long WholeSteps(Long length) const { return length - length % job_->CutStep; }
    /// What was laid is taken off its fill.
    void TakeOff(std::size_t fill, Long length);
    /// The same of all fills and of one, without the list of those that are not used up.
    void ResetStates() { states_ = unlaid_; }
    void Advance(std::size_t fill, Long length) {
        states_[fill].Rest -= length;
        ++states_[fill].Turn;
    }

  private:
    void ChangeRule(RandomSteps& random);
    void ChangePlaces(RandomSteps& random);
    Long SomeLength(RandomSteps& random, const ImproveFill& fill) const;
    /// A turn of the fill that mattered in the last layout, or the one after it.
    std::size_t SomeTurnOf(RandomSteps& random, std::size_t fill) const;
    std::size_t SomeTurn(RandomSteps& random) const;

    const ImproveJob* job_;
    bool pattern_;
    std::vector<std::vector<std::size_t>> orders_;
    std::vector<std::size_t> firstTurn_; ///< by fill; one more at the end
    std::vector<std::size_t> divisible_; ///< fills that may be divided
    std::vector<PartTurn> turns_;

    std::array<std::size_t, 2> changed_{}; ///< turns as they were before the change
    std::array<PartTurn, 2> before_{};
    std::size_t changes_ = 0;

    std::vector<State> unlaid_; ///< states on an empty roll
    std::vector<State> states_;
    std::vector<std::size_t> open_;
};

} // namespace tarn
