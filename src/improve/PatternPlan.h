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
    void Change(RandomSteps& random, bool departures) override;
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
    /// Where the next part of a fill matches while it is laid. What the many questions of a layout
    /// need is kept, so that none of them has to divide.
    struct Matching {
        Long Column = Free; ///< across: a place in an even column, below the period; Free for any
        Long Phase = Free;  ///< along: where it begins in an even column, below the repeat
        Long Front = 0;     ///< where what is left of the fill begins
        Long Lift = 0;      ///< how far its last part was moved
    };
    static constexpr Long Free = -1;
    /// A part that may be laid in a gap.
    struct Choice;

    bool LayOut(const Limits& limits) override;
    Choice Choose(const Gap& gap, const Walls& walls, Long room);
    /// Consider a way of laying the fill's next part: in an even or an odd column.
    void Consider(std::size_t fill, bool odd, const Gap& gap, const Walls& walls, Long room,
                  Long widest, Choice& best) const;
    /// The leftmost place at or behind the gap's left edge.
    Long LeftOf(std::size_t fill, bool odd, const Gap& gap) const;
    Long RightOf(const Choice& choice, const Gap& gap) const;
    /// How far a part that begins at `from` in its fill is moved up from the gap.
    Long LiftOf(std::size_t fill, bool odd, Long from) const;
    /// Set length, begin and lift of a part that may be a division of its fill.
    void Measure(const Walls& walls, Long room, Choice& choice) const;
    bool BetterThan(const Choice& a, const Choice& b) const;
    /// Whether gaps are left free, since the next fill by the order is as wide as the roll.
    bool IsClosing() const;
    void Put(const Gap& gap, const Walls& walls, const Choice& choice);
    /// Keep to what the first piece of a room says.
    void KeepMatching(const ImproveFill& fill, const Choice& choice, Long x, Long y);

    Long Half() const { return Job().Repeat.HalfDrop ? Job().Repeat.Along / 2 : 0; }

    void ChangeDelay(RandomSteps& random);
    void ToggleClosing();

    PartTurns turns_;
    Leveling leveling_ = Leveling::None;
    std::vector<std::vector<std::size_t>> fillsOf_; ///< by room
    std::vector<std::size_t> wholeWidths_;          ///< fills as wide as the roll
    std::vector<Long> delays_;                      ///< by room: how far its first piece is moved
    std::vector<std::uint8_t> closes_; ///< by fill: gaps are left free before it when it is first
    int closing_ = 0;                  ///< fills that do

    enum class Changed : std::uint8_t { Nothing, Turns, Delay, Closing };
    Changed changed_ = Changed::Nothing;
    std::size_t number_ = 0; ///< of what changed
    Long delayBefore_ = 0;

    Long period_ = 0;                  ///< across: two columns with a half drop
    std::vector<std::uint8_t> inEven_; ///< by fill: whether it may lie in even columns
    std::vector<std::uint8_t> inOdd_;
    std::vector<Matching> empty_; ///< by fill: on an empty roll
    std::vector<Matching> matching_;
    Long gapPhase_ = 0; ///< of the gap in hand: its y below the repeat along
    Long gapColumn_ = 0;
};

} // namespace tarn
