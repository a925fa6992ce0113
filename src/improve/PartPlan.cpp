#include "improve/PartPlan.h"

#include "improve/FitClass.h"

namespace tarn {

PartPlan::PartPlan(const ImproveJob& job)
    : SkylinePlan(job)
    , turns_(job)
    , open_(job) {}

std::size_t PartPlan::Orders() const {
    return turns_.Orders();
}

void PartPlan::Begin(std::size_t order, PlacingRule rule) {
    turns_.Begin(order);
    BeginWith(rule);
}

std::unique_ptr<Plan> PartPlan::Copy() const {
    return std::make_unique<PartPlan>(*this);
}

void PartPlan::TakeFrom(const Plan& other) {
    *this = dynamic_cast<const PartPlan&>(other);
}

bool PartPlan::LayOut(const Limits& limits) {
    turns_.ResetStates();
    open_.OpenAll(turns_);
    return FillGaps(
        limits, [this] { return open_.Any(); },
        [this](const Gap& gap, const Walls& walls, Long room) { return Choose(gap, walls, room); },
        [this](const Gap& gap, const Walls& walls, const OpenFills::Choice& choice) {
            Lay(choice.Fill, choice.Length, gap, walls, choice.Fit);
            turns_.Advance(choice.Fill, choice.Length);
            open_.Laid(choice.Fill, turns_);
        });
}

OpenFills::Choice PartPlan::Choose(const Gap& gap, const Walls& walls, Long room) {
    const Long narrowest = open_.Narrowest();
    if (narrowest > gap.Width || LeavesNextFree()) {
        return {};
    }
    if (Departs(Departure::ByOrder)) {
        return open_.First(gap.Width, walls, room);
    }
    return open_.Choose(gap.Width, walls, room, WidestFor(gap, narrowest),
                        Rule().NotAboveWall ? walls.Tall : room);
}

void PartPlan::Change(RandomSteps& random, bool departures) {
    KeepDepartures();
    turns_.ChangeNothing();
    if (!departures || !ChangeDepartures(random, 2 * Job().Fills.size() + 1)) {
        turns_.Change(random);
    }
}

void PartPlan::Undo() {
    UndoDepartures();
    turns_.Undo();
}

} // namespace tarn
