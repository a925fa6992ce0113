#include "improve/PatternPlan.h"

#include "improve/FitClass.h"
#include "improve/PatternPhase.h"

#include <algorithm>

namespace tarn {

namespace {

/// A difference of two numbers of 0 and more below a period, in it.
Long Beyond(Long difference, Long period) {
    return difference < 0 ? difference + period : difference;
}

} // namespace

struct PatternPlan::Choice {
    std::size_t Fill = 0;
    FitClass Fit = FitClass::None;
    Long Place = 0;
    Long Length = 0;
    Long Lift = 0; ///< how far above the gap's y it begins
    Long From = 0; ///< where it begins in its fill
    Long Left = 0; ///< the leftmost place in the gap
    bool Odd = false;
};

PatternPlan::PatternPlan(const ImproveJob& job)
    : SkylinePlan(job)
    , turns_(job)
    , closes_(job.Fills.size(), 0)
    , period_(job.Repeat.HalfDrop ? 2 * job.Repeat.Across : job.Repeat.Across)
    , empty_(job.Fills.size())
    , matching_(job.Fills.size()) {
    for (std::size_t i = 0; i < job.Fills.size(); ++i) {
        const ImproveFill& fill = job.Fills[i];
        if (fill.Width == job.Width) {
            wholeWidths_.push_back(i);
        }
        const bool drops = job.Repeat.HalfDrop && fill.Room != NoRoom;
        const bool byStrips = job.Repeat.Across == 0;
        inEven_.push_back(!drops || !byStrips || fill.Strip % 2 == 0 ? 1 : 0);
        inOdd_.push_back(drops && (!byStrips || fill.Strip % 2 != 0) ? 1 : 0);
        if (fill.Room != NoRoom) {
            const auto room = static_cast<std::size_t>(fill.Room);
            fillsOf_.resize(std::max(fillsOf_.size(), room + 1));
            fillsOf_[room].push_back(i);
        }
    }
    for (const std::vector<std::size_t>& fills : fillsOf_) {
        // The first of several strips lies at the roll's edge, as it does in the room.
        for (const std::size_t fill : fills) {
            if (fills.size() > 1 && period_ > 0) {
                empty_[fill].Column = job.Fills[fill].Begin % period_;
            }
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
    closing_ = 0;
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
    matching_ = empty_;
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
    if (closing_ == 0) {
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
    const Long x = StandsLeft(choice.Fit, walls) ? choice.Left : RightOf(choice, gap);
    const Long y = gap.Y + choice.Lift;
    LayAt({choice.Fill, x, y, choice.Length, choice.From}, gap);
    turns_.TakeOff(choice.Fill, choice.Length);
    if (fill.Room == NoRoom) {
        return;
    }
    Matching& own = matching_[choice.Fill];
    own.Lift = choice.Lift;
    const Long before = own.Front;
    if (choice.From == own.Front) {
        own.Front += choice.Length;
    }
    KeepMatching(fill, choice, x, y);
    if (Job().Repeat.Along > 0 && own.Front != before) {
        own.Phase = NextInPhase(0, own.Phase + choice.Length, Job().Repeat.Along);
    }
}

void PatternPlan::KeepMatching(const ImproveFill& fill, const Choice& choice, Long x, Long y) {
    const Long along = Job().Repeat.Along;
    Matching& own = matching_[choice.Fill];
    if (period_ > 0 && own.Column == Free) {
        own.Column = x % period_; // all parts of the only strip
    }
    if (along > 0 && own.Phase == Free) {
        // Where a part would begin that begins at its fill's begin, in an even column.
        const Long begin = y - choice.From + (choice.Odd ? Half() : 0);
        const Long phase = NextInPhase(0, begin, along);
        for (const std::size_t number : fillsOf_[static_cast<std::size_t>(fill.Room)]) {
            matching_[number].Phase = phase;
        }
    }
}

Long PatternPlan::LeftOf(std::size_t fill, bool odd, const Gap& gap) const {
    const Long column = matching_[fill].Column;
    if (column == Free) {
        return gap.X;
    }
    const Long shifted = odd ? Beyond(column - Job().Repeat.Across, period_) : column;
    return gap.X + Beyond(shifted - gapColumn_, period_);
}

Long PatternPlan::RightOf(const Choice& choice, const Gap& gap) const {
    const Long rightmost = gap.X + gap.Width - Job().Fills[choice.Fill].Width;
    return matching_[choice.Fill].Column == Free ? rightmost
                                                 : LastInPhase(rightmost, choice.Left, period_);
}

Long PatternPlan::LiftOf(std::size_t fill, bool odd, Long from) const {
    const Long along = Job().Repeat.Along;
    const Matching& matching = matching_[fill];
    if (along == 0 || Job().Fills[fill].Room == NoRoom) {
        return 0;
    }
    if (matching.Phase == Free) {
        return delays_[static_cast<std::size_t>(Job().Fills[fill].Room)];
    }
    Long phase = matching.Phase - (odd ? Half() : 0);
    if (from != matching.Front) {
        phase = NextInPhase(0, phase + from - matching.Front, along);
    }
    return Beyond(Beyond(phase, along) - gapPhase_, along);
}

void PatternPlan::Measure(const Walls& walls, Long room, Choice& choice) const {
    const std::size_t fill = choice.Fill;
    const PartTurn& turn = turns_.NextOf(fill);
    const Long rest = choice.Length;
    const Long wall = turn.Rule == PartCut::ToShort ? walls.Short : walls.Tall;
    const bool toWall = turn.Rule == PartCut::ToShort || turn.Rule == PartCut::ToTall;
    if (turn.FromEnd && turn.Rule != PartCut::Rest) {
        Choice cut = choice;
        cut.Length = toWall ? wall : turn.Length;
        cut.From = choice.From + rest - cut.Length;
        if (turns_.MayCut(fill, cut.Length)) {
            cut.Lift = LiftOf(fill, choice.Odd, cut.From);
        }
        if (toWall && cut.Lift > 0 && turns_.MayCut(fill, cut.Length)) {
            // Its end lies where the wall's end is, or as little below it as the pattern asks.
            cut.Length -= Job().Repeat.Along - cut.Lift;
            cut.From = choice.From + rest - cut.Length;
            cut.Lift = LiftOf(fill, choice.Odd, cut.From);
        }
        if (turns_.MayCut(fill, cut.Length) && cut.Lift + cut.Length <= room) {
            choice = cut;
            return;
        }
    } else if (turn.Rule != PartCut::Rest) {
        const Long wanted = toWall ? wall - choice.Lift : turn.Length;
        choice.Length = turns_.MayCut(fill, wanted) ? wanted : rest;
    }
    const Long most = room - choice.Lift;
    if (choice.Length > most && turns_.MayCut(fill, most)) {
        choice.Length = most;
    }
}

void PatternPlan::Consider(std::size_t fill, bool odd, const Gap& gap, const Walls& walls,
                           Long room, Long widest, Choice& best) const {
    const Long width = Job().Fills[fill].Width;
    Choice choice;
    choice.Fill = fill;
    choice.Odd = odd;
    choice.Left = LeftOf(fill, odd, gap);
    if (choice.Left + width > gap.X + gap.Width) {
        return;
    }
    choice.From = matching_[fill].Front;
    choice.Length = turns_.StateOf(fill).Rest;
    choice.Lift = LiftOf(fill, odd, choice.From);
    if (turns_.HasMore(fill)) {
        Measure(walls, room, choice);
    }
    const Long reach = choice.Lift + choice.Length;
    if (reach > room) {
        return;
    }
    choice.Place = turns_.NextOf(fill).Place;
    // On the roll's whole width all goes by the order: what is as wide as the roll is in no hurry.
    choice.Fit =
        gap.Width == Job().Width ? FitClass::Fits : ClassOf(width == gap.Width, reach, walls);
    if (choice.Fit == FitClass::Fits &&
        (width > widest || (Rule().NotAboveWall && reach > walls.Tall))) {
        return;
    }
    if (BetterThan(choice, best)) {
        best = choice;
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

PatternPlan::Choice PatternPlan::Choose(const Gap& gap, const Walls& walls, Long room) {
    gapPhase_ = Job().Repeat.Along > 0 ? gap.Y % Job().Repeat.Along : 0;
    gapColumn_ = period_ > 0 ? gap.X % period_ : 0;
    Long narrowest = Job().Width;
    if (Rule().LeaveRoom) {
        for (const std::size_t fill : turns_.Open()) {
            narrowest = std::min(narrowest, Job().Fills[fill].Width);
        }
    }
    const Long widest = WidestFor(gap, narrowest);
    Choice best;
    for (const std::size_t fill : turns_.Open()) {
        if (Job().Fills[fill].Width > gap.Width) {
            continue;
        }
        // The first piece of a room whose place across is free says which columns are even.
        const bool says = period_ > 0 && matching_[fill].Column == Free;
        if (inEven_[fill] != 0) {
            Consider(fill, false, gap, walls, room, widest, best);
        }
        if (inOdd_[fill] != 0 && !says) {
            Consider(fill, true, gap, walls, room, widest, best);
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
        const Long lift = matching_[fills[random.Below(fills.size())]].Lift;
        delay = NextInPhase(0, delay - lift, Job().Repeat.Along);
        break;
    }
    }
}

void PatternPlan::ToggleClosing() {
    closes_[number_] ^= 1U;
    closing_ += closes_[number_] != 0 ? 1 : -1;
}

void PatternPlan::Change(RandomSteps& random, bool departures) {
    constexpr std::size_t DelayOneIn = 4;
    constexpr std::size_t ClosingOneIn = 12;
    KeepDepartures();
    changed_ = Changed::Nothing;
    if (departures && ChangeDepartures(random, 2 * Job().Fills.size() + 1, 1)) {
        return;
    }
    if (Job().Repeat.Along > 0 && random.Below(DelayOneIn) == 0) {
        ChangeDelay(random);
    } else if (!wholeWidths_.empty() && random.Below(ClosingOneIn) == 0) {
        changed_ = Changed::Closing;
        number_ = wholeWidths_[random.Below(wholeWidths_.size())];
        ToggleClosing();
    } else {
        changed_ = Changed::Turns;
        turns_.Change(random);
    }
}

void PatternPlan::Undo() {
    UndoDepartures();
    switch (changed_) {
    case Changed::Turns:
        turns_.Undo();
        break;
    case Changed::Delay:
        delays_[number_] = delayBefore_;
        break;
    case Changed::Closing:
        ToggleClosing();
        break;
    case Changed::Nothing:
        break;
    }
}

} // namespace tarn
