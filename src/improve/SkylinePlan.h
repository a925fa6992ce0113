#pragma once

#include "improve/Departures.h"
#include "improve/FitClass.h"
#include "improve/Plan.h"
#include "improve/Skyline.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace tarn {

/// A step of a placing: a gap, and what came of it.
template <class Choice>
struct PlacingStep {
    Gap At;
    std::size_t Number; ///< of the last step that could take a part, this one included; from 1
    std::size_t Which;  ///< what was taken of the plan's order, as its kind counts
    Choice Taken;       ///< of Fit FitClass::None where the gap was left free
};

/// The steps of a plan's last placing, and of the one of the plan as it was before its last change.
template <class Choice>
struct PlacingSteps {
    std::vector<PlacingStep<Choice>> Last;
    std::vector<PlacingStep<Choice>> Before;
};

/// What plans have in common that fill the skyline gap by gap: the gaps, the limits, the layout
/// that comes of it. A kind of plan says which part goes into a gap.
class SkylinePlan : public Plan {
  public:
    Area64 Unpacked(Long roof, Area64 limit) override;
    Area64 Length(Area64 limit) override;
    std::vector<ImprovePart> Layout() const override {
        return asBefore_ ? before_.Parts : laid_.Parts;
    }

  protected:
    /// When a layout is given up.
    struct Limits {
        Long Roof;       ///< parts end below it
        Area64 Waste;    ///< the most that is left free below them
        Area64 Farthest; ///< no part ends above it
        Area64 Left;     ///< the most area of fills that is left over
    };

    /// `job` has at least one fill and must outlive the plan.
    explicit SkylinePlan(const ImproveJob& job);

    /// Lay the fills out. False when it was given up.
    virtual bool LayOut(const Limits& limits) = 0;

    /// The layout's loop, from an empty roll. While `hasMore()`, the lowest gap gets the part that
    /// `choose(gap, walls, room)` names, by `put(gap, walls, choice)`, or is left free when the
    /// choice's Fit is FitClass::None. It is a template because it is what a search spends most of
    /// its time in.
    template <class HasMore, class Choose, class Put>
    bool FillGaps(const Limits& limits, HasMore hasMore, Choose choose, Put put);
    /// The same, but where the placing of the plan as it was before its last change is known its
    /// steps are repeated up to where the change makes a difference; where it makes none nothing is
    /// laid out at all. Of a kind of plan, `moves`, it asks:
    ///   Which(choice)             what a choice takes of the order
    ///   Refresh(step)             the choice of a step as the order is now
    ///   MayDiffer(step, roof)     whether what changed may change the step. Asked for the steps in
    ///                             turn. It may be said too often, never too seldom.
    ///   IsTooMuchLeft(gap, limits)  whether more than may be will be left over, now that `gap` is
    ///                             the lowest. It may be said too seldom, never too often.
    ///   Begin()                   steps are about to be laid, from an empty roll on
    ///   Skip()                    nothing differs: what laying out would leave is left
    template <class Choice, class HasMore, class Choose, class Put, class Moves>
    bool FillGapsAgain(const Limits& limits, PlacingSteps<Choice>& steps, HasMore hasMore,
                       Choose choose, Put put, Moves moves);
    /// Begin the next step that could take a part. Whether it leaves its gap free.
    bool LeavesNextFree() { return departures_.Hold(Departure::LeaveFree, ++step_); }
    /// Whether the step departs from the rule.
    bool Departs(Departure kind) const { return departures_.Hold(kind, step_); }
    bool DepartsAt(Departure kind, std::size_t step) const { return departures_.Hold(kind, step); }
    /// Lay a part of a fill.
    void Lay(std::size_t fill, Long length, const Gap& gap, const Walls& walls, FitClass fit);
    /// Lay a part anywhere in a gap, at or above the gap's y. What is below it is lost.
    void LayAt(const ImprovePart& part, const Gap& gap);

    void BeginWith(PlacingRule rule) {
        rule_ = rule;
        departures_ = Departures();
        departuresBefore_ = departures_;
        known_ = changed_ = laidWhole_ = false;
    }
    /// Now and then change at which of the first `steps` steps a plan departs from the rule, in one
    /// of the first `kinds` ways. True when that is all that changes.
    bool ChangeDepartures(RandomSteps& random, std::size_t steps,
                          std::size_t kinds = static_cast<std::size_t>(Departure::Count));
    void KeepDepartures() { departuresBefore_ = departures_; }
    void UndoDepartures() { departures_ = departuresBefore_; }
    /// The plan is about to be changed: keep how it was laid out, if it was.
    template <class Choice>
    void KeepPlacing(PlacingSteps<Choice>& steps);
    /// The last change was taken back.
    void UndoPlacing() { changed_ = laidWhole_ = false; }

    const ImproveJob& Job() const { return *job_; }
    const PlacingRule& Rule() const { return rule_; }
    std::size_t LaidParts() const { return laid_.Parts.size(); }
    /// No part is narrower than the gap by more than what takes `narrowest`, where the rule says
    /// so.
    Long WidestFor(const Gap& gap, Long narrowest) const {
        return rule_.LeaveRoom && gap.Width < job_->Width ? gap.Width - narrowest : gap.Width;
    }

  private:
    /// What was laid.
    struct Laid {
        std::vector<ImprovePart> Parts;
        Area64 Area = 0;
        Area64 Waste = 0; ///< left free below it
        Area64 End = 0;
    };

    void Clear() {
        skyline_.Reset(job_->Width);
        laid_.Parts.clear();
        laid_.Area = laid_.Waste = laid_.End = 0;
        step_ = 0;
    }
    const Laid& LastLaid() const { return asBefore_ ? before_ : laid_; }
    bool IsWithin(const Limits& limits, const Laid& laid) const {
        return laid.End <= limits.Farthest && laid.Waste <= limits.Waste;
    }
    /// Says nothing of what will be left over.
    struct NeverTooMuchLeft {
        static bool IsTooMuchLeft(const Gap& /*gap*/, const Limits& /*limits*/) { return false; }
    };
    /// From what is laid on. Each gap and what is chosen for it is told to `note`. Of `moves` it
    /// asks IsTooMuchLeft alone.
    template <class HasMore, class Choose, class Put, class Note, class Moves>
    bool FillRest(const Limits& limits, HasMore hasMore, Choose choose, Put put, Note note,
                  Moves&& moves);
    template <class Choice, class Put>
    bool FillGap(const Limits& limits, const Gap& gap, const Walls& walls, const Choice& choice,
                 Put put);
    /// Lay a known step.
    template <class Choice, class Put, class Moves>
    bool Repeat(const Limits& limits, const PlacingStep<Choice>& step, Put put, const Moves& moves);

    const ImproveJob* job_;
    Area64 area_;
    PlacingRule rule_;
    Departures departures_;
    Departures departuresBefore_;

    Skyline skyline_;
    std::size_t step_ = 0; ///< from 1
    Laid laid_;

    Laid before_;            ///< by the plan as it was before its last change
    Long roof_ = 0;          ///< of the last placing
    Long roofBefore_ = 0;    ///< of the one before the change
    bool known_ = false;     ///< whether that is
    bool changed_ = false;   ///< since then
    bool laidWhole_ = false; ///< the plan as it is, not given up
    bool asBefore_ = false;  ///< the last placing is the one before the change
};

template <class HasMore, class Choose, class Put>
bool SkylinePlan::FillGaps(const Limits& limits, HasMore hasMore, Choose choose, Put put) {
    Clear();
    return FillRest(
        limits, hasMore, choose, put, [](const Gap&, const auto&) {}, NeverTooMuchLeft());
}

template <class HasMore, class Choose, class Put, class Note, class Moves>
bool SkylinePlan::FillRest(const Limits& limits, HasMore hasMore, Choose choose, Put put, Note note,
                           Moves&& moves) {
    while (hasMore()) {
        const Gap gap = skyline_.Lowest();
        if (gap.Y >= limits.Roof) {
            break;
        }
        if (moves.IsTooMuchLeft(gap, limits)) {
            return false;
        }
        const Long room = limits.Roof - gap.Y;
        const Walls walls(gap, room);
        const auto choice = choose(gap, walls, room);
        note(gap, choice);
        if (!FillGap(limits, gap, walls, choice, put)) {
            return false;
        }
    }
    return true;
}

template <class Choice, class Put>
inline bool SkylinePlan::FillGap(const Limits& limits, const Gap& gap, const Walls& walls,
                                 const Choice& choice, Put put) {
    if (choice.Fit == FitClass::None) {
        const bool wholeWidth = skyline_.Count() == 1;
        if (wholeWidth && limits.Roof == NoWall) {
            return true; // the step was only left out: the whole width takes any fill
        }
        const Long height = wholeWidth ? limits.Roof - gap.Y : walls.Short;
        laid_.Waste += static_cast<Area64>(gap.Width) * height;
        if (laid_.Waste > limits.Waste) {
            return false;
        }
        skyline_.Raise(gap, height);
        return true;
    }
    put(gap, walls, choice);
    return IsWithin(limits, laid_);
}

template <class Choice, class Put, class Moves>
inline bool SkylinePlan::Repeat(const Limits& limits, const PlacingStep<Choice>& step, Put put,
                                const Moves& moves) {
    step_ = step.Number;
    const Walls walls(step.At, limits.Roof - step.At.Y);
    return FillGap(limits, step.At, walls, moves.Refresh(step), put);
}

template <class Choice, class HasMore, class Choose, class Put, class Moves>
bool SkylinePlan::FillGapsAgain(const Limits& limits, PlacingSteps<Choice>& steps, HasMore hasMore,
                                Choose choose, Put put, Moves moves) {
    asBefore_ = laidWhole_ = false;
    roof_ = limits.Roof;
    const auto note = [&](const Gap& gap, const Choice& choice) {
        const bool taken = choice.Fit != FitClass::None;
        steps.Last.push_back({gap, step_, taken ? moves.Which(choice) : 0, choice});
    };
    const auto fillRest = [&] {
        laidWhole_ = FillRest(limits, hasMore, choose, put, note, moves);
        return laidWhole_;
    };
    const auto begin = [&] {
        Clear();
        moves.Begin();
    };
    if (!known_ || !changed_ || roofBefore_ != limits.Roof) {
        begin();
        steps.Last.clear();
        return fillRest();
    }
    std::size_t laid = 0; // steps
    const auto repeatUpTo = [&](std::size_t end) {
        if (laid == 0) {
            begin();
        }
        bool goesOn = true;
        while (goesOn && laid < end) {
            goesOn = Repeat(limits, steps.Before[laid++], put, moves);
        }
        return goesOn;
    };
    const bool departs = !(departures_ == departuresBefore_);
    for (std::size_t i = 0; i < steps.Before.size(); ++i) {
        const PlacingStep<Choice>& step = steps.Before[i];
        const bool other = departs && departures_.DifferAt(departuresBefore_, step.Number);
        if (!moves.MayDiffer(step, limits.Roof) && !other) {
            continue;
        }
        if (!repeatUpTo(i)) {
            return false;
        }
        const Long room = limits.Roof - step.At.Y;
        const Walls walls(step.At, room);
        step_ = i > 0 ? steps.Before[i - 1].Number : 0;
        const Choice choice = choose(step.At, walls, room);
        if (!other && choice.IsSameAs(moves.Refresh(step))) {
            continue;
        }
        steps.Last.assign(steps.Before.begin(),
                          steps.Before.begin() + static_cast<std::ptrdiff_t>(i));
        note(step.At, choice);
        return FillGap(limits, step.At, walls, choice, put) && fillRest();
    }
    if (!IsWithin(limits, before_)) {
        repeatUpTo(steps.Before.size()); // to where it is given up
        return false;
    }
    moves.Skip();
    asBefore_ = laidWhole_ = true;
    return true;
}

template <class Choice>
void SkylinePlan::KeepPlacing(PlacingSteps<Choice>& steps) {
    if (laidWhole_ && !asBefore_) {
        std::swap(steps.Last, steps.Before);
        std::swap(laid_, before_);
        roofBefore_ = roof_;
        known_ = true;
    } else if (changed_ && !laidWhole_) {
        known_ = false;
    }
    changed_ = true;
    laidWhole_ = asBefore_ = false;
}

inline void SkylinePlan::Lay(std::size_t fill, Long length, const Gap& gap, const Walls& walls,
                             FitClass fit) {
    const Long width = job_->Fills[fill].Width;
    const bool atLeft = StandsLeft(fit, walls) != Departs(Departure::OtherWall);
    const Long x = skyline_.Place(gap, atLeft, width, length);
    laid_.Parts.push_back({fill, x, gap.Y, length});
    laid_.Area += static_cast<Area64>(width) * length;
    laid_.End = std::max(laid_.End, static_cast<Area64>(gap.Y) + length);
}

inline void SkylinePlan::LayAt(const ImprovePart& part, const Gap& gap) {
    const Area64 width = job_->Fills[part.Fill].Width;
    skyline_.Cover(gap, part.X, static_cast<Long>(width), part.Y + part.Length);
    laid_.Parts.push_back(part);
    laid_.Area += width * part.Length;
    laid_.Waste += width * (part.Y - gap.Y);
    laid_.End = std::max(laid_.End, static_cast<Area64>(part.Y) + part.Length);
}

} // namespace tarn
