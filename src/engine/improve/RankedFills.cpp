#include "engine/improve/RankedFills.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace tarn {

namespace {

constexpr std::size_t WordBits = 64;
constexpr Long LargestTable = 4096; ///< values up to here are looked up instead of searched

constexpr std::uint64_t BitOf(std::size_t rank) {
    return std::uint64_t{1} << (rank % WordBits);
}

} // namespace

RankedFills::RankedFills(const ImproveJob& job)
    : job_(job)
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
    if (largest <= LargestTable) {
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

std::ptrdiff_t RankedFills::Measure::LastUpTo(Long value) const {
    if (value >= Values.back()) {
        return static_cast<std::ptrdiff_t>(Values.size()) - 1;
    }
    if (value < Values.front()) {
        return -1;
    }
    if (!UpTo.empty()) {
        return UpTo[static_cast<std::size_t>(value)];
    }
    return std::upper_bound(Values.begin(), Values.end(), value) - Values.begin() - 1;
}

void RankedFills::Rank(const std::vector<std::size_t>& order) {
    order_ = order;
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
}

void RankedFills::TakeNone() {
    remaining_.assign(words_, ~Word{0});
    if (order_.size() % WordBits != 0) {
        remaining_.back() = BitOf(order_.size()) - 1;
    }
    countOfWidth_ = allOfWidth_;
    narrowest_ = 0;
}

void RankedFills::Take(std::size_t rank) {
    remaining_[rank / WordBits] &= ~BitOf(rank);
    --countOfWidth_[widths_.IndexOf[order_[rank]]];
}

Long RankedFills::Narrowest() {
    while (countOfWidth_[narrowest_] == 0) {
        ++narrowest_;
    }
    return widths_.Values[narrowest_];
}

RankedFills::Choice RankedFills::Filling(Long width, Long longest, const Walls& walls) const {
    Choice best;
    const std::ptrdiff_t index = widths_.LastUpTo(width);
    if (index < 0 || widths_.Values[static_cast<std::size_t>(index)] != width ||
        countOfWidth_[static_cast<std::size_t>(index)] == 0) {
        return best;
    }
    const Word* row = Row(widths_.Equal, index);
    for (std::size_t word = 0; word < words_; ++word) {
        for (Word bits = row[word] & remaining_[word]; bits != 0; bits &= bits - 1) {
            const std::size_t rank =
                word * WordBits + static_cast<std::size_t>(std::countr_zero(bits));
            const Long length = job_.Fills[order_[rank]].Length;
            if (length > longest) {
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

std::size_t RankedFills::FirstIn(const Word* a, const Word* b) const {
    for (std::size_t word = 0; word < words_; ++word) {
        const Word bits = a[word] & b[word] & remaining_[word];
        if (bits != 0) {
            return word * WordBits + static_cast<std::size_t>(std::countr_zero(bits));
        }
    }
    return NoRank;
}

std::size_t RankedFills::FirstOfLength(Long width, Long length) const {
    const std::ptrdiff_t across = widths_.LastUpTo(width);
    const std::ptrdiff_t along = lengths_.LastUpTo(length);
    if (across < 0 || along < 0 || lengths_.Values[static_cast<std::size_t>(along)] != length) {
        return NoRank;
    }
    return FirstIn(Row(widths_.AtMost, across), Row(lengths_.Equal, along));
}

std::size_t RankedFills::FirstUpTo(Long width, Long length) const {
    const std::ptrdiff_t across = widths_.LastUpTo(width);
    const std::ptrdiff_t along = lengths_.LastUpTo(length);
    if (across < 0 || along < 0) {
        return NoRank;
    }
    return FirstIn(Row(widths_.AtMost, across), Row(lengths_.AtMost, along));
}

} // namespace tarn
