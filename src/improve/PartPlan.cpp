#include "improve/PartPlan.h"

#include "improve/FitClass.h"

#include <algorithm>

namespace tarn {

struct PartPlan::Choice {
    std::size_t Fill = 0;
    FitClass Fit = FitClass::None;
    Long Place = 0;
    Long Length = 0;

    bool BetterThan(const Choice& other) const {
        return Fit != other.Fit ? Fit < other.Fit : Place < other.Place;
    }
};

PartPlan::PartPlan(const ImproveJob& job)
    : SkylinePlan(job)
    , turns_(job) {}

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
    turns_.LayNone();
    return FillGaps(
        limits, [this] { return !turns_.Open().empty(); },
        [this](const Gap& gap, const Walls& walls, Long room) {
            Choice choice = Choose(gap, walls, room);
            if (choice.Fit != FitClass::None && LeavesNextFree()) {
                choice.Fit = FitClass::None;
            }
            return choice;
        },
        [this](const Gap& gap, const Walls& walls, const Choice& choice) {
            Lay(choice.Fill, choice.Length, gap, walls, choice.Fit);
            turns_.TakeOff(choice.Fill, choice.Length);
        });
}

Long PartPlan::PartLength(std::size_t fill, const Walls& walls, Long room) const {
    const PartTurn& turn = turns_.NextOf(fill);
    const Long rest = turns_.StateOf(fill).Rest;
    Long wanted = rest;
    switch (turn.Rule) {
    case PartCut::Rest:
        break;
    case PartCut::ToTall:
        wanted = turns_.WholeSteps(walls.Tall);
        break;
    case PartCut::ToShort:
        wanted = turns_.WholeSteps(walls.Short);
        break;
    case PartCut::OfLength:
        wanted = turn.Length;
        break;
    }
    if (wanted != rest && !turns_.MayCut(fill, wanted)) {
        wanted = rest;
    }
    if (wanted > room && turns_.MayCut(fill, turns_.WholeSteps(room))) {
        wanted = turns_.WholeSteps(room);
    }
    return wanted;
}

PartPlan::Choice PartPlan::Choose(const Gap& gap, const Walls& walls, Long room) const {
    Long narrowest = Job().Width;
    for (const std::size_t fill : turns_.Open()) {
        narrowest = std::min(narrowest, Job().Fills[fill].Width);
    }
    const Long widest = WidestFor(gap, narrowest);
    Choice best;
    for (const std::size_t fill : turns_.Open()) {
        const Long width = Job().Fills[fill].Width;
        if (width > gap.Width) {
            continue;
        }
        const Long length = PartLength(fill, walls, room);
        if (length > room) {
            continue;
        }
        const FitClass fit = ClassOf(width == gap.Width, length, walls);
        if (fit == FitClass::Fits &&
            (width > widest || (Rule().NotAboveWall && length > walls.Tall))) {
            continue;
        }
        const Choice choice{fill, fit, turns_.NextOf(fill).Place, length};
        if (choice.BetterThan(best)) {
            best = choice;
        }
    }
    return best;
}

void PartPlan::Change(RandomSteps& random, bool skips) {
    KeepSkips();
    turns_.ChangeNothing();
    if (!skips || !ChangeSkips(random, 2 * Job().Fills.size())) {
        turns_.Change(random);
    }
}

void PartPlan::Undo() {
    UndoSkips();
    turns_.Undo();
}

} // namespace tarn
