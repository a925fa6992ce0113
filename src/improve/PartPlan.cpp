#include "improve/PartPlan.h"

#include "improve/FitClass.h"
#include "improve/StartOrders.h"

#include <algorithm>
#include <numeric>

namespace tarn {

namespace {

Long LargestMostParts(const ImproveJob& job) {
    Long most = 1;
    for (const ImproveFill& fill : job.Fills) {
        most = std::max(most, PartsAllowed(job, fill));
    }
    return most;
}

} // namespace

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
    , orders_(StartOrders(job)) {
    for (std::size_t i = 0; i < job.Fills.size(); ++i) {
        firstTurn_.push_back(turns_.size());
        const Long parts = PartsAllowed(job, job.Fills[i]);
        if (parts > 1) {
            divisible_.push_back(i);
        }
        for (Long part = 0; part < parts; ++part) {
            turns_.push_back({i, 0, Cut::Rest, 0});
        }
    }
    firstTurn_.push_back(turns_.size());
    states_.resize(job.Fills.size());
}

std::size_t PartPlan::Orders() const {
    return orders_.size() * static_cast<std::size_t>(LargestMostParts(Job()));
}

void PartPlan::Begin(std::size_t order, PlacingRule rule) {
    const auto equalParts = static_cast<Long>(order / orders_.size()) + 1;
    const std::vector<std::size_t>& fills = orders_[order % orders_.size()];
    for (std::size_t place = 0; place < fills.size(); ++place) {
        const std::size_t fill = fills[place];
        const auto turns = static_cast<Long>(firstTurn_[fill + 1] - firstTurn_[fill]);
        const Long parts = std::min(turns, equalParts);
        const Long share = (Job().Fills[fill].Length + parts - 1) / parts;
        const Long step = Job().CutStep;
        states_[fill] = {firstTurn_[fill], Job().Fills[fill].Length};
        for (std::size_t turn = firstTurn_[fill]; turn < firstTurn_[fill + 1]; ++turn) {
            turns_[turn] = {fill, static_cast<Long>(place), parts > 1 ? Cut::OfLength : Cut::Rest,
                            (share + step - 1) / step * step};
        }
    }
    BeginWith(rule);
    changes_ = 0;
}

std::unique_ptr<Plan> PartPlan::Copy() const {
    return std::make_unique<PartPlan>(*this);
}

void PartPlan::TakeFrom(const Plan& other) {
    *this = dynamic_cast<const PartPlan&>(other);
}

bool PartPlan::LayOut(const Limits& limits) {
    open_.resize(Job().Fills.size());
    std::iota(open_.begin(), open_.end(), std::size_t{0});
    for (const std::size_t fill : open_) {
        states_[fill] = {firstTurn_[fill], Job().Fills[fill].Length};
    }
    return FillGaps(
        limits, [this] { return !open_.empty(); },
        [this](const Gap& gap, const Walls& walls, Long room) {
            Choice choice = Choose(gap, walls, room);
            if (choice.Fit != FitClass::None && LeavesNextFree()) {
                choice.Fit = FitClass::None;
            }
            return choice;
        },
        [this](const Gap& gap, const Walls& walls, const Choice& choice) {
            Lay(choice.Fill, choice.Length, gap, walls, choice.Fit);
            TakeOff(choice);
        });
}

bool PartPlan::MayCut(const State& state, Long length) const {
    const std::size_t fill = turns_[state.Turn].Fill;
    return state.Turn + 1 < firstTurn_[fill + 1] && length >= Job().MinPart &&
           state.Rest - length >= Job().MinPart;
}

Long PartPlan::PartLength(const State& state, const Walls& walls, Long room) const {
    const Turn& turn = turns_[state.Turn];
    Long wanted = state.Rest;
    switch (turn.Rule) {
    case Cut::Rest:
        break;
    case Cut::ToTall:
        wanted = WholeSteps(walls.Tall);
        break;
    case Cut::ToShort:
        wanted = WholeSteps(walls.Short);
        break;
    case Cut::OfLength:
        wanted = turn.Length;
        break;
    }
    if (wanted != state.Rest && !MayCut(state, wanted)) {
        wanted = state.Rest;
    }
    if (wanted > room && MayCut(state, WholeSteps(room))) {
        wanted = WholeSteps(room);
    }
    return wanted;
}

PartPlan::Choice PartPlan::Choose(const Gap& gap, const Walls& walls, Long room) const {
    Long narrowest = Job().Width;
    for (const std::size_t fill : open_) {
        narrowest = std::min(narrowest, Job().Fills[fill].Width);
    }
    const Long widest = WidestFor(gap, narrowest);
    Choice best;
    for (const std::size_t fill : open_) {
        const Long width = Job().Fills[fill].Width;
        if (width > gap.Width) {
            continue;
        }
        const State& state = states_[fill];
        const Long length = PartLength(state, walls, room);
        if (length > room) {
            continue;
        }
        const FitClass fit = ClassOf(width == gap.Width, length, walls);
        if (fit == FitClass::Fits &&
            (width > widest || (Rule().NotAboveWall && length > walls.Tall))) {
            continue;
        }
        const Choice choice{fill, fit, turns_[state.Turn].Place, length};
        if (choice.BetterThan(best)) {
            best = choice;
        }
    }
    return best;
}

void PartPlan::TakeOff(const Choice& choice) {
    State& state = states_[choice.Fill];
    state.Rest -= choice.Length;
    ++state.Turn;
    if (state.Rest == 0) {
        open_.erase(std::find(open_.begin(), open_.end(), choice.Fill));
    }
}

std::size_t PartPlan::SomeTurn(RandomSteps& random) const {
    const std::size_t fill = random.Below(Job().Fills.size());
    const std::size_t first = firstTurn_[fill];
    const std::size_t last = std::min(states_[fill].Turn, firstTurn_[fill + 1] - 1);
    return first + random.Below(last - first + 1);
}

Long PartPlan::SomeLength(RandomSteps& random, const ImproveFill& fill) const {
    const auto other = [&] { return Job().Fills[random.Below(Job().Fills.size())].Length; };
    Long length = 0;
    switch (random.Below(5)) {
    case 0:
        length = fill.Length / static_cast<Long>(2 + random.Below(3));
        break;
    case 1:
        length = other();
        break;
    case 2:
        length = fill.Length - other();
        break;
    case 3:
        length = other(); // in this order with every compiler
        length -= other();
        break;
    default:
        length = static_cast<Long>(random.Below(static_cast<std::size_t>(fill.Length)));
        break;
    }
    return std::max(Job().CutStep, WholeSteps(std::clamp(length, Job().MinPart, fill.Length)));
}

void PartPlan::ChangeRule(RandomSteps& random) {
    const std::size_t fill = divisible_[random.Below(divisible_.size())];
    const std::size_t first = firstTurn_[fill];
    const std::size_t last = std::min(states_[fill].Turn, firstTurn_[fill + 1] - 1);
    const std::size_t number = first + random.Below(last - first + 1);
    changed_[0] = number;
    before_[0] = turns_[number];
    changes_ = 1;
    Turn& turn = turns_[number];
    turn.Rule = static_cast<Cut>(random.Below(4));
    if (turn.Rule == Cut::OfLength) {
        turn.Length = SomeLength(random, Job().Fills[fill]);
    }
}

void PartPlan::ChangePlaces(RandomSteps& random) {
    changed_ = {SomeTurn(random), SomeTurn(random)};
    before_ = {turns_[changed_[0]], turns_[changed_[1]]};
    changes_ = 2;
    std::swap(turns_[changed_[0]].Place, turns_[changed_[1]].Place);
}

void PartPlan::Change(RandomSteps& random, bool skips) {
    KeepSkips();
    changes_ = 0;
    if (skips && ChangeSkips(random, 2 * Job().Fills.size())) {
        return;
    }
    if (!divisible_.empty() && random.Below(3) == 0) {
        ChangeRule(random);
    } else {
        ChangePlaces(random);
    }
}

void PartPlan::Undo() {
    UndoSkips();
    for (std::size_t i = changes_; i > 0; --i) {
        turns_[changed_.at(i - 1)] = before_.at(i - 1);
    }
}

} // namespace tarn
