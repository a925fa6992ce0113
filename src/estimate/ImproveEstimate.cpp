#include "estimate/ImproveEstimate.h"

#include <algorithm>

namespace tarn {

ImproveResult ImproveEstimate(const SharedState& state, EngineArrays& engine,
                              CarpetEstimate& estimate, const ImproveLimits& limits,
                              ImproveObserver& observer) {
    ImproveResult result = ImproveEngine(state, engine, limits, observer);
    if (!result.Improved && !estimate.Improved) {
        return result;
    }
    if (!estimate.Improved) {
        estimate.Improved =
            Improvement{static_cast<Double>(result.StartLength), 0, 0, result.StartPieces, 0};
    }
    Improvement& record = *estimate.Improved;
    record.Length = static_cast<Double>(result.Length);
    record.Pieces = result.Pieces;
    record.Bound = std::min(std::max(record.Bound, result.Bound), record.Length);
    result.Bound = record.Bound;
    return result;
}

} // namespace tarn
