#include "improve/OpenFills.h"

#include <algorithm>
#include <numeric>

namespace tarn {

namespace {

constexpr Long LargestTable = 4096; ///< widths up to here are looked up instead of searched

} // namespace

OpenFills::OpenFills(const ImproveJob& job)
    : job_(&job)
    , fills_(job.Fills.size())
    , numberOf_(job.Fills.size())
    , nexts_(job.Fills.size())
    , isOpen_((job.Fills.size() + WordBits - 1) / WordBits) {
    std::iota(fills_.begin(), fills_.end(), std::size_t{0});
    std::stable_sort(fills_.begin(), fills_.end(), [&](std::size_t a, std::size_t b) {
        return job.Fills[a].Width < job.Fills[b].Width;
    });
    for (std::size_t number = 0; number < fills_.size(); ++number) {
        numberOf_[fills_[number]] = number;
        widths_.push_back(job.Fills[fills_[number]].Width);
    }
    if (job.Width <= LargestTable) {
        std::uint32_t count = 0;
        for (Long width = 0; width <= job.Width; ++width) {
            while (count < widths_.size() && widths_[count] <= width) {
                ++count;
            }
            countUpTo_.push_back(count);
        }
    }
}

void OpenFills::OpenAll(const PartTurns& turns) {
    open_ = fills_.size();
    narrowest_ = 0;
    std::fill(isOpen_.begin(), isOpen_.end(), ~Word{0});
    if (open_ % WordBits != 0) {
        isOpen_.back() = (Word{1} << (open_ % WordBits)) - 1;
    }
    for (std::size_t number = 0; number < fills_.size(); ++number) {
        nexts_[number] = NextOf(fills_[number], turns);
    }
}

void OpenFills::Laid(std::size_t fill, const PartTurns& turns) {
    const std::size_t number = numberOf_[fill];
    if (turns.StateOf(fill).Rest > 0) {
        nexts_[number] = NextOf(fill, turns);
        return;
    }
    isOpen_[number / WordBits] &= ~(Word{1} << (number % WordBits));
    --open_;
}

Long OpenFills::Narrowest() {
    while ((isOpen_[narrowest_ / WordBits] >> (narrowest_ % WordBits) & 1) == 0) {
        ++narrowest_;
    }
    return widths_[narrowest_];
}

OpenFills::Next OpenFills::NextOf(const PartTurn& turn, Long rest, bool hasMore) const {
    Next next{job_->Fills[turn.Fill].Width, turn.Place, rest, rest, 0, PartCut::Rest};
    if (hasMore) {
        next.MostCut = rest - job_->MinPart;
        next.Rule = turn.Rule;
        if (turn.Rule == PartCut::OfLength && turn.Length >= job_->MinPart &&
            turn.Length <= next.MostCut) {
            next.Length = turn.Length;
        }
    }
    return next;
}

OpenFills::Choice OpenFills::FitOf(const PartTurn& turn, Long rest, bool hasMore, Long gapWidth,
                                   const Walls& walls, Long room) const {
    const Next next = NextOf(turn, rest, hasMore);
    if (next.Width > gapWidth) {
        return {};
    }
    const Long length = LengthOf(next, CutsOf(walls, room));
    return length > room ? Choice{}
                         : Choice{turn.Fill, ClassOf(next.Width == gapWidth, length, walls),
                                  next.Place, length};
}

Long OpenFills::CutAt(Long length) const {
    const Long cut = length - length % job_->CutStep;
    return cut >= job_->MinPart ? cut : 0;
}

OpenFills::Cuts OpenFills::CutsOf(const Walls& walls, Long room) const {
    return {room, CutAt(room), CutAt(walls.Tall), CutAt(walls.Short)};
}

Long OpenFills::LengthOf(const Next& next, const Cuts& cuts) {
    Long length = next.Length;
    if (next.Rule == PartCut::ToTall || next.Rule == PartCut::ToShort) {
        const Long cut = next.Rule == PartCut::ToTall ? cuts.AtTall : cuts.AtShort;
        length = cut > 0 && cut <= next.MostCut ? cut : length;
    }
    if (length > cuts.Room && cuts.AtRoof > 0 && cuts.AtRoof <= next.MostCut) {
        return cuts.AtRoof;
    }
    return length;
}

std::size_t OpenFills::CountUpTo(Long width) const {
    if (!countUpTo_.empty()) {
        return countUpTo_[static_cast<std::size_t>(std::clamp(width, 0, job_->Width))];
    }
    const auto end = std::upper_bound(widths_.begin(), widths_.end(), width);
    return static_cast<std::size_t>(end - widths_.begin());
}

template <typename Look>
void OpenFills::ForOpen(std::size_t begin, std::size_t end, Look look) const {
    for (std::size_t word = begin / WordBits; word * WordBits < end; ++word) {
        const std::size_t first = word * WordBits;
        Word bits = isOpen_[word];
        if (first < begin) {
            bits &= ~Word{0} << (begin - first);
        }
        if (end - first < WordBits) {
            bits &= (Word{1} << (end - first)) - 1;
        }
        for (; bits != 0; bits &= bits - 1) {
            look(first + static_cast<std::size_t>(std::countr_zero(bits)));
        }
    }
}

OpenFills::Choice OpenFills::Choose(Long gapWidth, const Walls& walls, Long room, Long widest,
                                    Long longest) const {
    const Cuts cuts = CutsOf(walls, room);
    const std::size_t narrower = CountUpTo(gapWidth - 1);
    const std::size_t fitting = CountUpTo(gapWidth);
    Choice best;
    ForOpen(narrower, fitting, [&](std::size_t number) {
        const Next& next = nexts_[number];
        const Long length = LengthOf(next, cuts);
        if (length > room) {
            return;
        }
        const Choice choice{fills_[number], ClassOf(true, length, walls), next.Place, length};
        if (choice.BetterThan(best)) {
            best = choice;
        }
    });
    if (best.Fit != FitClass::None) {
        return best;
    }
    ForOpen(0, narrower, [&](std::size_t number) {
        const Next& next = nexts_[number];
        const Long length = LengthOf(next, cuts);
        if (length > room) {
            return;
        }
        const FitClass fit = ClassOf(false, length, walls);
        if (fit == FitClass::Fits && (next.Width > widest || length > longest)) {
            return;
        }
        const Choice choice{fills_[number], fit, next.Place, length};
        if (choice.BetterThan(best)) {
            best = choice;
        }
    });
    return best;
}

OpenFills::Choice OpenFills::First(Long gapWidth, const Walls& walls, Long room) const {
    const Cuts cuts = CutsOf(walls, room);
    Choice first;
    ForOpen(0, CountUpTo(gapWidth), [&](std::size_t number) {
        const Next& next = nexts_[number];
        const Long length = LengthOf(next, cuts);
        if (length <= room && (first.Fit == FitClass::None || next.Place < first.Place)) {
            first = {fills_[number], ClassOf(next.Width == gapWidth, length, walls), next.Place,
                     length};
        }
    });
    return first;
}

} // namespace tarn
