#include "improve/PartPlan.h"

#include "improve/FitClass.h"

#include <array>

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

class PartPlan::Moves {
  public:
    explicit Moves(PartPlan& plan)
        : plan_(plan)
        , count_(plan.turns_.Changes()) {
        for (std::size_t i = 0; i < count_; ++i) {
            const std::size_t number = plan.turns_.Changed(i);
            const PartTurn& turn = plan.turns_.TurnAt(number);
            const PartTurn& before = plan.turns_.Before(i);
            const bool onlyPlace = turn.Rule == before.Rule && turn.Length == before.Length;
            changed_.at(i) = {number, plan.turns_.FirstOf(turn.Fill),
                              plan.Job().Fills[turn.Fill].Length,
                              onlyPlace && turn.Place <= before.Place};
        }
    }

    std::size_t Which(const OpenFills::Choice& choice) const {
        return plan_.turns_.StateOf(choice.Fill).Turn;
    }
    static const OpenFills::Choice& Refresh(const PlacingStep<OpenFills::Choice>& step) {
        return step.Taken;
    }
    bool MayDiffer(const PlacingStep<OpenFills::Choice>& step, Long roof) {
        bool may = false;
        for (std::size_t i = 0; i < count_; ++i) {
            Turn& turn = changed_[i];
            may = may || (turn.Next == turn.Number && turn.Rest > 0 && MayChange(turn, step, roof));
            const std::size_t fill = plan_.turns_.TurnAt(turn.Number).Fill;
            if (step.Taken.Fit != FitClass::None && step.Taken.Fill == fill) {
                turn.Next = step.Which + 1;
                turn.Rest -= step.Taken.Length;
            }
        }
        return may;
    }
    static bool IsTooMuchLeft(const Gap& /*gap*/, const Limits& /*limits*/) { return false; }
    void Begin() {
        plan_.turns_.ResetStates();
        plan_.open_.OpenAll(plan_.turns_);
    }
    void Skip() {
        plan_.turns_.ResetStates();
        for (const PlacingStep<OpenFills::Choice>& step : plan_.steps_.Before) {
            if (step.Taken.Fit != FitClass::None) {
                plan_.turns_.Advance(step.Taken.Fill, step.Taken.Length);
            }
        }
    }

  private:
    /// A turn that was changed, and its fill at a step.
    struct Turn {
        std::size_t Number;
        std::size_t Next; ///< of its fill's turns
        Long Rest;
        bool Earlier; ///< it came earlier in the order, and that is all
    };

    bool MayChange(const Turn& turn, const PlacingStep<OpenFills::Choice>& step, Long roof) const {
        const bool taken = step.Taken.Fit != FitClass::None;
        if (taken && step.Which == turn.Number) {
            return !turn.Earlier;
        }
        const Long room = roof - step.At.Y;
        const PartTurn& now = plan_.turns_.TurnAt(turn.Number);
        const OpenFills::Choice fit =
            plan_.open_.FitOf(now, turn.Rest, !plan_.turns_.IsLastOf(now.Fill, turn.Number),
                              step.At.Width, Walls(step.At, room), room);
        if (fit.Fit == FitClass::None || !taken) {
            return fit.Fit != FitClass::None;
        }
        const bool comesFirst = fit.Place <= plan_.turns_.TurnAt(step.Which).Place;
        return fit.Fit < step.Taken.Fit ||
               (comesFirst &&
                (fit.Fit == step.Taken.Fit || plan_.DepartsAt(Departure::ByOrder, step.Number)));
    }

    PartPlan& plan_;
    std::size_t count_;
    std::array<Turn, 2> changed_{};
};

bool PartPlan::LayOut(const Limits& limits) {
    return FillGapsAgain(
        limits, steps_, [this] { return open_.Any(); },
        [this](const Gap& gap, const Walls& walls, Long room) { return Choose(gap, walls, room); },
        [this](const Gap& gap, const Walls& walls, const OpenFills::Choice& choice) {
            Lay(choice.Fill, choice.Length, gap, walls, choice.Fit);
            turns_.Advance(choice.Fill, choice.Length);
            open_.Laid(choice.Fill, turns_);
        },
        Moves(*this));
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
    KeepPlacing(steps_);
    KeepDepartures();
    turns_.ChangeNothing();
    if (!departures || !ChangeDepartures(random, 2 * Job().Fills.size() + 1)) {
        turns_.Change(random);
    }
}

void PartPlan::Undo() {
    UndoPlacing();
    UndoDepartures();
    turns_.Undo();
}

} // namespace tarn
