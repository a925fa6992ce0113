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

bool WholePlan::LayOut(const Limits& limits) {
    fills_.TakeNone();
    return FillGaps(
        limits, [this] { return LaidParts() < Job().Fills.size(); },
        [this](const Gap& gap, const Walls& walls, Long room) { return Choose(gap, walls, room); },
        [this](const Gap& gap, const Walls& walls, const RankedFills::Choice& choice) {
            const std::size_t fill = fills_.FillAt(choice.Rank);
            fills_.Take(choice.Rank);
            Lay(fill, Job().Fills[fill].Length, gap, walls, choice.Fit);
        });
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
    UndoDepartures();
    if (swappedA_ != swappedB_) {
        fills_.Exchange(swappedA_, swappedB_);
    }
}

} // namespace tarn
