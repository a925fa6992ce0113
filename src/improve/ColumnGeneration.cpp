#include "improve/ColumnGeneration.h"

#include "improve/ColumnKnapsack.h"
#include "improve/CoveringSimplex.h"
#include "improve/Knapsack.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <optional>
#include <tuple>
#include <utility>

namespace tarn {

namespace {

constexpr std::size_t MostRows = 250;   ///< different fills beyond which it would take too long
constexpr std::size_t FewFills = 80;    ///< up to here every fill has a row of its own
constexpr Long LargestWidth = 4000;     ///< widths are rounded down to fit below
constexpr Long LargestInColumns = 1000; ///< width up to which columns of a pattern are looked at
constexpr Double PriceScale = 1e6;      ///< prices in whole numbers
constexpr Double NegligibleGain = 1e-6;
constexpr std::size_t ColumnsPerRow = 12; ///< a limit on the cross sections tried

/// Fills that are counted together: those of one width in a large job.
struct Row {
    Long Width;
    Long Copies;
    Area64 Length;
    bool InColumns; ///< of the pattern: see ColumnItem
};

/// The fills behind a room's drops begin where these end, so a whole number of columns from there.
bool IsInColumns(const ImproveJob& job, const ImproveFill& fill) {
    return job.Width <= LargestInColumns && job.Repeat.Across > 0 && fill.Room != NoRoom &&
           fill.Strip > 0 && fill.Width < job.Width;
}

std::vector<Row> RowsOf(const ImproveJob& job) {
    const Long coarse = job.Width / LargestWidth + 1;
    std::map<std::tuple<Long, bool, std::size_t>, Row> rows;
    for (std::size_t i = 0; i < job.Fills.size(); ++i) {
        const ImproveFill& fill = job.Fills[i];
        if (fill.Width < coarse) {
            continue; // too narrow to be counted: the bound holds without it
        }
        const std::size_t own = job.Fills.size() <= FewFills ? i : 0;
        const bool inColumns = IsInColumns(job, fill);
        Row& row =
            rows.try_emplace({fill.Width, inColumns, own}, Row{0, 0, 0, inColumns}).first->second;
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

/// Finds the best cross section for prices of the rows.
class CrossSections {
  public:
    CrossSections(const ImproveJob& job, const std::vector<Row>& rows, Long roll) {
        std::vector<ColumnItem> items;
        std::vector<KnapsackItem> plain;
        bool inColumns = false;
        for (const Row& row : rows) {
            items.push_back({row.Width, row.Copies, row.InColumns});
            plain.push_back({row.Width, row.Copies});
            inColumns = inColumns || row.InColumns;
        }
        if (inColumns) {
            columns_.emplace(std::move(items), roll, job.Repeat.Across);
        } else {
            plain_.emplace(std::move(plain), roll);
        }
    }

    std::int64_t Solve(const std::vector<std::int64_t>& worth) {
        return columns_ ? columns_->Solve(worth) : plain_->Solve(worth);
    }
    const std::vector<Long>& Chosen() const {
        return columns_ ? columns_->Chosen() : plain_->Chosen();
    }

  private:
    std::optional<Knapsack> plain_;
    std::optional<ColumnKnapsack> columns_;
};

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
    std::vector<Double> demand;
    std::vector<Double> copies;
    for (const Row& row : rows) {
        demand.push_back(static_cast<Double>(row.Length));
        copies.push_back(std::max(1, std::min(row.Copies, roll / row.Width)));
    }
    CrossSections sections(job, rows, roll);
    CoveringSimplex simplex(demand, copies);
    std::vector<std::int64_t> worth(rows.size());
    std::vector<Double> column(rows.size());
    Long bound = 0;
    for (std::size_t tries = 0; tries < ColumnsPerRow * rows.size(); ++tries) {
        if (!simplex.RemoveNegativePrices(rows.size(), goOn)) {
            break;
        }
        if (simplex.Total() <= known + NegligibleGain) {
            break; // the least length of cross sections only gets less from here
        }
        const std::vector<Double> prices = simplex.Prices();
        std::transform(prices.begin(), prices.end(), worth.begin(), [](Double price) {
            const Double scaled = std::floor(price * PriceScale);
            return static_cast<std::int64_t>(std::clamp(scaled, 0.0, PriceScale));
        });
        const std::int64_t best = sections.Solve(worth);
        bound = std::max(bound, BoundOf(rows, worth, best));
        // Prices that no cross section exceeds (but for their rounding) are the least.
        const auto rounding = static_cast<std::int64_t>(rows.size());
        if (best <= static_cast<std::int64_t>(PriceScale) + rounding) {
            break;
        }
        const std::vector<Long>& chosen = sections.Chosen();
        std::transform(chosen.begin(), chosen.end(), column.begin(),
                       [](Long count) { return static_cast<Double>(count); });
        if (!simplex.Enter(column)) {
            break;
        }
    }
    return bound;
}

} // namespace tarn
