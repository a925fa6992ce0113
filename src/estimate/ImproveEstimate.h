#pragma once

#include "app/SharedState.h"
#include "engine/EngineArrays.h"
#include "engine/improve/ImproveEngine.h"
#include "estimate/CarpetEstimate.h"

namespace tarn {

/// Improve the layout of an estimate that is done (see ImproveEngine) and keep the record of it in
/// the estimate: what was gained counts from the layout that the estimate began with, over several
/// improvements, and the best bound of all is kept and handed back. Raises as ImproveEngine; the
/// estimate is then as it was.
ImproveResult ImproveEstimate(const SharedState& state, EngineArrays& engine,
                              CarpetEstimate& estimate, const ImproveLimits& limits,
                              ImproveObserver& observer);

} // namespace tarn
