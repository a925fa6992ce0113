#include "screens/order/ColumnFit.h"

#include <algorithm>
#include <cstddef>
#include <numeric>

namespace tarn {

namespace {

int WidthOf(const ColumnFit& fit) {
    return std::accumulate(fit.Widths.begin(), fit.Widths.end(), 0);
}

/// All columns but those that are repeated.
ColumnFit WithoutRepeated(const std::vector<ColumnNeed>& columns, bool isTight) {
    ColumnFit fit{isTight, {}};
    for (const ColumnNeed& column : columns) {
        const int width = isTight ? column.Tight : column.Usual;
        fit.Widths.push_back(column.Use == ColumnUse::Repeated ? 0 : width);
    }
    return fit;
}

void NarrowWidest(const std::vector<ColumnNeed>& columns, ColumnFit& fit, int room) {
    const auto widest = std::max_element(fit.Widths.begin(), fit.Widths.end());
    const int least = columns.at(static_cast<std::size_t>(widest - fit.Widths.begin())).Least;
    *widest = std::max(std::min(least, *widest), *widest - (WidthOf(fit) - room));
}

} // namespace

ColumnFit FitColumns(const std::vector<ColumnNeed>& columns, int room) {
    ColumnFit fit{false, {}};
    for (const ColumnNeed& column : columns) {
        fit.Widths.push_back(column.Usual);
    }
    if (WidthOf(fit) > room) {
        fit = WithoutRepeated(columns, false);
    }
    if (WidthOf(fit) > room) {
        fit = WithoutRepeated(columns, true);
    }
    for (std::size_t i = columns.size(); i-- > 0 && WidthOf(fit) > room;) {
        if (columns[i].Use == ColumnUse::LookedUp) {
            fit.Widths[i] = 0;
        }
    }
    if (!columns.empty() && WidthOf(fit) > room) {
        NarrowWidest(columns, fit, room);
    }
    return fit;
}

} // namespace tarn
