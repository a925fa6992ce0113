#include "improve/Knapsack.h"

#include <algorithm>

namespace tarn {

Knapsack::Knapsack(std::vector<KnapsackItem> items, Long width)
    : items_(std::move(items))
    , width_(static_cast<std::size_t>(width)) {
    // Any number of copies is a sum of some of 1, 2, 4, .. and a rest.
    for (std::size_t item = 0; item < items_.size(); ++item) {
        Long left = std::min(items_[item].Copies, width / items_[item].Width);
        for (Long copies = 1; left > 0; copies *= 2) {
            const Long used = std::min(copies, left);
            bundles_.push_back({item, used, used * items_[item].Width});
            left -= used;
        }
    }
    taken_.resize(bundles_.size() * (width_ + 1));
}

std::int64_t Knapsack::Solve(const std::vector<std::int64_t>& worth) {
    best_.assign(width_ + 1, 0);
    std::fill(taken_.begin(), taken_.end(), std::uint8_t{0});
    for (std::size_t b = 0; b < bundles_.size(); ++b) {
        const auto wide = static_cast<std::size_t>(bundles_[b].Width);
        const std::int64_t gain = worth[bundles_[b].Item] * bundles_[b].Copies;
        std::uint8_t* const taken = taken_.data() + b * (width_ + 1);
        for (std::size_t width = width_; gain > 0 && width >= wide; --width) {
            if (best_[width - wide] + gain > best_[width]) {
                best_[width] = best_[width - wide] + gain;
                taken[width] = 1;
            }
        }
    }
    chosen_.assign(items_.size(), 0);
    std::size_t width = width_;
    for (std::size_t b = bundles_.size(); b > 0; --b) {
        if (taken_[(b - 1) * (width_ + 1) + width] != 0) {
            chosen_[bundles_[b - 1].Item] += bundles_[b - 1].Copies;
            width -= static_cast<std::size_t>(bundles_[b - 1].Width);
        }
    }
    return best_[width_];
}

} // namespace tarn
