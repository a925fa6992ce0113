#include "improve/ImproveFills.h"

#include "base/Lengths.h"
#include "base/RunTimeError.h"
#include "base/Words.h"
#include "engine/ResultLength.h"
#include "improve/ImproveThreads.h"
#include "improve/RollJob.h"

#include <algorithm>
#include <utility>

namespace tarn {

namespace {

/// The merit of no layout: every layout of the job is better.
LayoutMerit NoMerit(const ImproveJob& job) {
    return {static_cast<Long>(StackedLength(job)) + 1, job.MostPieces, 0};
}

/// Take a search's best layout as improved, when it is to be taken: not when more would have to be
/// ordered (an equal length can lie just above whole inches where the start lies just below them)
/// or when it is no better than the start, of merit `merit`, once it is finished, pushed to the
/// left. What then does not improve a start that breaks the rules is kept beside it.
void TakeBest(const ImproveOutcome& outcome, const RollJob& roll, const SearchJob& job,
              const LayoutMerit& merit, bool startKeepsRules, ImproveResult& result) {
    if (outcome.Parts.empty()) {
        return;
    }
    const SearchResult& start = result.Fills;
    SearchResult best = ResultOf(roll, outcome.Parts, job, start);
    if (best.Length <= start.Length && LayoutMeritOf(roll, best.Layout).BetterThan(merit)) {
        if (!IsWithinTolerance(LengthInUse(best.Layout) - LengthInUse(start.Layout))) {
            RaiseInternal(Words("The improved layout is longer than before and was discarded."));
        }
        result.Improved = true;
        result.Fills = std::move(best);
        result.Length = LengthInUse(result.Fills.Layout);
        result.Pieces = static_cast<Integer>(result.Fills.Layout.size());
    } else if (!startKeepsRules) {
        result.Kept = std::move(best);
    }
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
    // A start that breaks the rules says nothing of the layouts that keep them.
    const bool keeps = KeepsRules(roll, start.Layout, job, rules);
    const ImproveOutcome outcome =
        ImproveOnThreads(roll.Job, keeps ? merit : NoMerit(roll.Job), limits, report);
    TakeBest(outcome, roll, job, merit, keeps, result);
    result.Bound = std::min(static_cast<Double>(result.Length), outcome.Bound() * roll.AlongUnit);
    result.StartBelowRules = isBelow(outcome.RulesBound);
    result.Steps = outcome.Steps;
    return result;
}

} // namespace tarn
