#include "improve/PatternBounds.h"

#include "improve/PatternPhase.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <utility>
#include <vector>

namespace tarn {

namespace {

/// Whether a fill can lie in an even and in an odd column of the pattern.
struct Parities {
    bool Even = true;
    bool Odd = false;
};

Parities ParitiesOf(const ImproveJob& job, const ImproveFill& fill) {
    const ImproveRepeat& repeat = job.Repeat;
    if (!repeat.HalfDrop || fill.Room == NoRoom) {
        return {};
    }
    if (repeat.Across == 0) {
        return {fill.Strip % 2 == 0, fill.Strip % 2 != 0};
    }
    Parities found{false, false};
    const Long first = NextInPhase(0, fill.Begin, repeat.Across);
    for (Long x = first; x + fill.Width <= job.Width && !(found.Even && found.Odd);
         x += repeat.Across) {
        ((fill.Begin - x) / repeat.Across % 2 == 0 ? found.Even : found.Odd) = true;
    }
    return found;
}

/// The shifts along by which two fills of a room can differ.
std::vector<Long> ShiftsBetween(const ImproveJob& job, Parities a, Parities b) {
    std::vector<Long> shifts;
    if ((a.Even && b.Even) || (a.Odd && b.Odd)) {
        shifts.push_back(0);
    }
    if ((a.Even && b.Odd) || (a.Odd && b.Even)) {
        shifts.push_back(job.Repeat.Along / 2);
    }
    return shifts;
}

/// The least distance from `end` to a place whose phase is one of those beyond `phase`.
Long LeastBeyond(Long end, Long phase, const std::vector<Long>& shifts, Long along) {
    Long least = along;
    for (const Long shift : shifts) {
        least = std::min(least, NextInPhase(end, phase + shift, along) - end);
    }
    return least;
}

/// The least length of fills that lie one behind the other.
class StackSearch {
  public:
    StackSearch(const ImproveJob& job, std::vector<std::size_t> fills,
                const std::function<bool()>& goOn)
        : job_(job)
        , along_(job.Repeat.Along)
        , fills_(std::move(fills))
        , goOn_(goOn) {
        std::map<Long, std::size_t> rooms;
        for (const std::size_t number : fills_) {
            const ImproveFill& fill = job_.Fills[number];
            sum_ += fill.Length;
            parities_.push_back(ParitiesOf(job_, fill));
            const std::size_t alone = rooms.size();
            rooms_.push_back(
                fill.Room == NoRoom ? NoBase : rooms.try_emplace(fill.Room, alone).first->second);
        }
        bases_.assign(rooms.size(), Unknown);
        left_.assign(rooms.size(), 0);
        for (const std::size_t room : rooms_) {
            if (room != NoBase) {
                ++left_[room];
            }
        }
    }

    Area64 Bound(Area64 known) {
        Long gaps = 0;
        while (sum_ + gaps < known && !CanStack(gaps) && !gaveUp_) {
            ++gaps;
        }
        return sum_ + gaps;
    }

    static constexpr std::size_t MostFills = 20;

  private:
    static constexpr std::size_t NoBase = static_cast<std::size_t>(-1);
    static constexpr Long Unknown = -1;
    static constexpr std::size_t MostStates = 8000;
    static constexpr std::size_t AskEvery = 1024;

    /// Whether all can lie with so much left free between them. Gives up after many states.
    bool CanStack(Long gaps) { return LayNext(0, 0, gaps); }

    bool LayNext(std::uint32_t laid, Long end, Long gaps) {
        if (laid + 1 == std::uint32_t{1} << fills_.size()) {
            return true;
        }
        const auto failed = failed_.try_emplace(StateOf(laid, end), -1).first;
        if (failed->second >= gaps || GivesUp()) {
            return false;
        }
        for (std::size_t i = 0; i < fills_.size(); ++i) {
            if ((laid >> i & 1U) == 0 && !IsTwinOfEarlier(laid, i) && Lay(i, laid, end, gaps)) {
                return true;
            }
        }
        if (!gaveUp_) {
            failed->second = gaps;
        }
        return false;
    }

    bool GivesUp() {
        ++states_;
        gaveUp_ = gaveUp_ || failed_.size() > MostStates || states_ > 4 * MostStates ||
                  (states_ % AskEvery == 0 && !goOn_());
        return gaveUp_;
    }

    /// What matters of all that is laid: the fills, and where rooms with more to come match.
    std::vector<Long> StateOf(std::uint32_t laid, Long end) const {
        std::vector<Long> state{static_cast<Long>(laid)};
        for (std::size_t room = 0; room < bases_.size(); ++room) {
            state.push_back(bases_[room] == Unknown || left_[room] == 0
                                ? Unknown
                                : NextInPhase(0, bases_[room] - end, along_));
        }
        return state;
    }

    /// Whether an equal fill of the same room is still to be laid that comes first.
    bool IsTwinOfEarlier(std::uint32_t laid, std::size_t number) const {
        for (std::size_t other = 0; other < number; ++other) {
            const ImproveFill& a = job_.Fills[fills_[other]];
            const ImproveFill& b = job_.Fills[fills_[number]];
            if ((laid >> other & 1U) == 0 && a.Room == b.Room && a.Length == b.Length &&
                parities_[other].Even == parities_[number].Even &&
                parities_[other].Odd == parities_[number].Odd) {
                return true;
            }
        }
        return false;
    }

    bool Lay(std::size_t number, std::uint32_t laid, Long end, Long gaps) {
        const std::uint32_t after = laid | std::uint32_t{1} << number;
        const Long length = job_.Fills[fills_[number]].Length;
        const std::size_t room = rooms_[number];
        if (room == NoBase) {
            return LayNext(after, end + length, gaps);
        }
        const Long half = along_ / 2;
        const Parities& parities = parities_[number];
        --left_[room];
        const Long before = bases_[room];
        bool found = false;
        for (const bool odd : {false, true}) {
            if (!(odd ? parities.Odd : parities.Even)) {
                continue;
            }
            const Long shift = odd ? half : 0;
            const bool opens = before == Unknown;
            // The first piece of a room may begin anywhere, but only later ones would thank it.
            const Long least = opens ? 0 : NextInPhase(end, before + shift, along_) - end;
            const Long most = opens && left_[room] > 0 ? std::min(gaps, along_ - 1) : least;
            for (Long gap = least; gap <= most && gap <= gaps && !found; ++gap) {
                bases_[room] = opens ? NextInPhase(0, end + gap - shift, along_) : before;
                found = LayNext(after, end + gap + length, gaps - gap);
            }
        }
        bases_[room] = before;
        ++left_[room];
        return found;
    }

    const ImproveJob& job_;
    Long along_;
    std::vector<std::size_t> fills_;
    const std::function<bool()>& goOn_;
    Long sum_ = 0;
    std::vector<Parities> parities_;
    std::vector<std::size_t> rooms_;           ///< by fill
    std::vector<Long> bases_;                  ///< by room: the phase of its even columns
    std::vector<Long> left_;                   ///< by room: fills that are not laid yet
    std::map<std::vector<Long>, Long> failed_; ///< gaps with which a state cannot be gone on from
    std::size_t states_ = 0;
    bool gaveUp_ = false;
};

/// The rows of fills that are looked at: those wider than half the roll, and those as wide as it,
/// each with one narrower fill that goes beside none of them.
std::vector<std::vector<std::size_t>> Stacks(const ImproveJob& job) {
    constexpr std::size_t MostStacks = 8;
    std::vector<std::vector<std::size_t>> stacks;
    for (const Long least : {job.Width / 2 + 1, job.Width}) {
        std::vector<std::size_t> wide;
        Long narrowest = job.Width;
        for (std::size_t i = 0; i < job.Fills.size(); ++i) {
            if (job.Fills[i].Width >= least && PartsAllowed(job, job.Fills[i]) == 1) {
                wide.push_back(i);
                narrowest = std::min(narrowest, job.Fills[i].Width);
            }
        }
        if (wide.empty() || wide.size() > StackSearch::MostFills) {
            continue;
        }
        stacks.push_back(wide);
        for (std::size_t i = 0; i < job.Fills.size(); ++i) {
            const ImproveFill& fill = job.Fills[i];
            if (fill.Width < least && fill.Width + narrowest > job.Width &&
                PartsAllowed(job, fill) == 1 && wide.size() < StackSearch::MostFills &&
                stacks.size() < MostStacks) {
                stacks.push_back(wide);
                stacks.back().push_back(i);
            }
        }
    }
    return stacks;
}

/// A job of one room: its drops and its fill.
struct OneRoom {
    const ImproveJob& Job;
    const ImproveFill& Fill;
    Long Drops;
    Long DropLength;
    Long Parts;
    std::vector<Long> FillToFill; ///< shifts between parts
    std::vector<Long> DropToFill;
    std::vector<Long> DropToDrop;

    /// Whether up to `Parts` parts in one place of a height may be as long as the fill. `first` is
    /// what lies below the first part at least.
    bool FitsPlace(Long height, Long first) const {
        const Long along = Job.Repeat.Along;
        const Long lost = LeastBeyond(0, height, FillToFill, along);
        for (Long parts = 1; parts <= Parts; ++parts) {
            const Area64 room = static_cast<Area64>(parts) * height - Fill.Length;
            const Area64 needed = static_cast<Area64>(parts - 1) * lost + first;
            if (room >= needed && (parts == 1 || height >= Job.MinPart)) {
                return true;
            }
        }
        return false;
    }

    /// Whether the parts may lie in more than one place between the drops.
    bool FitsPlaces(Long free) const {
        const Area64 least = Job.MinPart;
        const Area64 most = std::max<Area64>((Parts - 1) * (free - least) + least,
                                             static_cast<Area64>(Parts) * free / 2);
        return Parts > 1 && free >= 2 * least && most >= Fill.Length;
    }

    /// Whether a roll of that length may do that a shorter one does not: places get higher with it.
    bool MayFit(Long length) const {
        const Long along = Job.Repeat.Along;
        const Long between = LeastBeyond(DropLength, 0, DropToDrop, along);
        const Long after = LeastBeyond(DropLength, 0, DropToFill, along);
        const Long free = length - Drops * DropLength;
        // Before all drops or behind them; or, where drops match on either side, between two.
        const Long beside = free - (Drops - 1) * between;
        const Long before = LeastBeyond(0, beside, DropToFill, along);
        const Long amid = free - (Drops - 2) * between;
        const bool matchesAmid =
            Drops > 1 && LeastBeyond(DropLength + amid, 0, DropToDrop, along) == 0;
        return FitsPlaces(free) || (beside > 0 && FitsPlace(beside, std::min(before, after))) ||
               (matchesAmid && FitsPlace(amid, after));
    }
};

} // namespace

Long PatternStackBound(const ImproveJob& job, Long known, const std::function<bool()>& goOn) {
    if (!HasPattern(job) || job.Repeat.Along == 0) {
        return 0;
    }
    Area64 bound = 0;
    for (std::vector<std::size_t>& fills : Stacks(job)) {
        bound = std::max(bound, StackSearch(job, std::move(fills), goOn).Bound(known));
        if (bound >= known || !goOn()) {
            break;
        }
    }
    return static_cast<Long>(bound);
}

Long OneRoomBound(const ImproveJob& job, Long known) {
    const bool one = std::all_of(job.Fills.begin(), job.Fills.end(),
                                 [](const ImproveFill& fill) { return fill.Room == 0; });
    if (!one || job.Fills.size() < 2 || job.Repeat.Along == 0) {
        return 0;
    }
    const ImproveFill& fill = job.Fills.back();
    const auto drops = static_cast<Long>(job.Fills.size()) - 1;
    if (PartsAllowed(job, fill) == 1 || job.Fills[job.Fills.size() - 2].Width < job.Width) {
        return 0;
    }
    const Parities inFill = ParitiesOf(job, fill);
    Parities inDrops{false, false};
    for (std::size_t i = 0; i + 1 < job.Fills.size(); ++i) {
        const Parities each = ParitiesOf(job, job.Fills[i]);
        inDrops = {inDrops.Even || each.Even, inDrops.Odd || each.Odd};
    }
    const OneRoom room{job,
                       fill,
                       drops,
                       job.Fills.front().Length,
                       PartsAllowed(job, fill),
                       ShiftsBetween(job, inFill, inFill),
                       ShiftsBetween(job, inDrops, inFill),
                       ShiftsBetween(job, inDrops, inDrops)};
    Long bound = drops * room.DropLength;
    while (bound < known && !room.MayFit(bound)) {
        ++bound;
    }
    return bound;
}

Long PatternBound(const ImproveJob& job, Long known, const std::function<bool()>& goOn) {
    return std::max(OneRoomBound(job, known), PatternStackBound(job, known, goOn));
}

} // namespace tarn
