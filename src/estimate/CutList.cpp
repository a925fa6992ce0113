#include "estimate/CutList.h"

#include "base/Format.h"
#include "base/Lengths.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "base/Words.h"
#include "engine/ResultLength.h"
#include "estimate/FillLabels.h"
#include "estimate/Totals.h"
#include "project/Coverings.h"

#include <utility>

namespace tarn {

namespace {

using Items = std::vector<CutListLine>;

constexpr std::string_view TotalFormat = "#,##0.00";
constexpr std::string_view BaseFormat = "###0.00";

/// A length of roll in inches as totals show it.
std::string TotalText(Double inches, Units units) {
    return WholeLengthText(ListedTotal(inches, units), units);
}

/// The size of a cut or piece from its edges in coordinate units.
template <typename Edges>
SizeOnRoll SizeOfEdges(const Estimate& estimate, const Edges& edges) {
    const Double scale = estimate.Job.Scale;
    const Double x = static_cast<Double>(edges.X2 - edges.X1) * scale;
    const Double y = static_cast<Double>(edges.Y2 - edges.Y1) * scale;
    return estimate.Request.Direction == Lay::Cross ? SizeOnRoll{y, x} : SizeOnRoll{x, y};
}

class ListWriter {
  public:
    explicit ListWriter(const Estimate& estimate)
        : estimate_(estimate)
        , units_(estimate.Request.In)
        , metric_(units_ == Units::Metric) {}

    Items Write() {
        Add(CarpetHeading(estimate_.Request));
        AddCuts();
        AddPieces();
        const RollTotals totals = TotalRoll(estimate_);
        AddCounts(totals);
        AddRollTotals(totals);
        if (estimate_.Request.Repeat) {
            AddPatternTotals(TotalPattern(estimate_, *estimate_.Request.Repeat));
        }
        AddBase();
        for (const TileFloor& tile : estimate_.Tiles) {
            AddTile(tile);
        }
        return std::move(lines_);
    }

  private:
    void Add(std::string text) { lines_.push_back({std::move(text), {}, {}}); }

    void AddCuts() {
        for (std::size_t i = 0; i < estimate_.Cuts.size(); ++i) {
            lines_.push_back({CutLabel(i) + ": " + SizeOf(estimate_, estimate_.Cuts[i]), i, {}});
        }
    }

    void AddPieces() {
        for (std::size_t i = 0; i < estimate_.Fills.Layout.size(); ++i) {
            const Piece& piece = estimate_.Fills.Layout[i].Part;
            lines_.push_back({LabelOf(estimate_, piece) + ": " + SizeOf(estimate_, piece), {}, i});
        }
        if (estimate_.Request.Repeat) {
            Add(Words("Match Pattern: %1", RepeatText(*estimate_.Request.Repeat, units_)));
        }
    }

    void AddCounts(const RollTotals& totals) {
        const auto count = [](std::size_t number) { return TrimStr(static_cast<Long>(number)); };
        const Integer reported = estimate_.Fills.Length;
        Add(Words("Total Cuts:%1   Total Cut-Len:%2", count(estimate_.Cuts.size()),
                  TotalText(totals.CutLength, units_)));
        Add(Words("Total Fills:%1   Total Fill-Len:%2", count(estimate_.Fills.Layout.size()),
                  TotalText(reported, units_)));
        const Single end = LengthInUse(estimate_.Fills.Layout);
        if (!IsWithinTolerance(end - static_cast<Single>(reported))) {
            Add(Words("Fills end at:%1", LengthText(static_cast<Double>(end), units_)));
        }
        if (estimate_.Improved) {
            Add(ImprovementText(*estimate_.Improved));
        }
    }

    void AddRollTotals(const RollTotals& totals) {
        Add(Words("Total Length:%1", TotalText(totals.Length, units_)));
        if (metric_) {
            Add(Words("Total SQ. Meters:%1", Format(totals.Size.SquareMeters, TotalFormat)));
        } else {
            Add(Words("Total SQ. Yards:%1", Format(totals.Size.SquareYards, TotalFormat)));
            Add(Words("Total SQ. FT.:%1", Format(totals.Size.SquareFeet, TotalFormat)));
        }
    }

    void AddPatternTotals(const PatternTotals& totals) {
        constexpr std::string_view Figure = "###0.00";
        Add(Words("Total Match Pattern Length: %1", WholeLengthText(totals.Length, units_)));
        Add(metric_ ? Words("Total Match Pattern Size: %1 SQ. Meters   ",
                            Format(totals.Size.SquareMeters, Figure))
                    : Words("Total Match Pattern Size: %1 SQ. FT.   %2 SQ. Yards",
                            Format(totals.Size.SquareFeet, Figure),
                            Format(totals.Size.SquareYards, Figure)));
    }

    void AddBase() {
        const auto base = static_cast<Double>(estimate_.Base);
        Add(metric_ ? Words("Total BASE: %1 CM", TrimStr(CLng(base)))
                    : Words("Total BASE: %1 FEET", Format(base / 12, BaseFormat)));
    }

    void AddTile(const TileFloor& tile) {
        const Area area = AreaOf(static_cast<Double>(tile.Area));
        const auto perimeter = static_cast<Double>(tile.Perimeter);
        const std::string number = TrimStr(CoveringNumber(tile.Covering));
        constexpr std::string_view Figure = " ##0.00";
        Add(metric_
                ? Words("Tile-%1: %2 SQ. Meters.  Tile Base: %3 CM", number,
                        Format(area.SquareMeters, Figure), TrimStr(RoundedCentimetres(perimeter)))
                : Words("Tile-%1: %2 SQ. FT.  Tile Base: %3 FEET", number,
                        Format(area.SquareFeet, Figure), Format(perimeter / 12, BaseFormat)));
    }

    const Estimate& estimate_;
    Units units_;
    bool metric_;
    Items lines_;
};

} // namespace

std::vector<std::string> CutListLines(const Estimate& estimate) {
    std::vector<std::string> lines;
    for (CutListLine& item : CutListItems(estimate)) {
        lines.push_back(std::move(item.Text));
    }
    return lines;
}

std::vector<CutListLine> CutListItems(const Estimate& estimate) {
    return HasNothingToCut(estimate) ? Items() : ListWriter(estimate).Write();
}

std::array<std::string, 2> CarpetHeadingLines(const EstimateRequest& request) {
    const auto width = static_cast<Double>(request.RollWidth);
    return {Words("Carpet-%1  Width=%2", TrimStr(request.Carpet + 1), TotalText(width, request.In)),
            request.Direction == Lay::Cross ? Words("CROSSLAY") : Words("DOWNLAY")};
}

std::string CarpetHeading(const EstimateRequest& request) {
    const auto [carpet, lay] = CarpetHeadingLines(request);
    return carpet + "  " + lay;
}

std::string SizeText(Double across, Double along, Units units) {
    return LengthText(across, units) + " X " + LengthText(along, units);
}

SizeOnRoll SizeOnRollOf(const Estimate& estimate, const Piece& piece) {
    return SizeOfEdges(estimate, piece);
}

SizeOnRoll SizeOnRollOf(const Estimate& estimate, const Cut& cut) {
    return SizeOfEdges(estimate, cut);
}

std::string SizeOf(const Estimate& estimate, const Piece& piece) {
    const SizeOnRoll size = SizeOnRollOf(estimate, piece);
    return SizeText(size.Across, size.Along, estimate.Request.In);
}

std::string SizeOf(const Estimate& estimate, const Cut& cut) {
    const SizeOnRoll size = SizeOnRollOf(estimate, cut);
    return SizeText(size.Across, size.Along, estimate.Request.In);
}

} // namespace tarn
