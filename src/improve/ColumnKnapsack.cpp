#include "improve/ColumnKnapsack.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace tarn {

namespace {

constexpr std::int64_t Never = std::numeric_limits<std::int64_t>::min() / 2;

} // namespace

ColumnKnapsack::ColumnKnapsack(std::vector<ColumnItem> items, Long width, Long column)
    : items_(std::move(items))
    , column_(column)
    , row_(static_cast<std::size_t>(width) + 1)
    , before_(width % column) {
    for (const bool inColumns : {false, true}) {
        for (std::size_t item = 0; item < items_.size(); ++item) {
            if (items_[item].InColumns != inColumns) {
                continue;
            }
            Long left = std::min(items_[item].Copies, width / items_[item].Width);
            for (Long copies = 1; left > 0; copies *= 2) {
                bundles_.push_back({item, std::min(copies, left)});
                left -= bundles_.back().Copies;
            }
        }
        firstInColumns_ = inColumns ? firstInColumns_ : bundles_.size();
    }
    taken_.resize(bundles_.size() * (Uses + 1) * row_);
}

Long ColumnKnapsack::WidthOf(const Bundle& bundle, std::size_t inRests) const {
    const Long width = items_[bundle.Item].Width;
    const Long rounded = (width + column_ - 1) / column_ * column_;
    const auto rests = static_cast<Long>(inRests);
    return rests * width + (bundle.Copies - rests) * rounded;
}

void ColumnKnapsack::AddFree(std::size_t number, std::int64_t gain) {
    const Bundle& bundle = bundles_[number];
    const auto copies = static_cast<std::size_t>(bundle.Copies);
    const std::size_t wide = copies * static_cast<std::size_t>(items_[bundle.Item].Width);
    std::uint8_t* const taken = taken_.data() + number * (Uses + 1) * row_;
    for (std::size_t width = row_; width-- > wide;) {
        for (std::size_t uses = 0; uses <= Uses; ++uses) {
            const std::size_t after = std::min(Uses, uses + copies);
            const std::int64_t sum = best_[At(uses, width - wide)] + gain;
            if (sum > best_[At(after, width)]) {
                best_[At(after, width)] = sum;
                taken[At(after, width)] = static_cast<std::uint8_t>(uses + 1);
            }
        }
    }
}

void ColumnKnapsack::BeginColumns() {
    const Table all = best_;
    madeUse_.assign(best_.size(), 0);
    const auto before = static_cast<std::size_t>(before_);
    for (std::size_t uses = 0; uses <= Uses; ++uses) {
        for (std::size_t width = 0; width < row_; ++width) {
            std::int64_t& best = best_[At(uses, width)];
            best = width >= before ? all[At(uses, width - before)] : Never;
            const std::size_t from = uses == Uses ? Uses : uses + 1;
            if (all[At(from, width)] > best) {
                best = all[At(from, width)];
                madeUse_[At(uses, width)] = static_cast<std::uint8_t>(from + 1);
            }
        }
    }
}

void ColumnKnapsack::AddInColumns(std::size_t number, std::int64_t gain) {
    const Bundle& bundle = bundles_[number];
    std::uint8_t* const taken = taken_.data() + number * (Uses + 1) * row_;
    const std::size_t most = std::min(Uses, static_cast<std::size_t>(bundle.Copies));
    for (std::size_t width = row_; width-- > 0;) {
        for (std::size_t uses = 0; uses <= Uses; ++uses) {
            for (std::size_t used = 0; used <= most; ++used) {
                const std::size_t from = uses == Uses ? Uses : uses + used;
                const auto wide = static_cast<std::size_t>(
                    WidthOf(bundle, uses == Uses ? static_cast<std::size_t>(bundle.Copies) : used));
                if (from > Uses || wide > width) {
                    continue;
                }
                const std::int64_t sum = best_[At(from, width - wide)] + gain;
                if (sum > best_[At(uses, width)]) {
                    best_[At(uses, width)] = sum;
                    taken[At(uses, width)] = static_cast<std::uint8_t>(used + 1);
                }
            }
        }
    }
}

std::int64_t ColumnKnapsack::Solve(const std::vector<std::int64_t>& worth) {
    best_.assign((Uses + 1) * row_, Never);
    std::fill(best_.begin(), best_.begin() + static_cast<std::ptrdiff_t>(row_), 0);
    std::fill(taken_.begin(), taken_.end(), std::uint8_t{0});
    const auto bestUses = [&] {
        std::size_t uses = 0;
        for (std::size_t other = 1; other <= Uses; ++other) {
            uses = best_[At(other, row_ - 1)] > best_[At(uses, row_ - 1)] ? other : uses;
        }
        return uses;
    };
    const auto gain = [&](std::size_t bundle) {
        return worth[bundles_[bundle].Item] * bundles_[bundle].Copies;
    };
    for (std::size_t bundle = 0; bundle < firstInColumns_; ++bundle) {
        if (gain(bundle) > 0) {
            AddFree(bundle, gain(bundle));
        }
    }
    const std::size_t freeUses = bestUses();
    const std::int64_t free = best_[At(freeUses, row_ - 1)];
    BeginColumns();
    for (std::size_t bundle = firstInColumns_; bundle < bundles_.size(); ++bundle) {
        if (gain(bundle) > 0) {
            AddInColumns(bundle, gain(bundle));
        }
    }
    const std::size_t uses = bestUses();
    const std::int64_t best = best_[At(uses, row_ - 1)];
    TraceBack(best > free, best > free ? uses : freeUses);
    return std::max(best, free);
}

void ColumnKnapsack::TraceBack(bool columns, std::size_t uses) {
    chosen_.assign(items_.size(), 0);
    std::size_t width = row_ - 1;
    std::size_t bundle = bundles_.size();
    const auto taken = [&] { return taken_[bundle * (Uses + 1) * row_ + At(uses, width)]; };
    while (bundle > firstInColumns_) {
        --bundle;
        if (!columns || taken() == 0) {
            continue;
        }
        const Bundle& chosen = bundles_[bundle];
        const std::size_t used = taken() - 1U;
        chosen_[chosen.Item] += chosen.Copies;
        const auto inRests = uses == Uses ? static_cast<std::size_t>(chosen.Copies) : used;
        uses = uses == Uses ? Uses : uses + used;
        width -= static_cast<std::size_t>(WidthOf(chosen, inRests));
    }
    if (columns) {
        const std::uint8_t made = madeUse_[At(uses, width)];
        width -= made == 0 ? static_cast<std::size_t>(before_) : 0;
        uses = made == 0 ? uses : made - 1U;
    }
    while (bundle > 0) {
        --bundle;
        if (taken() != 0) {
            const Bundle& chosen = bundles_[bundle];
            uses = taken() - 1U;
            chosen_[chosen.Item] += chosen.Copies;
            width -= static_cast<std::size_t>(chosen.Copies * items_[chosen.Item].Width);
        }
    }
}

} // namespace tarn
