#include "engine/PieceOrder.h"

#include "base/RunTimeError.h"

#include <algorithm>
#include <cmath>

namespace tarn {

Double OrderKey(const PieceSize& size, Integer power) {
    const Double key =
        std::pow(static_cast<Double>(size.Length), power) * static_cast<Double>(size.Width);
    if (!std::isfinite(key)) {
        RaiseOverflow();
    }
    return key;
}

const std::vector<std::size_t>& PieceOrder::LargestFirst(const std::vector<PieceSize>& sizes,
                                                         Integer power) {
    rows_.clear();
    for (const PieceSize& size : sizes) {
        rows_.push_back({OrderKey(size, power), rows_.size()});
    }
    // By number where keys are equal, so that a plain sort keeps their order.
    std::sort(rows_.begin(), rows_.end(), [](const Row& a, const Row& b) {
        return a.Key != b.Key ? a.Key > b.Key : a.Number < b.Number;
    });
    numbers_.clear();
    for (const Row& row : rows_) {
        numbers_.push_back(row.Number);
    }
    return numbers_;
}

} // namespace tarn
