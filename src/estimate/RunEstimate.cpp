#include "estimate/RunEstimate.h"

#include "engine/MultiEstimate.h"
#include "estimate/MatchPattern.h"
#include "rooms/RoomExtents.h"

namespace tarn {

ConvertResult CutRooms(SharedState& state, EngineArrays& engine, CarpetEstimate& estimate) {
    EmptyEstimate(state, engine, estimate);
    BuildAllRoomExtents(state);
    return ConvertData(state, engine, estimate, engine.LayDir == 0);
}

ConvertResult RunEstimate(SharedState& state, EngineArrays& engine, CarpetEstimate& estimate,
                          const EstimateRequest& request, SearchObserver& observer) {
    EmptyEstimate(state, engine, estimate);
    engine.LayDir = request.DownLay ? 0 : 1;
    engine.RollWidth = request.RollWidth;
    state.EstOption = request.EstOption;
    estimate.CarpetNo = request.Carpet;
    estimate.MatchFlag = false;
    if (request.Match) {
        SetMatchPattern(estimate, request.Match->Width, request.Match->Length, state.IsMetric());
    }
    try {
        const ConvertResult result = CutRooms(state, engine, estimate);
        if (result == ConvertResult::Fills &&
            MultiEstimate(state, engine, observer) == SearchOutcome::Stopped) {
            EmptyEstimate(state, engine, estimate);
            return ConvertResult::Nothing;
        }
        return result;
    } catch (...) {
        // The observer is the caller's code: it may fail in any way.
        EmptyEstimate(state, engine, estimate);
        throw;
    }
}

} // namespace tarn
