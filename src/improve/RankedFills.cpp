#include "improve/RankedFills.h"

#include <algorithm>
#include <utility>

namespace tarn {

namespace {

constexpr Long LargestLookedUp = 4096; ///< values up to here are looked up instead of searched

} // namespace

RankedFills::RankedFills(const ImproveJob& job)
    : job_(&job)
    , words_((job.Fills.size() + WordBits - 1) / WordBits) {
    std::vector<Long> widths;
    std::vector<Long> lengths;
    for (const ImproveFill& fill : job.Fills) {
        widths.push_back(fill.Width);
        lengths.push_back(fill.Length);
    }
    widths_ = Measured(widths);
    lengths_ = Measured(lengths);
    allOfWidth_.assign(widths_.Values.size(), 0);
    for (const std::size_t index : widths_.IndexOf) {
        ++allOfWidth_[index];
    }
    allAreaOfLength_.assign(lengths_.Values.size(), 0);
    for (std::size_t fill = 0; fill < job.Fills.size(); ++fill) {
        areas_.push_back(static_cast<Area64>(job.Fills[fill].Width) * job.Fills[fill].Length);
        allAreaOfLength_[lengths_.IndexOf[fill]] += areas_.back();
    }
}

RankedFills::Measure RankedFills::Measured(const std::vector<Long>& values) {
    Measure measure;
    measure.Values = values;
    std::sort(measure.Values.begin(), measure.Values.end());
    measure.Values.erase(std::unique(measure.Values.begin(), measure.Values.end()),
                         measure.Values.end());
    for (const Long value : values) {
        const auto at = std::lower_bound(measure.Values.begin(), measure.Values.end(), value);
        measure.IndexOf.push_back(static_cast<std::size_t>(at - measure.Values.begin()));
    }
    const Long largest = measure.Values.empty() ? 0 : measure.Values.back();
    if (largest <= LargestLookedUp) {
        std::size_t used = 0;
        for (Long value = 0; value <= largest; ++value) {
            while (used < measure.Values.size() && measure.Values[used] <= value) {
                ++used;
            }
            measure.UpTo.push_back(static_cast<std::int32_t>(used) - 1);
        }
    }
    return measure;
}

void RankedFills::Rank(const std::vector<std::size_t>& order) {
    order_ = order;
    rankOf_.resize(order.size());
    for (std::size_t rank = 0; rank < order.size(); ++rank) {
        rankOf_[order[rank]] = rank;
    }
    Fill(widths_);
    Fill(lengths_);
    TakeNone();
}

void RankedFills::Fill(Measure& measure) {
    measure.Equal.assign(measure.Values.size() * words_, 0);
    measure.AtMost.assign(measure.Values.size() * words_, 0);
    for (std::size_t rank = 0; rank < order_.size(); ++rank) {
        const std::size_t word = rank / WordBits;
        const std::size_t index = measure.IndexOf[order_[rank]];
        measure.Equal[index * words_ + word] |= BitOf(rank);
        for (std::size_t above = index; above < measure.Values.size(); ++above) {
            measure.AtMost[above * words_ + word] |= BitOf(rank);
        }
    }
}

void RankedFills::Toggle(Measure& measure, std::size_t a, std::size_t b) const {
    const auto [low, high] = std::minmax(measure.IndexOf[order_[a]], measure.IndexOf[order_[b]]);
    if (low == high) {
        return;
    }
    const auto toggle = [&](Sets& sets, std::size_t index) {
        sets[index * words_ + a / WordBits] ^= BitOf(a);
        sets[index * words_ + b / WordBits] ^= BitOf(b);
    };
    toggle(measure.Equal, low);
    toggle(measure.Equal, high);
    for (std::size_t index = low; index < high; ++index) {
        toggle(measure.AtMost, index);
    }
}

void RankedFills::Exchange(std::size_t a, std::size_t b) {
    Toggle(widths_, a, b);
    Toggle(lengths_, a, b);
    std::swap(order_[a], order_[b]);
    std::swap(rankOf_[order_[a]], rankOf_[order_[b]]);
}

void RankedFills::TakeNone() {
    remaining_.assign(words_, ~Word{0});
    if (order_.size() % WordBits != 0) {
        remaining_.back() = BitOf(order_.size()) - 1;
    }
    countOfWidth_ = allOfWidth_;
    narrowest_ = 0;
    areaOfLength_ = allAreaOfLength_;
    shortEnough_ = areaOfLength_.size();
    tooLong_ = 0;
}

RankedFills::Choice RankedFills::Choose(Long gapWidth, const Walls& walls, Long room, Long widest,
                                        Long longest) const {
    const std::ptrdiff_t across = widths_.LastUpTo(gapWidth);
    if (across < 0) {
        return {};
    }
    if (widths_.Value(across) == gapWidth && countOfWidth_[static_cast<std::size_t>(across)] > 0) {
        const Choice filling = Filling(Row(widths_.Equal, across), walls, room);
        if (filling.Fit != FitClass::None) {
            return filling;
        }
    }
    const Word* const fitting = Row(widths_.AtMost, across);
    std::size_t rank = FirstOfLength(fitting, walls.Tall);
    if (rank != NoRank) {
        return {rank, FitClass::LevelTall};
    }
    rank = FirstOfLength(fitting, walls.Short);
    if (rank != NoRank) {
        return {rank, FitClass::LevelShort};
    }
    const std::ptrdiff_t narrower = widest == gapWidth ? across : widths_.LastUpTo(widest);
    const std::ptrdiff_t along = lengths_.LastUpTo(longest);
    if (narrower < 0 || along < 0) {
        return {};
    }
    rank = FirstIn(Row(widths_.AtMost, narrower), Row(lengths_.AtMost, along));
    return rank != NoRank ? Choice{rank, FitClass::Fits} : Choice{};
}

RankedFills::Choice RankedFills::First(Long gapWidth, const Walls& walls, Long room) const {
    const std::ptrdiff_t across = widths_.LastUpTo(gapWidth);
    const std::ptrdiff_t along = lengths_.LastUpTo(room);
    if (across < 0 || along < 0) {
        return {};
    }
    const std::size_t rank = FirstIn(Row(widths_.AtMost, across), Row(lengths_.AtMost, along));
    if (rank == NoRank) {
        return {};
    }
    const ImproveFill& fill = job_->Fills[order_[rank]];
    return {rank, ClassOf(fill.Width == gapWidth, fill.Length, walls)};
}

RankedFills::Choice RankedFills::Filling(const Word* row, const Walls& walls, Long room) const {
    Choice best;
    for (std::size_t word = 0; word < words_; ++word) {
        for (Word bits = row[word] & remaining_[word]; bits != 0; bits &= bits - 1) {
            const std::size_t rank =
                word * WordBits + static_cast<std::size_t>(std::countr_zero(bits));
            const Long length = job_->Fills[order_[rank]].Length;
            if (length > room) {
                continue;
            }
            const FitClass fit = ClassOf(true, length, walls);
            if (fit < best.Fit) {
                best = {rank, fit};
            }
            if (fit == FitClass::FillsLevelTall) {
                return best;
            }
        }
    }
    return best;
}

std::size_t RankedFills::FirstOfLength(const Word* row, Long length) const {
    const std::ptrdiff_t along = lengths_.LastUpTo(length);
    if (along < 0 || lengths_.Value(along) != length) {
        return NoRank;
    }
    return FirstIn(row, Row(lengths_.Equal, along));
}

} // namespace tarn
