#include "engine/improve/WholePlan.h"

#include "engine/improve/StartOrders.h"

#include <algorithm>

namespace tarn {

WholePlan::WholePlan(const ImproveJob& job)
    : job_(&job)
    , area_(TotalArea(job))
    , orders_(StartOrders(job))
    , fills_(job) {
    const auto same = [&](const ImproveFill& fill) {
        return fill.Width == job.Fills.front().Width && fill.Length == job.Fills.front().Length;
    };
    allEqual_ = std::all_of(job.Fills.begin(), job.Fills.end(), same);
    placed_.reserve(job.Fills.size());
}

void WholePlan::Begin(std::size_t order, PlacingRule rule) {
    fills_.Rank(orders_[order]);
    rule_ = rule;
    skips_ = LeftFree();
    skipsBefore_ = skips_;
    swappedA_ = swappedB_ = 0;
}

std::unique_ptr<Plan> WholePlan::Copy() const {
    return std::make_unique<WholePlan>(*this);
}

void WholePlan::TakeFrom(const Plan& other) {
    *this = dynamic_cast<const WholePlan&>(other);
}

Area64 WholePlan::Unpacked(Long roof, Area64 limit) {
    // What is left free below the roof beyond the slack cannot be packed any more.
    const Area64 slack = static_cast<Area64>(job_->Width) * roof - area_;
    if (!LayOut(roof, slack + limit, roof)) {
        return limit + 1;
    }
    return area_ - placedArea_;
}

Area64 WholePlan::Length(Area64 limit) {
    const Area64 slack = job_->Width * limit - area_;
    return LayOut(NoWall, slack, limit) ? end_ : limit + 1;
}

bool WholePlan::LayOut(Long roof, Area64 mostWaste, Area64 farthest) {
    skyline_.Reset(job_->Width);
    fills_.TakeNone();
    placed_.clear();
    placedArea_ = 0;
    end_ = 0;
    Area64 waste = 0;
    std::size_t step = 0;
    while (placed_.size() < job_->Fills.size()) {
        const Gap gap = skyline_.Lowest();
        if (gap.Y >= roof) {
            break;
        }
        const Long room = roof - gap.Y;
        const Walls walls(gap, room);
        RankedFills::Choice choice;
        if (fills_.Narrowest() <= gap.Width && !skips_.Holds(step++)) {
            const bool leaveRoom = rule_.LeaveRoom && gap.Width < job_->Width;
            choice = fills_.Choose(gap.Width, walls, room,
                                   leaveRoom ? gap.Width - fills_.Narrowest() : gap.Width,
                                   rule_.NotAboveWall ? walls.Tall : room);
        }
        if (choice.Fit == FitClass::None) {
            const bool wholeWidth = skyline_.Count() == 1;
            if (wholeWidth && roof == NoWall) {
                continue; // the step was only left out: the whole width takes any fill
            }
            const Long height = wholeWidth ? room : walls.Short;
            waste += static_cast<Area64>(gap.Width) * height;
            if (waste > mostWaste) {
                return false;
            }
            skyline_.Raise(gap, height);
            continue;
        }
        Put(gap, walls, choice);
        if (end_ > farthest) {
            return false;
        }
    }
    return true;
}

void WholePlan::Put(const Gap& gap, const Walls& walls, const RankedFills::Choice& choice) {
    const std::size_t number = fills_.FillAt(choice.Rank);
    const ImproveFill& fill = job_->Fills[number];
    fills_.Take(choice.Rank);
    const Long x = skyline_.Place(gap, StandsLeft(choice.Fit, walls), fill.Width, fill.Length);
    placed_.push_back({number, x, gap.Y, fill.Length});
    placedArea_ += static_cast<Area64>(fill.Width) * fill.Length;
    end_ = std::max(end_, static_cast<Area64>(gap.Y) + fill.Length);
}

bool WholePlan::AreUnequal(std::size_t rankA, std::size_t rankB) const {
    const ImproveFill& a = job_->Fills[fills_.FillAt(rankA)];
    const ImproveFill& b = job_->Fills[fills_.FillAt(rankB)];
    return a.Width != b.Width || a.Length != b.Length;
}

void WholePlan::Change(RandomSteps& random, bool skips) {
    constexpr std::size_t OneSkipIn = 10;
    skipsBefore_ = skips_;
    swappedA_ = swappedB_ = 0;
    if (skips && random.Below(OneSkipIn) == 0) {
        skips_.Change(random, fills_.Count() - 1);
        if (random.Below(2) == 0) {
            return;
        }
    }
    if (allEqual_) {
        return;
    }
    do {
        swappedA_ = random.Below(fills_.Count());
        swappedB_ = random.Below(fills_.Count());
    } while (!AreUnequal(swappedA_, swappedB_));
    fills_.Exchange(swappedA_, swappedB_);
}

void WholePlan::Undo() {
    skips_ = skipsBefore_;
    if (swappedA_ != swappedB_) {
        fills_.Exchange(swappedA_, swappedB_);
    }
}

} // namespace tarn
