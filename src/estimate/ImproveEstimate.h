#pragma once

#include "estimate/Estimate.h"
#include "improve/ImproveFills.h"

#include <string>

namespace tarn {

/// An estimate after an improving search, and how that went.
struct ImprovedEstimate {
    Estimate Value;
    ImproveResult Result;
};

/// Look for a better layout of an estimate's fills (see ImproveFills), in parts no shorter than the
/// request's minimum cut. The estimate that is handed back holds the best layout and the record of
/// it: what was gained counts from the layout that the estimate began with, over several
/// improvements, and the best bound of all is kept and handed back. It equals the one given when
/// nothing better was ever found. Raises as ImproveFills.
ImprovedEstimate ImproveEstimate(const Estimate& estimate, const ImproveLimits& limits,
                                 ImproveObserver& observer);

/// By how much less roll the better of two estimates of one request takes, as their totals are
/// listed: 8'3" shorter. Empty when the list shows no difference.
std::string ShorterText(const Estimate& estimate, const Estimate& better);

/// The estimate with the layout that the search kept beside it: of those found whose parts keep the
/// minimum cut the best, longer than the estimate's own. `result` has one.
Estimate KeepingMinCut(const Estimate& estimate, const ImproveResult& result);

} // namespace tarn
