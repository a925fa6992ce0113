#include "estimate/Improvement.h"

#include "base/Format.h"
#include "base/Lengths.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "base/Words.h"
#include "engine/ResultLength.h"
#include "estimate/MinCuts.h"

namespace tarn {

namespace {

constexpr Double TenthsInWhole = 1000; ///< of a percent
constexpr auto NoneAsShort = Words("none whose parts keep the minimum cut is as short");

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
        return tenths > 0 ? Words("fills %1 shorter", PercentText(tenths))
                          : std::string(Words("fills less than 0.1% shorter"));
    }
    const int joins = improvement.StartPieces - improvement.Pieces;
    if (joins > 0) {
        return CountedWords("%n join fewer", "%n joins fewer", joins);
    }
    return Words("larger free end");
}

} // namespace

std::string LeastPossibleText(Double length, Double bound) {
    if (!IsShorter(bound, length)) {
        return Words("the least possible");
    }
    const Double tenths = -Int(-(length - bound) / bound * TenthsInWhole);
    return Words("at most %1 above the least possible", PercentText(tenths));
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
    const std::string length =
        LengthText(static_cast<Double>(LengthInUse(result.Kept->Layout)), request.In);
    return Words("%1 with parts of at least %2",
                 request.In == Units::Metric ? Words("%1 cm", length) : length,
                 MinCutCaption(request.ShortestPart, request.In));
}

std::string NothingBetterReason(const ImproveResult& result) {
    if (result.StartBelowRules) {
        return NoneAsShort;
    }
    return result.Bound > 0
               ? Words("this one is %1",
                       LeastPossibleText(static_cast<Double>(result.Length), result.Bound))
               : "";
}

std::string ImprovementText(const Improvement& improvement) {
    return Words("Improved: %1, %2", GainText(improvement),
                 LeastPossibleText(improvement.Length, improvement.Bound));
}

} // namespace tarn
