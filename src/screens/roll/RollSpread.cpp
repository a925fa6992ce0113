#include "screens/roll/RollSpread.h"

#include <algorithm>

namespace tarn {

namespace {

/// A fold has to show the roll larger by this factor: one row is easier to follow than two.
constexpr double WorthFolding = 1.25;
constexpr std::size_t MostRows = 40;
constexpr double LeastScale = 1e-9;

/// Folds a roll where no piece lies, as far as it can.
class Folder {
  public:
    explicit Folder(const RollChart& chart)
        : length_(chart.Length) {
        std::vector<SpreadRow> taken;
        taken.reserve(chart.Pieces.size());
        for (const ChartPiece& piece : chart.Pieces) {
            taken.push_back({piece.Y, piece.Y + piece.Length});
        }
        std::sort(taken.begin(), taken.end(),
                  [](const SpreadRow& a, const SpreadRow& b) { return a.From < b.From; });
        double end = 0;
        for (const SpreadRow& each : taken) {
            if (each.From >= end && end > 0) {
                free_.push_back(end);
            }
            end = std::max(end, each.To);
        }
        free_.push_back(end);
    }

    /// Rows of at most that length.
    std::vector<SpreadRow> Rows(double most) const {
        std::vector<SpreadRow> rows;
        double from = 0;
        while (length_ - from > most && rows.size() <= MostRows) {
            const double to = EndOf(from, most);
            rows.push_back({from, to});
            from = to;
        }
        rows.push_back({from, length_});
        return rows;
    }

    /// Not more rows than that, each as short as can be.
    std::vector<SpreadRow> InRows(std::size_t count) const {
        constexpr int Halvings = 20;
        std::vector<SpreadRow> best = Rows(length_);
        double enough = length_;
        double tooShort = length_ / static_cast<double>(count + 1);
        for (int i = 0; i < Halvings; ++i) {
            const double middle = (enough + tooShort) / 2;
            auto rows = Rows(middle);
            if (rows.size() <= count) {
                enough = middle;
                best = std::move(rows);
            } else {
                tooShort = middle;
            }
        }
        return best;
    }

  private:
    double EndOf(double from, double most) const {
        const auto behind = std::upper_bound(free_.begin(), free_.end(), from + most);
        const bool isFree = behind != free_.begin() && *(behind - 1) > from + most / 2;
        return isFree ? *(behind - 1) : from + most;
    }

    double length_;
    std::vector<double> free_; ///< where no piece goes on
};

double LongestOf(const std::vector<SpreadRow>& rows) {
    double longest = 0;
    for (const SpreadRow& row : rows) {
        longest = std::max(longest, row.To - row.From);
    }
    return longest;
}

RollSpread SpreadInRows(const std::vector<SpreadRow>& rows, const SpreadArea& area, bool stands,
                        double rollWidth) {
    RollSpread spread;
    spread.Stands = stands;
    spread.Ruler = stands ? area.StandingRuler : area.LyingRuler;
    spread.Gap = area.Gap;
    spread.RollWidth = rollWidth;
    spread.Rows = rows;
    const auto count = static_cast<double>(rows.size());
    const double along = stands ? area.Height : area.Width;
    const double across =
        (stands ? area.Width : area.Height) - count * spread.Ruler - (count - 1) * spread.Gap;
    spread.Scale =
        std::max(LeastScale, std::min(along / LongestOf(rows), across / (count * rollWidth)));
    return spread;
}

} // namespace

double RollSpread::RowStart(std::size_t row) const {
    const auto before = static_cast<double>(row);
    return before * (Ruler + RollWidth * Scale + Gap) + Ruler;
}

double RollSpread::Width() const {
    return Stands ? RowStart(Rows.size() - 1) + RollWidth * Scale : LongestOf(Rows) * Scale;
}

double RollSpread::Height() const {
    return Stands ? LongestOf(Rows) * Scale : RowStart(Rows.size() - 1) + RollWidth * Scale;
}

SpreadBox RollSpread::BoxIn(std::size_t row, double x, double y, double width,
                            double length) const {
    const SpreadRow& stretch = Rows[row];
    const double from = std::max(y, stretch.From);
    const double to = std::min(y + length, stretch.To);
    const double begin = (from - stretch.From) * Scale;
    const double extent = std::max(0.0, to - from) * Scale;
    const double start = RowStart(row);
    if (Stands) {
        return {start + x * Scale, begin, width * Scale, extent};
    }
    return {begin, start + (RollWidth - x - width) * Scale, extent, width * Scale};
}

RollSpread SpreadOver(const RollChart& chart, const SpreadArea& area) {
    if (chart.Length <= 0 || chart.RollWidth <= 0) {
        return {};
    }
    const Folder folder(chart);
    RollSpread best;
    for (std::size_t count = 1; count <= MostRows; ++count) {
        const std::vector<SpreadRow> rows = folder.InRows(count);
        for (const bool stands : {true, false}) {
            RollSpread spread = SpreadInRows(rows, area, stands, chart.RollWidth);
            const bool isFold = !best.Rows.empty() && rows.size() > best.Rows.size();
            if (spread.Scale > best.Scale * (isFold ? WorthFolding : 1)) {
                best = std::move(spread);
            }
        }
    }
    return best;
}

} // namespace tarn
