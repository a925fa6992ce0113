#pragma once

#include "engine/SearchObserver.h"
#include "estimate/Estimate.h"
#include "estimate/RoomCuts.h"

namespace tarn {

/// The estimate of one carpet of a project: its rooms cut across the roll, and the fills laid out
/// by a search, if there are any. The observer is told of the search alone. Raises as CutAcrossRoll
/// and Search; SearchStopped when the observer stops it; "Overflow" when the minimum cut or the
/// totals of the tiles do not fit.
Estimate MakeEstimate(const Project& project, const EstimateRequest& request,
                      SearchObserver& observer);

} // namespace tarn
