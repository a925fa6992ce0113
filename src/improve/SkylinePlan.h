#pragma once

#include "improve/Departures.h"
#include "improve/FitClass.h"
#include "improve/Plan.h"
#include "improve/Skyline.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace tarn {

/// What plans have in common that fill the skyline gap by gap: the gaps, the limits, the layout
/// that comes of it. A kind of plan says which part goes into a gap.
class SkylinePlan : public Plan {
  public:
    Area64 Unpacked(Long roof, Area64 limit) override;
    Area64 Length(Area64 limit) override;
    std::vector<ImprovePart> Layout() const override { return placed_; }

  protected:
    /// When a layout is given up.
    struct Limits {
        Long Roof;       ///< parts end below it
        Area64 Waste;    ///< the most that is left free below them
        Area64 Farthest; ///< no part ends above it
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
    /// Begin the next step that could take a part. Whether it leaves its gap free.
    bool LeavesNextFree() { return departures_.Hold(Departure::LeaveFree, ++step_); }
    /// Whether the step departs from the rule.
    bool Departs(Departure kind) const { return departures_.Hold(kind, step_); }
    /// Lay a part of a fill.
    void Lay(std::size_t fill, Long length, const Gap& gap, const Walls& walls, FitClass fit);
    /// Lay a part anywhere in a gap, at or above the gap's y. What is below it is lost.
    void LayAt(const ImprovePart& part, const Gap& gap);

    void BeginWith(PlacingRule rule) {
        rule_ = rule;
        departures_ = Departures();
        departuresBefore_ = departures_;
    }
    /// Now and then change at which of the first `steps` steps a plan departs from the rule, in one
    /// of the first `kinds` ways. True when that is all that changes.
    bool ChangeDepartures(RandomSteps& random, std::size_t steps,
                          std::size_t kinds = static_cast<std::size_t>(Departure::Count));
    void KeepDepartures() { departuresBefore_ = departures_; }
    void UndoDepartures() { departures_ = departuresBefore_; }

    const ImproveJob& Job() const { return *job_; }
    const PlacingRule& Rule() const { return rule_; }
    std::size_t LaidParts() const { return placed_.size(); }
    /// No part is narrower than the gap by more than what takes `narrowest`, where the rule says
    /// so.
    Long WidestFor(const Gap& gap, Long narrowest) const {
        return rule_.LeaveRoom && gap.Width < job_->Width ? gap.Width - narrowest : gap.Width;
    }

  private:
    const ImproveJob* job_;
    Area64 area_;
    PlacingRule rule_;
    Departures departures_;
    Departures departuresBefore_;

    Skyline skyline_;
    std::size_t step_ = 0; ///< from 1
    std::vector<ImprovePart> placed_;
    Area64 placedArea_ = 0;
    Area64 waste_ = 0; ///< left free below what is laid
    Area64 end_ = 0;
};

template <class HasMore, class Choose, class Put>
bool SkylinePlan::FillGaps(const Limits& limits, HasMore hasMore, Choose choose, Put put) {
    skyline_.Reset(job_->Width);
    placed_.clear();
    placedArea_ = 0;
    end_ = 0;
    step_ = 0;
    waste_ = 0;
    while (hasMore()) {
        const Gap gap = skyline_.Lowest();
        if (gap.Y >= limits.Roof) {
            break;
        }
        const Long room = limits.Roof - gap.Y;
        const Walls walls(gap, room);
        const auto choice = choose(gap, walls, room);
        if (choice.Fit == FitClass::None) {
            const bool wholeWidth = skyline_.Count() == 1;
            if (wholeWidth && limits.Roof == NoWall) {
                continue; // the step was only left out: the whole width takes any fill
            }
            const Long height = wholeWidth ? room : walls.Short;
            waste_ += static_cast<Area64>(gap.Width) * height;
            if (waste_ > limits.Waste) {
                return false;
            }
            skyline_.Raise(gap, height);
            continue;
        }
        put(gap, walls, choice);
        if (end_ > limits.Farthest || waste_ > limits.Waste) {
            return false;
        }
    }
    return true;
}

inline void SkylinePlan::Lay(std::size_t fill, Long length, const Gap& gap, const Walls& walls,
                             FitClass fit) {
    const Long width = job_->Fills[fill].Width;
    const bool atLeft = StandsLeft(fit, walls) != Departs(Departure::OtherWall);
    const Long x = skyline_.Place(gap, atLeft, width, length);
    placed_.push_back({fill, x, gap.Y, length});
    placedArea_ += static_cast<Area64>(width) * length;
    end_ = std::max(end_, static_cast<Area64>(gap.Y) + length);
}

inline void SkylinePlan::LayAt(const ImprovePart& part, const Gap& gap) {
    const Area64 width = job_->Fills[part.Fill].Width;
    skyline_.Cover(gap, part.X, static_cast<Long>(width), part.Y + part.Length);
    placed_.push_back(part);
    placedArea_ += width * part.Length;
    waste_ += width * (part.Y - gap.Y);
    end_ = std::max(end_, static_cast<Area64>(part.Y) + part.Length);
}

} // namespace tarn
