#include "improve/ColumnGeneration.h"

#include "improve/CoveringSimplex.h"
#include "improve/Knapsack.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>

namespace tarn {

namespace {

constexpr std::size_t MostRows = 250; ///< different fills beyond which it would take too long
constexpr std::size_t FewFills = 80;  ///< up to here every fill has a row of its own
constexpr Long LargestWidth = 4000;   ///< widths are rounded down to fit below
constexpr Double PriceScale = 1e6;    ///< prices in whole numbers
constexpr Double Negligible = 1e-6;
constexpr std::size_t ColumnsPerRow = 12; ///< a limit on the cross sections tried

/// Fills that are counted together: those of one width in a large job.
struct Row {
    Long Width;
    Long Copies;
    Area64 Length;
};

std::vector<Row> RowsOf(const ImproveJob& job) {
    const Long coarse = job.Width / LargestWidth + 1;
    std::map<std::pair<Long, std::size_t>, Row> rows;
    for (std::size_t i = 0; i < job.Fills.size(); ++i) {
        const ImproveFill& fill = job.Fills[i];
        if (fill.Width < coarse) {
            continue; // too narrow to be counted: the bound holds without it
        }
        const std::size_t own = job.Fills.size() <= FewFills ? i : 0;
        Row& row = rows.try_emplace({fill.Width, own}, Row{0, 0, 0}).first->second;
        row.Width = fill.Width / coarse;
        row.Copies += std::min(PartsAllowed(job, fill), job.Width / fill.Width);
        row.Length += fill.Length;
    }
    std::vector<Row> list;
    list.reserve(rows.size());
    for (const auto& [key, row] : rows) {
        list.push_back(row);
    }
    return list;
}

/// What the prices prove: the worth of all fills over the worth of the best cross section, rounded
/// up. The prices, rounded down, are `worth`.
Long BoundOf(const std::vector<Row>& rows, const std::vector<std::int64_t>& worth,
             std::int64_t bestWorth) {
    if (bestWorth <= 0) {
        return 0;
    }
    // The sum of the products might not fit: its whole part and its rest are kept apart.
    std::int64_t whole = 0;
    std::int64_t rest = 0;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        whole += rows[i].Length / bestWorth * worth[i];
        rest += rows[i].Length % bestWorth * worth[i];
        whole += rest / bestWorth;
        rest %= bestWorth;
    }
    whole += rest > 0 ? 1 : 0;
    return static_cast<Long>(std::min<std::int64_t>(whole, std::numeric_limits<Long>::max()));
}

} // namespace

Long BarRelaxationBound(const ImproveJob& job, Long known, const std::function<bool()>& goOn) {
    const std::vector<Row> rows = RowsOf(job);
    if (rows.empty() || rows.size() > MostRows) {
        return 0;
    }
    const Long roll = job.Width / (job.Width / LargestWidth + 1);
    std::vector<KnapsackItem> items;
    std::vector<Double> demand;
    std::vector<Double> copies;
    for (const Row& row : rows) {
        items.push_back({row.Width, row.Copies});
        demand.push_back(static_cast<Double>(row.Length));
        copies.push_back(std::max(1, std::min(row.Copies, roll / row.Width)));
    }
    Knapsack knapsack(items, roll);
    CoveringSimplex simplex(demand, copies);
    std::vector<std::int64_t> worth(rows.size());
    std::vector<Double> column(rows.size());
    Long bound = 0;
    for (std::size_t tries = 0; tries < ColumnsPerRow * rows.size() && goOn(); ++tries) {
        simplex.RemoveNegativePrices(rows.size());
        if (simplex.Total() <= known + Negligible) {
            break; // the least length of cross sections only gets less from here
        }
        const std::vector<Double> prices = simplex.Prices();
        std::transform(prices.begin(), prices.end(), worth.begin(), [](Double price) {
            const Double scaled = std::floor(price * PriceScale);
            return static_cast<std::int64_t>(std::clamp(scaled, 0.0, PriceScale));
        });
        const std::int64_t best = knapsack.Solve(worth);
        bound = std::max(bound, BoundOf(rows, worth, best));
        // Prices that no cross section exceeds (but for their rounding) are the least.
        const auto rounding = static_cast<std::int64_t>(rows.size());
        if (best <= static_cast<std::int64_t>(PriceScale) + rounding) {
            break;
        }
        const std::vector<Long>& chosen = knapsack.Chosen();
        std::transform(chosen.begin(), chosen.end(), column.begin(),
                       [](Long count) { return static_cast<Double>(count); });
        if (!simplex.Enter(column)) {
            break;
        }
    }
    return bound;
}

} // namespace tarn
