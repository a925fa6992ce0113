#include "improve/ImproveFills.h"

#include "base/Lengths.h"
#include "base/RunTimeError.h"
#include "engine/ResultLength.h"
#include "improve/ImproveThreads.h"
#include "improve/RollJob.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace tarn {

namespace {

/// The best layout of a search, when it is to be taken. Nothing when there is none; when more would
/// have to be ordered: an equal length can lie just above whole inches where the start lies just
/// below them; or when it is no better than the start, of merit `merit`, once it is finished,
/// pushed to the left.
std::optional<SearchResult> BestOf(const ImproveOutcome& outcome, const RollJob& roll,
                                   const SearchJob& job, const SearchResult& start,
                                   const LayoutMerit& merit) {
    if (outcome.Parts.empty()) {
        return std::nullopt;
    }
    SearchResult improved = ResultOf(roll, outcome.Parts, job, start);
    if (!IsWithinTolerance(LengthInUse(improved.Layout) - LengthInUse(start.Layout))) {
        RaiseInternal("The improved layout is longer than before and was discarded.");
    }
    if (improved.Length > start.Length || !LayoutMeritOf(roll, improved.Layout).BetterThan(merit)) {
        return std::nullopt;
    }
    return improved;
}

} // namespace

ImproveResult ImproveFills(const SearchJob& job, const SearchResult& start,
                           const ImproveRules& rules, const ImproveLimits& limits,
                           ImproveObserver& observer) {
    ImproveResult result;
    result.Fills = start;
    result.StartLength = LengthInUse(start.Layout);
    result.Length = result.StartLength;
    result.StartPieces = static_cast<Integer>(start.Layout.size());
    result.Pieces = result.StartPieces;
    if (start.Layout.empty()) {
        return result;
    }
    const RollJob roll = RollJobOf(job, rules);
    if (!roll.Possible) {
        return result;
    }
    const auto startLength = static_cast<Double>(result.StartLength);
    const LayoutMerit merit = LayoutMeritOf(roll, start.Layout);
    const auto inches = [&](Long units) { return std::min(startLength, units * roll.AlongUnit); };
    const auto isBelow = [&](Long bound) {
        return startLength <= bound * roll.AlongUnit - LengthTolerance;
    };
    const auto report = [&](Long best, Long bound) {
        const Double length = best < merit.Length ? inches(best) : startLength;
        return observer.Progress({length, std::min(length, inches(bound)), isBelow(bound)});
    };
    const ImproveOutcome outcome = ImproveOnThreads(roll.Job, merit, limits, report);
    if (auto improved = BestOf(outcome, roll, job, start, merit)) {
        result.Improved = true;
        result.Fills = *std::move(improved);
        result.Length = LengthInUse(result.Fills.Layout);
        result.Pieces = static_cast<Integer>(result.Fills.Layout.size());
    }
    result.Bound = std::min(static_cast<Double>(result.Length), outcome.Bound() * roll.AlongUnit);
    result.StartBelowRules = isBelow(outcome.RulesBound);
    result.Steps = outcome.Steps;
    return result;
}

} // namespace tarn
