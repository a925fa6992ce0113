#pragma once

#include "base/Types.h"

#include <cstdint>
#include <vector>

namespace tarn {

/// Something to be packed up to `Copies` times.
struct KnapsackItem {
    Long Width; ///< 1 or more
    Long Copies;
};

/// Chooses the items of the greatest worth that are together not wider than a width.
class Knapsack {
  public:
    Knapsack(std::vector<KnapsackItem> items, Long width);

    /// Solve for the worth of one copy of each item (0 or more). Returns the greatest worth.
    std::int64_t Solve(const std::vector<std::int64_t>& worth);
    /// How often each item is in the solution.
    const std::vector<Long>& Chosen() const { return chosen_; }

  private:
    /// Some copies of an item as one.
    struct Bundle {
        std::size_t Item;
        Long Copies;
        Long Width;
    };
    std::vector<KnapsackItem> items_;
    std::size_t width_;
    std::vector<Bundle> bundles_;
    std::vector<std::int64_t> best_;  ///< by width
    std::vector<std::uint8_t> taken_; ///< by bundle and width
    std::vector<Long> chosen_;
};

} // namespace tarn
