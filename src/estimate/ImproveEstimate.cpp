#include "estimate/ImproveEstimate.h"

#include "base/Lengths.h"
#include "base/Words.h"
#include "estimate/MinCuts.h"
#include "estimate/Totals.h"

#include <algorithm>

namespace tarn {

namespace {

/// Take over what an improvement found into the record of all of them.
void KeepRecord(Improvement& record, ImproveResult& result) {
    record.Length = static_cast<Double>(result.Length);
    record.Pieces = result.Pieces;
    record.Bound = std::min(std::max(record.Bound, result.Bound), record.Length);
    result.Bound = record.Bound;
}

} // namespace

ImprovedEstimate ImproveEstimate(const Estimate& estimate, const ImproveLimits& limits,
                                 ImproveObserver& observer) {
    const EstimateRequest& request = estimate.Request;
    const ImproveRules rules{request.In, MinCutOfCaption(request.ShortestPart, request.In)};
    ImprovedEstimate improved{estimate,
                              ImproveFills(estimate.Job, estimate.Fills, rules, limits, observer)};
    ImproveResult& result = improved.Result;
    std::optional<Improvement>& record = improved.Value.Improved;
    if (result.Improved) {
        improved.Value.Fills = result.Fills;
        if (!record) {
            record =
                Improvement{static_cast<Double>(result.StartLength), 0, 0, result.StartPieces, 0};
        }
    }
    if (record) {
        KeepRecord(*record, result);
    }
    return improved;
}

std::string ShorterText(const Estimate& estimate, const Estimate& better) {
    const Units units = estimate.Request.In;
    const Long shorter = ListedTotal(TotalRoll(estimate).Length, units) -
                         ListedTotal(TotalRoll(better).Length, units);
    return shorter > 0 ? Words("%1 shorter", WholeLengthText(shorter, units)) : "";
}

Estimate KeepingMinCut(const Estimate& estimate, const ImproveResult& result) {
    Estimate keeping = estimate;
    keeping.Fills = result.Kept.value();
    keeping.Improved.reset();
    return keeping;
}

} // namespace tarn
