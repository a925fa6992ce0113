#pragma once

#include "improve/FitClass.h"
#include "improve/ImproveJob.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace tarn {

/// The undivided fills of a job in an order that changes by exchanges, and which of them remain:
/// finds the earliest one of a width and a length. Sets of ranks are held as bits, one row of words
/// for each width and each length that occurs, so that a question is answered word by word.
class RankedFills {
  public:
    explicit RankedFills(const ImproveJob& job);

    std::size_t Count() const { return order_.size(); }
    /// The order becomes `order`, numbers of fills.
    void Rank(const std::vector<std::size_t>& order);
    /// Exchange the fills of two ranks.
    void Exchange(std::size_t a, std::size_t b);
    std::size_t FillAt(std::size_t rank) const { return order_[rank]; }
    std::size_t RankOf(std::size_t fill) const { return rankOf_[fill]; }

    /// All fills remain.
    void TakeNone();
    void Take(std::size_t rank) {
        remaining_[rank / WordBits] &= ~BitOf(rank);
        const std::size_t fill = order_[rank];
        --countOfWidth_[widths_.IndexOf[fill]];
        areaOfLength_[lengths_.IndexOf[fill]] -= areas_[fill];
    }
    /// The least width among the remaining; not to be asked when none remains.
    Long Narrowest() {
        while (countOfWidth_[narrowest_] == 0) {
            ++narrowest_;
        }
        return widths_.Values[narrowest_];
    }

    /// The area of the remaining that are longer than `room`. It must not be asked for more room
    /// than before until all fills remain again, nor may those be taken then.
    Area64 TooLong(Area64 room) {
        while (shortEnough_ > 0 && lengths_.Values[shortEnough_ - 1] > room) {
            tooLong_ += areaOfLength_[--shortEnough_];
        }
        return tooLong_;
    }

    static constexpr std::size_t NoRank = static_cast<std::size_t>(-1);
    struct Choice {
        std::size_t Rank = NoRank;
        FitClass Fit = FitClass::None;

        bool IsSameAs(const Choice& other) const { return Rank == other.Rank && Fit == other.Fit; }
    };
    /// The fill that is laid in a gap with `room` up to the roof: of the first class with a fill in
    /// it the earliest one. Fills of no special length are at most `widest` wide and `longest`
    /// long. No fill when none is left that fits.
    Choice Choose(Long gapWidth, const Walls& walls, Long room, Long widest, Long longest) const;
    /// The earliest fill that fits the gap at all, with the class it is of.
    Choice First(Long gapWidth, const Walls& walls, Long room) const;

  private:
    using Word = std::uint64_t;
    static constexpr std::size_t WordBits = 64;
    static constexpr Word BitOf(std::size_t rank) { return Word{1} << (rank % WordBits); }
    using Sets = std::vector<Word>;

    /// The values that occur, ascending, and the sets of ranks with each and with at most each.
    struct Measure {
        std::vector<Long> Values;
        std::vector<std::size_t> IndexOf; ///< by fill
        std::vector<std::int32_t> UpTo; ///< by value, for small values: index of the last not above
        Sets Equal;
        Sets AtMost;

        /// The index of the last value not above `value`; -1 when all are above.
        std::ptrdiff_t LastUpTo(Long value) const {
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
        Long Value(std::ptrdiff_t index) const { return Values[static_cast<std::size_t>(index)]; }
    };

    static Measure Measured(const std::vector<Long>& values);
    void Fill(Measure& measure);
    void Toggle(Measure& measure, std::size_t a, std::size_t b) const;
    const Word* Row(const Sets& sets, std::ptrdiff_t index) const {
        return sets.data() + static_cast<std::size_t>(index) * words_;
    }
    /// Of the remaining fills in a row, all as wide as the gap, the earliest of the best class.
    Choice Filling(const Word* row, const Walls& walls, Long room) const;
    /// The earliest remaining fill that is in the row and `length` long.
    std::size_t FirstOfLength(const Word* row, Long length) const;
    std::size_t FirstIn(const Word* a, const Word* b) const {
        for (std::size_t word = 0; word < words_; ++word) {
            const Word bits = a[word] & b[word] & remaining_[word];
            if (bits != 0) {
                return word * WordBits + static_cast<std::size_t>(std::countr_zero(bits));
            }
        }
        return NoRank;
    }

    const ImproveJob* job_;
    std::size_t words_;
    std::vector<std::size_t> order_;
    std::vector<std::size_t> rankOf_; ///< by fill
    Measure widths_;
    Measure lengths_;
    Sets remaining_;
    std::vector<Long> countOfWidth_;
    std::vector<Long> allOfWidth_;
    std::size_t narrowest_ = 0;
    std::vector<Area64> areas_;           ///< by fill
    std::vector<Area64> areaOfLength_;    ///< of the remaining
    std::vector<Area64> allAreaOfLength_; ///< of all
    std::size_t shortEnough_ = 0;         ///< how many lengths were not too long
    Area64 tooLong_ = 0;                  ///< area of the others
};

} // namespace tarn
