#include "estimate/CutList.h"

#include "base/Format.h"
#include "base/Lengths.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "engine/ResultLength.h"
#include "estimate/FillLabels.h"
#include "estimate/Totals.h"
#include "project/Coverings.h"

namespace tarn {

namespace {

using Lines = std::vector<std::string>;

constexpr std::string_view TotalFormat = "#,##0.00";
constexpr std::string_view BaseFormat = "###0.00";

/// A length of roll in inches as totals show it.
std::string TotalText(Double inches, Units units) {
    return WholeLengthText(
        units == Units::Metric ? RoundedCentimetres(inches) : WholeInches(inches), units);
}

/// The size of a cut or piece from its edges in coordinate units.
template <typename Edges>
std::string SizeOfEdges(const Estimate& estimate, const Edges& edges) {
    const Double scale = estimate.Job.Scale;
    const Double x = static_cast<Double>(edges.X2 - edges.X1) * scale;
    const Double y = static_cast<Double>(edges.Y2 - edges.Y1) * scale;
    return estimate.Request.Direction == Lay::Cross ? SizeText(y, x, estimate.Request.In)
                                                    : SizeText(x, y, estimate.Request.In);
}

class ListWriter {
  public:
    explicit ListWriter(const Estimate& estimate)
        : estimate_(estimate)
        , units_(estimate.Request.In)
        , metric_(units_ == Units::Metric) {}

    Lines Write() {
        lines_.push_back(CarpetHeading(estimate_.Request));
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
    void AddCuts() {
        Integer number = 0;
        for (const Cut& cut : estimate_.Cuts) {
            lines_.push_back("Cut" + TrimStr(++number) + ": " + SizeOf(estimate_, cut));
        }
    }

    void AddPieces() {
        for (const Placed& placed : estimate_.Fills.Layout) {
            lines_.push_back(LabelOf(estimate_, placed.Part) + ": " +
                             SizeOf(estimate_, placed.Part));
        }
        if (estimate_.Request.Repeat) {
            lines_.push_back("Match Pattern: " + RepeatText(*estimate_.Request.Repeat, units_));
        }
    }

    void AddCounts(const RollTotals& totals) {
        const auto count = [](std::size_t number) { return TrimStr(static_cast<Long>(number)); };
        const Integer reported = estimate_.Fills.Length;
        lines_.push_back("Total Cuts:" + count(estimate_.Cuts.size()) +
                         "   Total Cut-Len:" + TotalText(totals.CutLength, units_));
        lines_.push_back("Total Fills:" + count(estimate_.Fills.Layout.size()) +
                         "   Total Fill-Len:" + TotalText(reported, units_));
        const Single end = LengthInUse(estimate_.Fills.Layout);
        if (!IsWithinTolerance(end - static_cast<Single>(reported))) {
            lines_.push_back("Fills end at:" + LengthText(static_cast<Double>(end), units_));
        }
        if (estimate_.Improved) {
            lines_.push_back(ImprovementText(*estimate_.Improved));
        }
    }

    void AddRollTotals(const RollTotals& totals) {
        lines_.push_back("Total Length:" + TotalText(totals.Length, units_));
        if (metric_) {
            lines_.push_back("Total SQ. Meters:" + Format(totals.Size.SquareMeters, TotalFormat));
        } else {
            lines_.push_back("Total SQ. Yards:" + Format(totals.Size.SquareYards, TotalFormat));
            lines_.push_back("Total SQ. FT.:" + Format(totals.Size.SquareFeet, TotalFormat));
        }
    }

    void AddPatternTotals(const PatternTotals& totals) {
        const std::string size = metric_ ? Format(totals.Size.SquareMeters, "###0.00 SQ. Meters   ")
                                         : Format(totals.Size.SquareFeet, "###0.00 SQ. FT.   ") +
                                               Format(totals.Size.SquareYards, "###0.00 SQ. Yards");
        lines_.push_back("Total Match Pattern Length: " + WholeLengthText(totals.Length, units_));
        lines_.push_back("Total Match Pattern Size: " + size);
    }

    void AddBase() {
        const auto base = static_cast<Double>(estimate_.Base);
        lines_.push_back("Total BASE: " + (metric_ ? TrimStr(CLng(base)) + " CM"
                                                   : Format(base / 12, BaseFormat) + " FEET"));
    }

    void AddTile(const TileFloor& tile) {
        const Area area = AreaOf(static_cast<Double>(tile.Area));
        const auto perimeter = static_cast<Double>(tile.Perimeter);
        const std::string size = metric_ ? Format(area.SquareMeters, " ##0.00") + " SQ. Meters.  "
                                         : Format(area.SquareFeet, " ##0.00 SQ. FT.  ");
        const std::string base = metric_ ? TrimStr(RoundedCentimetres(perimeter)) + " CM"
                                         : Format(perimeter / 12, BaseFormat) + " FEET";
        lines_.push_back("Tile-" + TrimStr(CoveringNumber(tile.Covering)) + ": " + size +
                         "Tile Base: " + base);
    }

    const Estimate& estimate_;
    Units units_;
    bool metric_;
    Lines lines_;
};

} // namespace

std::vector<std::string> CutListLines(const Estimate& estimate) {
    return HasNothingToCut(estimate) ? Lines() : ListWriter(estimate).Write();
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

std::string SizeOf(const Estimate& estimate, const Piece& piece) {
    return SizeOfEdges(estimate, piece);
}

std::string SizeOf(const Estimate& estimate, const Cut& cut) {
    return SizeOfEdges(estimate, cut);
}

} // namespace tarn
