#include "improve/WholePlan.h"

#include "improve/StartOrders.h"

#include <algorithm>

namespace tarn {

WholePlan::WholePlan(const ImproveJob& job)
    : SkylinePlan(job)
    , orders_(StartOrders(job))
    , fills_(job) {
    const auto same = [&](const ImproveFill& fill) {
        return fill.Width == job.Fills.front().Width && fill.Length == job.Fills.front().Length;
    };
    allEqual_ = std::all_of(job.Fills.begin(), job.Fills.end(), same);
}

void WholePlan::Begin(std::size_t order, PlacingRule rule) {
    fills_.Rank(orders_[order]);
    BeginWith(rule);
    swappedA_ = swappedB_ = 0;
}

std::unique_ptr<Plan> WholePlan::Copy() const {
    return std::make_unique<WholePlan>(*this);
}

void WholePlan::TakeFrom(const Plan& other) {
    *this = dynamic_cast<const WholePlan&>(other);
}

class WholePlan::Moves {
  public:
    explicit Moves(WholePlan& plan)
        : plan_(plan)
        , rank_(std::min(plan.swappedA_, plan.swappedB_)) {
        if (plan.swappedA_ != plan.swappedB_) {
            earlier_ = plan.fills_.FillAt(rank_);
            later_ = plan.fills_.FillAt(std::max(plan.swappedA_, plan.swappedB_));
        }
    }

    std::size_t Which(const RankedFills::Choice& choice) const {
        return plan_.fills_.FillAt(choice.Rank);
    }
    RankedFills::Choice Refresh(const PlacingStep<RankedFills::Choice>& step) const {
        const bool taken = step.Taken.Fit != FitClass::None;
        return {taken ? plan_.fills_.RankOf(step.Which) : RankedFills::NoRank, step.Taken.Fit};
    }
    bool MayDiffer(const PlacingStep<RankedFills::Choice>& step, Long roof) {
        // What became earlier is taken instead of what is of its class and now behind it. Where
        // nothing was taken it did not fit, which does not depend on the order.
        if (earlier_ == NoFill || step.Taken.Fit == FitClass::None) {
            return false;
        }
        if (step.Which == later_) {
            return true;
        }
        if (step.Which == earlier_) {
            isOpen_ = false;
            return false;
        }
        if (!isOpen_ || plan_.fills_.RankOf(step.Which) < rank_) {
            return false;
        }
        const ImproveFill& fill = plan_.Job().Fills[earlier_];
        const Long room = roof - step.At.Y;
        return fill.Width <= step.At.Width && fill.Length <= room &&
               (ClassOf(fill.Width == step.At.Width, fill.Length, Walls(step.At, room)) ==
                    step.Taken.Fit ||
                plan_.DepartsAt(Departure::ByOrder, step.Number));
    }
    bool IsTooMuchLeft(const Gap& gap, const Limits& limits) const {
        return plan_.fills_.TooLong(limits.Farthest - gap.Y) > limits.Left;
    }
    void Begin() { plan_.fills_.TakeNone(); }
    static void Skip() {}

  private:
    static constexpr std::size_t NoFill = static_cast<std::size_t>(-1);
    WholePlan& plan_;
    std::size_t rank_;             ///< of the fill that became earlier
    std::size_t earlier_ = NoFill; ///< fill
    std::size_t later_ = NoFill;
    bool isOpen_ = true; ///< the fill that became earlier is not laid yet
};

bool WholePlan::LayOut(const Limits& limits) {
    return FillGapsAgain(
        limits, steps_, [this] { return LaidParts() < Job().Fills.size(); },
        [this](const Gap& gap, const Walls& walls, Long room) { return Choose(gap, walls, room); },
        [this](const Gap& gap, const Walls& walls, const RankedFills::Choice& choice) {
            const std::size_t fill = fills_.FillAt(choice.Rank);
            fills_.Take(choice.Rank);
            Lay(fill, Job().Fills[fill].Length, gap, walls, choice.Fit);
        },
        Moves(*this));
}

RankedFills::Choice WholePlan::Choose(const Gap& gap, const Walls& walls, Long room) {
    const Long narrowest = fills_.Narrowest();
    if (narrowest > gap.Width || LeavesNextFree()) {
        return {};
    }
    if (Departs(Departure::ByOrder)) {
        return fills_.First(gap.Width, walls, room);
    }
    return fills_.Choose(gap.Width, walls, room, WidestFor(gap, narrowest),
                         Rule().NotAboveWall ? walls.Tall : room);
}

bool WholePlan::AreUnequal(std::size_t rankA, std::size_t rankB) const {
    const ImproveFill& a = Job().Fills[fills_.FillAt(rankA)];
    const ImproveFill& b = Job().Fills[fills_.FillAt(rankB)];
    return a.Width != b.Width || a.Length != b.Length;
}

void WholePlan::Change(RandomSteps& random, bool departures) {
    KeepPlacing(steps_);
    KeepDepartures();
    swappedA_ = swappedB_ = 0;
    if ((departures && ChangeDepartures(random, fills_.Count())) || allEqual_) {
        return;
    }
    do {
        swappedA_ = random.Below(fills_.Count());
        swappedB_ = random.Below(fills_.Count());
    } while (!AreUnequal(swappedA_, swappedB_));
    fills_.Exchange(swappedA_, swappedB_);
}

void WholePlan::Undo() {
    UndoPlacing();
    UndoDepartures();
    if (swappedA_ != swappedB_) {
        fills_.Exchange(swappedA_, swappedB_);
    }
}

} // namespace tarn
