#pragma once

#include "engine/improve/FitClass.h"
#include "engine/improve/ImproveJob.h"

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

    /// All fills remain.
    void TakeNone();
    void Take(std::size_t rank);
    /// The least width among the remaining; not to be asked when none remains.
    Long Narrowest();

    static constexpr std::size_t NoRank = static_cast<std::size_t>(-1);
    struct Choice {
        std::size_t Rank = NoRank;
        FitClass Fit = FitClass::None;
    };
    /// Of the remaining fills exactly as wide as `width` and at most `longest` long, the earliest
    /// of the best class.
    Choice Filling(Long width, Long longest, const Walls& walls) const;
    /// The earliest remaining fill at most `width` wide that is `length` long.
    std::size_t FirstOfLength(Long width, Long length) const;
    /// The earliest remaining fill at most `width` wide and at most `length` long.
    std::size_t FirstUpTo(Long width, Long length) const;

  private:
    using Word = std::uint64_t;
    using Sets = std::vector<Word>;

    /// The values that occur, ascending, and the sets of ranks with each and with at most each.
    struct Measure {
        std::vector<Long> Values;
        std::vector<std::size_t> IndexOf; ///< by fill
        std::vector<std::int32_t> UpTo; ///< by value, for small values: index of the last not above
        Sets Equal;
        Sets AtMost;

        /// The index of the last value not above `value`; -1 when all are above.
        std::ptrdiff_t LastUpTo(Long value) const;
    };

    static Measure Measured(const std::vector<Long>& values);
    void Fill(Measure& measure);
    void Toggle(Measure& measure, std::size_t a, std::size_t b) const;
    const Word* Row(const Sets& sets, std::ptrdiff_t index) const {
        return sets.data() + static_cast<std::size_t>(index) * words_;
    }
    std::size_t FirstIn(const Word* a, const Word* b) const;

    const ImproveJob& job_;
    std::size_t words_;
    std::vector<std::size_t> order_;
    Measure widths_;
    Measure lengths_;
    Sets remaining_;
    std::vector<Long> countOfWidth_;
    std::vector<Long> allOfWidth_;
    std::size_t narrowest_ = 0;
};

} // namespace tarn
