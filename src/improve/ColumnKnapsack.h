#pragma once

#include "base/Types.h"

#include <cstdint>
#include <vector>

namespace tarn {

/// Something to be packed up to `Copies` times.
struct ColumnItem {
    Long Width; ///< 1 or more
    Long Copies;
    bool InColumns; ///< it begins a whole number of columns from the roll's end
};

/// Chooses the items of the greatest worth of which a cross section of a roll with a pattern may
/// consist. Those in columns begin a whole number of columns before the end of the width. So each
/// takes whole columns, and what lies before the first column is lost, unless an item that is free
/// of columns lies there: each of them can make use of one such rest. That is a relaxation: it is
/// not asked whether the item is narrow enough to.
class ColumnKnapsack {
  public:
    ColumnKnapsack(std::vector<ColumnItem> items, Long width, Long column);

    /// Solve for the worth of one copy of each item (0 or more). Returns the greatest worth.
    std::int64_t Solve(const std::vector<std::int64_t>& worth);
    /// How often each item is in the solution.
    const std::vector<Long>& Chosen() const { return chosen_; }

  private:
    /// Free items that are counted; more count as if they made use of any number of rests.
    static constexpr std::size_t Uses = 3;

    /// Some copies of an item as one.
    struct Bundle {
        std::size_t Item;
        Long Copies;
    };
    /// One row for each number of rests that can still be made use of.
    using Table = std::vector<std::int64_t>;

    std::size_t At(std::size_t uses, std::size_t width) const { return uses * row_ + width; }
    static std::size_t UsesLeft(std::size_t uses, std::size_t used) {
        return uses == Uses ? Uses : uses - used;
    }
    void AddFree(std::size_t bundle, std::int64_t gain);
    void AddInColumns(std::size_t bundle, std::int64_t gain);
    /// Lay what is before the first column aside, or make use of it.
    void BeginColumns();
    /// The width of copies of which some lie in rests.
    Long WidthOf(const Bundle& bundle, std::size_t inRests) const;
    void TraceBack(bool columns, std::size_t uses);

    std::vector<ColumnItem> items_;
    Long column_;
    std::size_t row_;
    Long before_; ///< the width before the first column
    std::vector<Bundle> bundles_;
    std::size_t firstInColumns_ = 0; ///< bundle
    Table best_;
    std::vector<std::uint8_t>
        taken_; ///< by bundle and place in the table: 0, or how it was, from 1
    std::vector<std::uint8_t> madeUse_; ///< by place: of what is before the first column
    std::vector<Long> chosen_;
};

} // namespace tarn
