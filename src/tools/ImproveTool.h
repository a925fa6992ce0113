#pragma once

#include "app/SharedState.h"
#include "engine/EngineArrays.h"
#include "estimate/CarpetEstimate.h"
#include "tools/EstimateOptions.h"

namespace tarn {

/// Improve the estimate as the options ask. On a terminal, standard error shows how far it is; an
/// interrupt (Ctrl+C) ends it and keeps the best layout so far. Says so when nothing better was
/// found.
void ImproveFor(const EstimateOptions& options, const SharedState& state, EngineArrays& engine,
                CarpetEstimate& estimate);

} // namespace tarn
