#include "estimate/CutList.h"

#include "base/Format.h"
#include "base/Lengths.h"
#include "base/Numbers.h"
#include "base/Text.h"
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
            Add("Match Pattern: " + RepeatText(*estimate_.Request.Repeat, units_));
        }
    }

    void AddCounts(const RollTotals& totals) {
        const auto count = [](std::size_t number) { return TrimStr(static_cast<Long>(number)); };
        const Integer reported = estimate_.Fills.Length;
        Add("Total Cuts:" + count(estimate_.Cuts.size()) +
            "   Total Cut-Len:" + TotalText(totals.CutLength, units_));
        Add("Total Fills:" + count(estimate_.Fills.Layout.size()) +
            "   Total Fill-Len:" + TotalText(reported, units_));
        const Single end = LengthInUse(estimate_.Fills.Layout);
        if (!IsWithinTolerance(end - static_cast<Single>(reported))) {
            Add("Fills end at:" + LengthText(static_cast<Double>(end), units_));
        }
        if (estimate_.Improved) {
            Add(ImprovementText(*estimate_.Improved));
        }
    }

    void AddRollTotals(const RollTotals& totals) {
        Add("Total Length:" + TotalText(totals.Length, units_));
        if (metric_) {
            Add("Total SQ. Meters:" + Format(totals.Size.SquareMeters, TotalFormat));
        } else {
            Add("Total SQ. Yards:" + Format(totals.Size.SquareYards, TotalFormat));
            Add("Total SQ. FT.:" + Format(totals.Size.SquareFeet, TotalFormat));
        }
    }

    void AddPatternTotals(const PatternTotals& totals) {
        const std::string size = metric_ ? Format(totals.Size.SquareMeters, "###0.00 SQ. Meters   ")
                                         : Format(totals.Size.SquareFeet, "###0.00 SQ. FT.   ") +
                                               Format(totals.Size.SquareYards, "###0.00 SQ. Yards");
        Add("Total Match Pattern Length: " + WholeLengthText(totals.Length, units_));
        Add("Total Match Pattern Size: " + size);
    }

    void AddBase() {
        const auto base = static_cast<Double>(estimate_.Base);
        Add("Total BASE: " +
            (metric_ ? TrimStr(CLng(base)) + " CM" : Format(base / 12, BaseFormat) + " FEET"));
    }

    void AddTile(const TileFloor& tile) {
        const Area area = AreaOf(static_cast<Double>(tile.Area));
        const auto perimeter = static_cast<Double>(tile.Perimeter);
        const std::string size = metric_ ? Format(area.SquareMeters, " ##0.00") + " SQ. Meters.  "
                                         : Format(area.SquareFeet, " ##0.00 SQ. FT.  ");
        const std::string base = metric_ ? TrimStr(RoundedCentimetres(perimeter)) + " CM"
                                         : Format(perimeter / 12, BaseFormat) + " FEET";
        Add("Tile-" + TrimStr(CoveringNumber(tile.Covering)) + ": " + size + "Tile Base: " + base);
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
    return {"Carpet-" + TrimStr(request.Carpet + 1) + "  Width=" + TotalText(width, request.In),
            request.Direction == Lay::Cross ? "CROSSLAY" : "DOWNLAY"};
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
