#include "estimate/CutList.h"

#include "app/Format.h"
#include "app/Lengths.h"
#include "app/Numbers.h"
#include "app/Text.h"
#include "engine/Placement.h"
#include "estimate/MatchPattern.h"
#include "estimate/Totals.h"
#include "rooms/Coverings.h"

namespace tarn {

namespace {

using Lines = std::vector<std::string>;

constexpr std::string_view TotalPattern = "#,##0.00";
constexpr std::string_view BasePattern = "###0.00";

/// An extent in coordinate units as inches.
Double Inches(Single from, Single to, Double dimScale) {
    return static_cast<Double>(to - from) * dimScale;
}

/// A length of roll in inches as totals show it.
std::string TotalText(Double inches, bool metric) {
    return WholeLengthText(metric ? RoundedCentimetres(inches) : WholeInches(inches), metric);
}

class CutList {
  public:
    CutList(const SharedState& state, const EngineArrays& engine, const CarpetEstimate& estimate)
        : state_(state)
        , engine_(engine)
        , estimate_(estimate)
        , metric_(state.IsMetric()) {}

    Lines Build() {
        lines_.push_back(CarpetHeading(state_, engine_, estimate_));
        AddCuts();
        AddPieces();
        const RollTotals totals = TotalRoll(state_, engine_);
        AddCounts(totals);
        AddRoll(totals);
        if (estimate_.MatchFlag) {
            AddMatchTotals();
        }
        AddBase();
        AddTiles();
        return std::move(lines_);
    }

  private:
    void AddCuts() {
        for (Integer i = 0; i < state_.ECutCount; ++i) {
            lines_.push_back("Cut" + TrimStr(i + 1) + ": " + CutSizeText(state_, engine_, i));
        }
    }

    void AddPieces() {
        for (Integer i = 0; i < engine_.PieceCount; ++i) {
            lines_.push_back(PieceLabel(engine_.OrgPC[i], estimate_.SavedFillCount) + ": " +
                             PieceSizeText(state_, engine_, i));
        }
        if (estimate_.MatchFlag) {
            lines_.push_back("Match Pattern: " + RepeatText(estimate_, metric_));
        }
    }

    void AddCounts(const RollTotals& totals) {
        lines_.push_back("Total Cuts:" + TrimStr(state_.ECutCount) +
                         "   Total Cut-Len:" + TotalText(totals.CutLength, metric_));
        lines_.push_back("Total Fills:" + TrimStr(engine_.PieceCount) +
                         "   Total Fill-Len:" + TotalText(engine_.ResultLen, metric_));
        const Single end = GetPCLen(engine_);
        if (!IsWithinTolerance(end - static_cast<Single>(engine_.ResultLen))) {
            lines_.push_back("Fills end at:" + LengthText(static_cast<Double>(end), metric_));
        }
        if (estimate_.Improved) {
            lines_.push_back(ImprovementText(*estimate_.Improved));
        }
    }

    void AddRoll(const RollTotals& totals) {
        lines_.push_back("Total Length:" + TotalText(totals.Length, metric_));
        if (metric_) {
            lines_.push_back("Total SQ. Meters:" + Format(totals.Size.SquareMeters, TotalPattern));
        } else {
            lines_.push_back("Total SQ. Yards:" + Format(totals.Size.SquareYards, TotalPattern));
            lines_.push_back("Total SQ. FT.:" + Format(totals.Size.SquareFeet, TotalPattern));
        }
    }

    void AddMatchTotals() {
        const MatchTotals totals = TotalMatch(state_, engine_, estimate_);
        const std::string size = metric_ ? Format(totals.Size.SquareMeters, "###0.00 SQ. Meters   ")
                                         : Format(totals.Size.SquareFeet, "###0.00 SQ. FT.   ") +
                                               Format(totals.Size.SquareYards, "###0.00 SQ. Yards");
        lines_.push_back("Total Match Pattern Length: " + WholeLengthText(totals.Length, metric_));
        lines_.push_back("Total Match Pattern Size: " + size);
    }

    void AddBase() {
        const auto base = static_cast<Double>(TotalBase(state_));
        lines_.push_back("Total BASE: " + (metric_ ? TrimStr(CLng(base)) + " CM"
                                                   : Format(base / 12, BasePattern) + " FEET"));
    }

    void AddTiles() {
        for (Integer code = FirstTileCode; code <= LastTileCode; ++code) {
            if (HasRooms(state_, code)) {
                lines_.push_back(TileLine(static_cast<Byte>(code)));
            }
        }
    }

    std::string TileLine(Byte code) const {
        const auto area = static_cast<Double>(CarpetArea(state_, code));
        const auto perimeter = static_cast<Double>(CarpetPerimeter(state_, code));
        const std::string size =
            metric_ ? Format(AreaOf(area).SquareMeters, " ##0.00") + " SQ. Meters.  "
                    : Format(AreaOf(area).SquareFeet, " ##0.00 SQ. FT.  ");
        const std::string base = metric_ ? TrimStr(RoundedCentimetres(perimeter)) + " CM"
                                         : Format(perimeter / 12, BasePattern) + " FEET";
        return "Tile-" + TrimStr(CoveringNumber(code)) + ": " + size + "Tile Base: " + base;
    }

    const SharedState& state_;
    const EngineArrays& engine_;
    const CarpetEstimate& estimate_;
    bool metric_;
    Lines lines_;
};

} // namespace

std::string PieceLabel(Integer number, Integer savedFillCount) {
    constexpr Integer Letters = 26;
    const auto letter = [](Integer index) {
        return std::string(1, static_cast<char>('A' + index));
    };
    if (savedFillCount <= Letters) {
        return letter(number);
    }
    return letter(static_cast<Integer>(number / Letters)) +
           letter(static_cast<Integer>(number % Letters));
}

std::string SizeText(Double across, Double along, bool metric) {
    return LengthText(across, metric) + " X " + LengthText(along, metric);
}

std::string PieceSizeText(const SharedState& state, const EngineArrays& engine, Integer i) {
    const Double x = Inches(engine.PCX1[i], engine.PCX2[i], state.DimScale);
    const Double y = Inches(engine.PCY1[i], engine.PCY2[i], state.DimScale);
    return engine.LayDir != 0 ? SizeText(y, x, state.IsMetric()) : SizeText(x, y, state.IsMetric());
}

std::string CutSizeText(const SharedState& state, const EngineArrays& engine, Integer i) {
    const Double x = Inches(state.ECutX1[i], state.ECutX2[i], state.DimScale);
    const Double y = Inches(state.ECutY1[i], state.ECutY2[i], state.DimScale);
    return engine.LayDir != 0 ? SizeText(y, x, state.IsMetric()) : SizeText(x, y, state.IsMetric());
}

std::array<std::string, 2> CarpetHeadingLines(const SharedState& state, const EngineArrays& engine,
                                              const CarpetEstimate& estimate) {
    const auto width = static_cast<Double>(engine.RollWidth);
    return {"Carpet-" + TrimStr(estimate.CarpetNo + 1) +
                "  Width=" + TotalText(width, state.IsMetric()),
            engine.LayDir != 0 ? "CROSSLAY" : "DOWNLAY"};
}

std::string CarpetHeading(const SharedState& state, const EngineArrays& engine,
                          const CarpetEstimate& estimate) {
    const auto [carpet, lay] = CarpetHeadingLines(state, engine, estimate);
    return carpet + "  " + lay;
}

std::vector<std::string> CutListLines(const SharedState& state, const EngineArrays& engine,
                                      const CarpetEstimate& estimate) {
    if (state.ECutCount == 0 && engine.PieceCount == 0) {
        return {};
    }
    return CutList(state, engine, estimate).Build();
}

} // namespace tarn
