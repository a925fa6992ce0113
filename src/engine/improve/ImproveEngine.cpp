#include "engine/improve/ImproveEngine.h"

#include "app/Lengths.h"
#include "engine/Placement.h"
#include "engine/improve/Improver.h"
#include "engine/improve/RollJob.h"

#include <algorithm>
#include <utility>

namespace tarn {

namespace {

/// Take the run's best layout over, on a copy, so that a fault leaves the arrays as they were.
/// False, with the arrays as they were, when more would have to be ordered: an equal length can lie
/// just above whole inches where the start lies just below them. Nor is one taken that is no better
/// than `start` once it is finished, pushed to the left.
bool TakeBest(const RollJob& roll, const ImproveRun& run, const LayoutMerit& start,
              EngineArrays& engine, Double dimScale) {
    EngineArrays improved = engine;
    TakeLayout(roll, run.BestParts(), improved, dimScale);
    if (!IsWithinTolerance(GetPCLen(improved) - GetPCLen(engine))) {
        RaiseInternal("The improved layout is longer than before and was discarded.");
    }
    if (improved.ResultLen > engine.ResultLen || !LayoutMeritOf(roll, improved).BetterThan(start)) {
        return false;
    }
    engine = std::move(improved);
    return true;
}

} // namespace

ImproveResult ImproveEngine(const SharedState& state, EngineArrays& engine,
                            const ImproveLimits& limits, ImproveObserver& observer) {
    ImproveResult result;
    result.StartLength = GetPCLen(engine);
    result.Length = result.StartLength;
    result.StartPieces = engine.PieceCount;
    result.Pieces = engine.PieceCount;
    const RollJob roll = RollJobOf(state, engine);
    if (!roll.Possible || engine.PosCount == 0) {
        return result;
    }
    const auto startLength = static_cast<Double>(result.StartLength);
    const LayoutMerit start = LayoutMeritOf(roll, engine);
    const auto inches = [&](Long units) { return std::min(startLength, units * roll.AlongUnit); };
    const auto isBelow = [&](Long bound) {
        return startLength <= bound * roll.AlongUnit - LengthTolerance;
    };
    ImproveRun run(roll.Job, start, limits, [&](Long best, Long bound) {
        const Double length = best < start.Length ? inches(best) : startLength;
        return observer.Progress({length, std::min(length, inches(bound)), isBelow(bound)});
    });
    Improve(run, limits.Seed);
    if (!run.BestParts().empty() && TakeBest(roll, run, start, engine, state.DimScale)) {
        result.Improved = true;
        result.Length = GetPCLen(engine);
        result.Pieces = engine.PieceCount;
    }
    result.Bound = std::min(static_cast<Double>(result.Length), run.Bound() * roll.AlongUnit);
    result.StartBelowRules = isBelow(run.RulesBound());
    result.Steps = run.Steps();
    return result;
}

} // namespace tarn
