#pragma once

#include "improve/PartTurns.h"
#include "improve/SkylinePlan.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace tarn {

/// A plan for fills that have to match, whole or divided. The first piece of a room that is laid
/// says how the pattern lies for the room; every other is moved to the next place at which it
/// matches. Besides the order the plan varies how far the first piece of a room is moved, which a
/// later one may thank it for, and before which fills as wide as the roll the gaps are left free.
class PatternPlan : public SkylinePlan {
  public:
    /// `job` has at least one fill, each with a place across on the empty roll, and must outlive
    /// the plan.
    explicit PatternPlan(const ImproveJob& job);

    std::size_t Orders() const override;
    void Begin(std::size_t order, PlacingRule rule) override;
    void Change(RandomSteps& random, bool skips) override;
    void Undo() override;
    std::unique_ptr<Plan> Copy() const override;
    void TakeFrom(const Plan& other) override;

  private:
    /// How much it counts that a part has to be moved along.
    enum class Leveling : std::uint8_t {
        None, ///< not at all
        UnmovedFirst,
        LeastFirst,
        Count
    };
    /// How the pattern lies for a room: the shift of its pieces in even columns.
    struct RoomShift {
        bool Known = false;  ///< along
        bool Across = false; ///< whether AcrossBy is known
        Long AcrossBy = 0;
        Long Along = 0;
    };
    /// The places across at which a part matches by one and the same shift along.
    struct Columns {
        bool Odd;
        Long Left; ///< the leftmost in the gap
        Long Right;
    };
    /// A part that may be laid in a gap.
    struct Choice;

    bool LayOut(const Limits& limits) override;
    Choice Choose(const Gap& gap, const Walls& walls, Long room) const;
    /// Consider every way of laying the fill's next part.
    void Consider(std::size_t fill, const Gap& gap, const Walls& walls, Long room, Long widest,
                  Choice& best) const;
    /// The columns of one kind in a gap. False when there is none.
    bool FindColumns(std::size_t fill, const Gap& gap, bool odd, Columns& columns) const;
    /// Set length, begin and lift of a part in these columns.
    void Measure(const Gap& gap, const Walls& walls, Long room, Choice& choice) const;
    Long LiftOf(const Choice& choice, const Gap& gap) const;
    /// The phase along at which a fill's begin would lie.
    Long PhaseOf(const Choice& choice) const;
    bool BetterThan(const Choice& a, const Choice& b) const;
    /// Whether gaps are left free, since the next fill by the order is as wide as the roll.
    bool IsClosing() const;
    void Put(const Gap& gap, const Walls& walls, const Choice& choice);

    Long Half() const { return Job().Repeat.HalfDrop ? Job().Repeat.Along / 2 : 0; }

    void ChangeDelay(RandomSteps& random);

    PartTurns turns_;
    Leveling leveling_ = Leveling::None;
    std::vector<std::vector<std::size_t>> fillsOf_; ///< by room
    std::vector<std::size_t> wholeWidths_;          ///< fills as wide as the roll
    std::vector<Long> delays_;                      ///< by room: how far its first piece is moved
    std::vector<std::uint8_t> closes_; ///< by fill: gaps are left free before it when it is first

    enum class Changed : std::uint8_t { Nothing, Turns, Delay, Closing };
    Changed changed_ = Changed::Nothing;
    std::size_t number_ = 0; ///< of what changed
    Long delayBefore_ = 0;

    std::vector<RoomShift> shifts_; ///< by room
    std::vector<Long> fronts_;      ///< by fill: where what is left of it begins
    std::vector<Long> lifts_;       ///< by fill: how far its last part was moved
};

} // namespace tarn
