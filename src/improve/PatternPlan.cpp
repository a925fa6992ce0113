#include "improve/PatternPlan.h"

#include "improve/FitClass.h"
#include "improve/PatternPhase.h"

#include <algorithm>

namespace tarn {

struct PatternPlan::Choice {
    std::size_t Fill = 0;
    FitClass Fit = FitClass::None;
    Long Place = 0;
    Long Length = 0;
    Long Lift = 0; ///< how far above the gap's y it begins
    Long From = 0; ///< where it begins in its fill
    Columns At{};
};

PatternPlan::PatternPlan(const ImproveJob& job)
    : SkylinePlan(job)
    , turns_(job)
    , closes_(job.Fills.size(), 0)
    , fronts_(job.Fills.size(), 0)
    , lifts_(job.Fills.size(), 0) {
    for (std::size_t i = 0; i < job.Fills.size(); ++i) {
        const ImproveFill& fill = job.Fills[i];
        if (fill.Width == job.Width) {
            wholeWidths_.push_back(i);
        }
        if (fill.Room != NoRoom) {
            const auto room = static_cast<std::size_t>(fill.Room);
            fillsOf_.resize(std::max(fillsOf_.size(), room + 1));
            fillsOf_[room].push_back(i);
        }
    }
    delays_.assign(fillsOf_.size(), 0);
}

std::size_t PatternPlan::Orders() const {
    return turns_.Orders() * static_cast<std::size_t>(Leveling::Count);
}

void PatternPlan::Begin(std::size_t order, PlacingRule rule) {
    turns_.Begin(order % turns_.Orders());
    leveling_ = static_cast<Leveling>(order / turns_.Orders());
    std::fill(delays_.begin(), delays_.end(), 0);
    std::fill(closes_.begin(), closes_.end(), std::uint8_t{0});
    changed_ = Changed::Nothing;
    BeginWith(rule);
}

std::unique_ptr<Plan> PatternPlan::Copy() const {
    return std::make_unique<PatternPlan>(*this);
}

void PatternPlan::TakeFrom(const Plan& other) {
    *this = dynamic_cast<const PatternPlan&>(other);
}

bool PatternPlan::LayOut(const Limits& limits) {
    turns_.LayNone();
    std::fill(fronts_.begin(), fronts_.end(), 0);
    shifts_.assign(fillsOf_.size(), {});
    for (std::size_t room = 0; room < fillsOf_.size(); ++room) {
        // The first of several strips lies at the roll's edge, as it does in the room.
        shifts_[room].Across = fillsOf_[room].size() > 1;
    }
    return FillGaps(
        limits, [this] { return !turns_.Open().empty(); },
        [this](const Gap& gap, const Walls& walls, Long room) {
            if (gap.Width < Job().Width && IsClosing()) {
                return Choice{};
            }
            Choice choice = Choose(gap, walls, room);
            if (choice.Fit != FitClass::None && LeavesNextFree()) {
                choice.Fit = FitClass::None;
            }
            return choice;
        },
        [this](const Gap& gap, const Walls& walls, const Choice& choice) {
            Put(gap, walls, choice);
        });
}

bool PatternPlan::IsClosing() const {
    if (wholeWidths_.empty()) {
        return false;
    }
    const auto& open = turns_.Open();
    const auto first =
        std::min_element(open.begin(), open.end(), [&](std::size_t a, std::size_t b) {
            return turns_.NextOf(a).Place < turns_.NextOf(b).Place;
        });
    return closes_[*first] != 0;
}

void PatternPlan::Put(const Gap& gap, const Walls& walls, const Choice& choice) {
    const ImproveFill& fill = Job().Fills[choice.Fill];
    const Long x = StandsLeft(choice.Fit, walls) ? choice.At.Left : choice.At.Right;
    const Long y = gap.Y + choice.Lift;
    LayAt({choice.Fill, x, y, choice.Length, choice.From}, gap);
    lifts_[choice.Fill] = choice.Lift;
    if (choice.From == fronts_[choice.Fill]) {
        fronts_[choice.Fill] += choice.Length;
    }
    turns_.TakeOff(choice.Fill, choice.Length);
    if (fill.Room == NoRoom) {
        return;
    }
    RoomShift& shift = shifts_[static_cast<std::size_t>(fill.Room)];
    if (!shift.Across) {
        shift.Across = true;
        shift.AcrossBy = fill.Begin - x;
    }
    if (!shift.Known) {
        shift.Known = true;
        shift.Along = choice.From - y - (choice.At.Odd ? Half() : 0);
    }
}

bool PatternPlan::FindColumns(std::size_t number, const Gap& gap, bool odd,
                              Columns& columns) const {
    const ImproveFill& fill = Job().Fills[number];
    const ImproveRepeat& repeat = Job().Repeat;
    const Long rightmost = gap.X + gap.Width - fill.Width;
    columns = {odd, gap.X, rightmost};
    if (fill.Room == NoRoom) {
        return !odd;
    }
    if (repeat.Across == 0) {
        return odd == (repeat.HalfDrop && fill.Strip % 2 != 0);
    }
    const RoomShift& shift = shifts_[static_cast<std::size_t>(fill.Room)];
    if (!shift.Across) {
        return !odd;
    }
    const Long column = fill.Begin - shift.AcrossBy - (odd ? repeat.Across : 0);
    const Long period = repeat.HalfDrop ? 2 * repeat.Across : repeat.Across;
    columns.Left = NextInPhase(gap.X, column, period);
    columns.Right = LastInPhase(rightmost, column, period);
    return (repeat.HalfDrop || !odd) && columns.Left <= rightmost;
}

Long PatternPlan::PhaseOf(const Choice& choice) const {
    const ImproveFill& fill = Job().Fills[choice.Fill];
    const RoomShift& shift = shifts_[static_cast<std::size_t>(fill.Room)];
    return -shift.Along - (choice.At.Odd ? Half() : 0);
}

Long PatternPlan::LiftOf(const Choice& choice, const Gap& gap) const {
    const ImproveFill& fill = Job().Fills[choice.Fill];
    const Long along = Job().Repeat.Along;
    if (fill.Room == NoRoom || along == 0) {
        return 0;
    }
    const auto room = static_cast<std::size_t>(fill.Room);
    if (!shifts_[room].Known) {
        return delays_[room];
    }
    return NextInPhase(gap.Y, choice.From + PhaseOf(choice), along) - gap.Y;
}

void PatternPlan::Measure(const Gap& gap, const Walls& walls, Long room, Choice& choice) const {
    const PartTurn& turn = turns_.NextOf(choice.Fill);
    const Long rest = turns_.StateOf(choice.Fill).Rest;
    const Long front = fronts_[choice.Fill];
    choice.From = front;
    choice.Length = rest;
    choice.Lift = LiftOf(choice, gap);
    const Long wall = turn.Rule == PartCut::ToShort ? walls.Short : walls.Tall;
    const bool toWall = turn.Rule == PartCut::ToShort || turn.Rule == PartCut::ToTall;
    if (turn.FromEnd && turn.Rule != PartCut::Rest) {
        Choice cut = choice;
        cut.Length = toWall ? wall : turn.Length;
        cut.From = front + rest - cut.Length;
        cut.Lift = LiftOf(cut, gap);
        if (toWall && cut.Lift > 0) {
            // Its end lies where the wall's end is, or as little below it as the pattern asks.
            cut.Length -= Job().Repeat.Along - cut.Lift;
            cut.From = front + rest - cut.Length;
            cut.Lift = LiftOf(cut, gap);
        }
        if (turns_.MayCut(choice.Fill, cut.Length) && cut.Lift + cut.Length <= room) {
            choice = cut;
            return;
        }
    } else if (turn.Rule != PartCut::Rest) {
        const Long wanted = toWall ? wall - choice.Lift : turn.Length;
        choice.Length = turns_.MayCut(choice.Fill, wanted) ? wanted : rest;
    }
    const Long most = room - choice.Lift;
    if (choice.Length > most && turns_.MayCut(choice.Fill, most)) {
        choice.Length = most;
    }
}

void PatternPlan::Consider(std::size_t fill, const Gap& gap, const Walls& walls, Long room,
                           Long widest, Choice& best) const {
    const Long width = Job().Fills[fill].Width;
    for (const bool odd : {false, true}) {
        Choice choice;
        choice.Fill = fill;
        if (!FindColumns(fill, gap, odd, choice.At)) {
            continue;
        }
        Measure(gap, walls, room, choice);
        const Long reach = choice.Lift + choice.Length;
        if (reach > room) {
            continue;
        }
        choice.Place = turns_.NextOf(fill).Place;
        // On the roll's whole width all goes by the order: what is as wide as the roll is in no
        // hurry.
        choice.Fit =
            gap.Width == Job().Width ? FitClass::Fits : ClassOf(width == gap.Width, reach, walls);
        if (choice.Fit == FitClass::Fits &&
            (width > widest || (Rule().NotAboveWall && reach > walls.Tall))) {
            continue;
        }
        if (BetterThan(choice, best)) {
            best = choice;
        }
    }
}

bool PatternPlan::BetterThan(const Choice& a, const Choice& b) const {
    if (b.Fit == FitClass::None || a.Fit == FitClass::None) {
        return a.Fit != FitClass::None;
    }
    const auto moved = [this](const Choice& choice) {
        switch (leveling_) {
        case Leveling::UnmovedFirst:
            return choice.Lift > 0 ? 1 : 0;
        case Leveling::LeastFirst:
            return choice.Lift;
        default:
            return 0;
        }
    };
    const Long movedA = moved(a);
    const Long movedB = moved(b);
    if (movedA != movedB) {
        return movedA < movedB;
    }
    if (a.Fit != b.Fit) {
        return a.Fit < b.Fit;
    }
    return a.Place != b.Place ? a.Place < b.Place : a.Lift < b.Lift;
}

PatternPlan::Choice PatternPlan::Choose(const Gap& gap, const Walls& walls, Long room) const {
    Long narrowest = Job().Width;
    for (const std::size_t fill : turns_.Open()) {
        narrowest = std::min(narrowest, Job().Fills[fill].Width);
    }
    const Long widest = WidestFor(gap, narrowest);
    Choice best;
    for (const std::size_t fill : turns_.Open()) {
        if (Job().Fills[fill].Width <= gap.Width) {
            Consider(fill, gap, walls, room, widest, best);
        }
    }
    return best;
}

void PatternPlan::ChangeDelay(RandomSteps& random) {
    const auto along = static_cast<std::size_t>(Job().Repeat.Along);
    number_ = random.Below(fillsOf_.size());
    changed_ = Changed::Delay;
    Long& delay = delays_[number_];
    delayBefore_ = delay;
    switch (random.Below(4)) {
    case 0:
        delay = 0;
        break;
    case 1:
        delay = static_cast<Long>(random.Below(along));
        break;
    default: {
        // So that one of the others need not be moved.
        const std::vector<std::size_t>& fills = fillsOf_[number_];
        const Long lift = lifts_[fills[random.Below(fills.size())]];
        delay = NextInPhase(0, delay - lift, Job().Repeat.Along);
        break;
    }
    }
}

void PatternPlan::Change(RandomSteps& random, bool skips) {
    constexpr std::size_t DelayOneIn = 4;
    constexpr std::size_t ClosingOneIn = 12;
    KeepSkips();
    changed_ = Changed::Nothing;
    if (skips && ChangeSkips(random, 2 * Job().Fills.size())) {
        return;
    }
    if (Job().Repeat.Along > 0 && random.Below(DelayOneIn) == 0) {
        ChangeDelay(random);
    } else if (!wholeWidths_.empty() && random.Below(ClosingOneIn) == 0) {
        changed_ = Changed::Closing;
        number_ = wholeWidths_[random.Below(wholeWidths_.size())];
        closes_[number_] ^= 1U;
    } else {
        changed_ = Changed::Turns;
        turns_.Change(random);
    }
}

void PatternPlan::Undo() {
    UndoSkips();
    switch (changed_) {
    case Changed::Turns:
        turns_.Undo();
        break;
    case Changed::Delay:
        delays_[number_] = delayBefore_;
        break;
    case Changed::Closing:
        closes_[number_] ^= 1U;
        break;
    case Changed::Nothing:
        break;
    }
}

} // namespace tarn
