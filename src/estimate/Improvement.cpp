#include "estimate/Improvement.h"

#include "base/Format.h"
#include "base/Lengths.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "engine/ResultLength.h"
#include "estimate/MinCuts.h"

namespace tarn {

namespace {

constexpr Double TenthsInWhole = 1000; ///< of a percent
constexpr const char* NoneAsShort = "none whose parts keep the minimum cut is as short";

bool IsShorter(Double a, Double b) {
    return b - a >= LengthTolerance;
}

/// A share in tenths of a percent as text: "3.2%".
std::string PercentText(Double tenths) {
    return Format(tenths / 10, "##0.0") + "%";
}

std::string GainText(const Improvement& improvement) {
    if (IsShorter(improvement.Length, improvement.StartLength)) {
        const Double share =
            (improvement.StartLength - improvement.Length) / improvement.StartLength;
        const Double tenths = Int(share * TenthsInWhole);
        return "fills " + (tenths > 0 ? PercentText(tenths) : "less than 0.1%") + " shorter";
    }
    const int joins = improvement.StartPieces - improvement.Pieces;
    if (joins > 0) {
        return TrimStr(joins) + (joins == 1 ? " join fewer" : " joins fewer");
    }
    return "larger free end";
}

} // namespace

std::string LeastPossibleText(Double length, Double bound) {
    if (!IsShorter(bound, length)) {
        return "the least possible";
    }
    const Double tenths = -Int(-(length - bound) / bound * TenthsInWhole);
    return "at most " + PercentText(tenths) + " above the least possible";
}

std::string GapText(const ImproveProgress& progress) {
    if (progress.StartBelowRules) {
        return NoneAsShort;
    }
    return progress.Bound > 0 ? LeastPossibleText(progress.Best, progress.Bound) : "";
}

std::string KeptText(const ImproveResult& result, const EstimateRequest& request) {
    if (!result.Kept) {
        return "";
    }
    const std::string unit = request.In == Units::Metric ? " cm" : "";
    return LengthText(static_cast<Double>(LengthInUse(result.Kept->Layout)), request.In) + unit +
           " with parts of at least " +
           std::string(MinCutCaption(request.ShortestPart, request.In));
}

std::string NothingBetterReason(const ImproveResult& result) {
    if (result.StartBelowRules) {
        return NoneAsShort;
    }
    return result.Bound > 0 ? "this one is " + LeastPossibleText(static_cast<Double>(result.Length),
                                                                 result.Bound)
                            : "";
}

std::string ImprovementText(const Improvement& improvement) {
    return "Improved: " + GainText(improvement) + ", " +
           LeastPossibleText(improvement.Length, improvement.Bound);
}

} // namespace tarn
