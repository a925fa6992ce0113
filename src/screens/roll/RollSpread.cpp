#include "screens/roll/RollSpread.h"

#include <algorithm>
#include <limits>
#include <map>

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
        std::map<double, int> changes; // in how many pieces go on, along the roll
        for (const ChartPiece& piece : chart.Pieces) {
            ++changes[piece.Y + Nearly];
            --changes[piece.Y + piece.Length];
        }
        int going = 0;
        for (const auto& [at, change] : changes) {
            going += change;
            places_.push_back({at, going});
        }
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
    /// A place where a row may end, and how many pieces it would break.
    struct Place {
        double At;
        int Broken;
    };
    static constexpr double Nearly = 1e-6; ///< pieces that touch do not overlap

    /// As far as it can where no piece goes on; else where the fewest do.
    double EndOf(double from, double most) const {
        constexpr double Shortest = 0.5; // of a row
        constexpr double ShortestBroken = 0.8;
        double end = from + most;
        int broken = std::numeric_limits<int>::max();
        const auto behind = [](double at, const Place& place) { return at < place.At; };
        for (auto at = std::upper_bound(places_.begin(), places_.end(), from + most, behind);
             at != places_.begin();) {
            --at;
            const double length = at->At - from;
            if (length <= Shortest * most) {
                break;
            }
            if (at->Broken == 0) {
                return at->At;
            }
            if (length > ShortestBroken * most && at->Broken < broken) {
                end = at->At;
                broken = at->Broken;
            }
        }
        return end;
    }

    double length_;
    std::vector<Place> places_; ///< the pieces' ends, and closely behind their beginnings
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
    spread.Lane = stands ? area.StandingLane : area.LyingLane;
    spread.RollWidth = rollWidth;
    spread.Rows = rows;
    const auto count = static_cast<double>(rows.size());
    const double along = stands ? area.Height : area.Width;
    const double across = (stands ? area.Width : area.Height) -
                          count * (spread.Ruler + spread.Lane) - (count - 1) * spread.Gap;
    spread.Scale =
        std::max(LeastScale, std::min(along / LongestOf(rows), across / (count * rollWidth)));
    return spread;
}

} // namespace

double RollSpread::RowStart(std::size_t row) const {
    const auto before = static_cast<double>(row);
    return before * (Ruler + RollWidth * Scale + Lane + Gap) + Ruler;
}

double RollSpread::Width() const {
    return Stands ? RowStart(Rows.size() - 1) + RollWidth * Scale + Lane : LongestOf(Rows) * Scale;
}

double RollSpread::Height() const {
    return Stands ? LongestOf(Rows) * Scale : RowStart(Rows.size() - 1) + RollWidth * Scale + Lane;
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
