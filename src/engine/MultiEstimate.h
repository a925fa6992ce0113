#pragma once

#include "app/SharedState.h"
#include "engine/EngineArrays.h"
#include "engine/SearchObserver.h"

namespace tarn {

/// How a search came to its end.
enum class SearchOutcome {
    Done,   ///< the arrays hold the chosen layout
    Stopped ///< the observer stopped it; the arrays hold no layout and must be emptied
};

/// Search for the shortest layout of the pieces of one carpet.
///
/// On entry: the pieces with PieceCount and OrgCount, RollWidth (inches), LayDir, FillFlag in
/// `engine`; EstOption, MinCutLen, MetricFlag, DimScale in `state`. On return (Done) the layout is
/// in PosX .. PosL and PosCount, the pieces are in creation order and in the caller's orientation,
/// and BestLen, BestMode, BestCase, CaseCount and ResultLen are set.
///
/// Raises "Subscript out of range" for an option beyond the minimum cuts or more than MaxPiece
/// pieces, "Division by zero" for a minimum cut of 0, "Overflow" when a size or the length does not
/// fit, "Internal error" when the layout fails its own check. After an error the arrays hold no
/// layout and must be emptied.
SearchOutcome MultiEstimate(const SharedState& state, EngineArrays& engine,
                            SearchObserver& observer);

} // namespace tarn
