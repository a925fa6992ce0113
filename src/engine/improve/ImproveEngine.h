#pragma once

#include "app/SharedState.h"
#include "engine/EngineArrays.h"
#include "engine/improve/ImproveRun.h"

#include <cstdint>

namespace tarn {

/// How far an improving search is. Lengths are inches.
struct ImproveProgress {
    Double Best = 0;  ///< length of the best layout so far
    Double Bound = 0; ///< no layout is shorter; 0 while that is not known
    /// The start is shorter than any layout that keeps the improving search's rules (it may have
    /// shorter parts): nothing better will be found, and whether it is the least is not known.
    bool StartBelowRules = false;
};

/// What an improving search tells its caller while it runs. The default does nothing and never
/// stops. What it calls may read the engine's arrays, which hold the layout from before until the
/// search has ended, but not change them.
class ImproveObserver {
  public:
    virtual ~ImproveObserver() = default;

    /// Called after every 16 layouts that were tried, or after 20 ms, and whenever the best or the
    /// bound changes: many times a second, for a house's fills thousands of times. False stops the
    /// search; the best layout so far is taken all the same.
    virtual bool Progress([[maybe_unused]] const ImproveProgress& progress) { return true; }
};

/// How an improving search ended.
struct ImproveResult {
    bool Improved = false; ///< the arrays hold a better layout than before
    Single StartLength = 0;
    Single Length = 0;            ///< of the layout in the arrays now, inches
    Double Bound = 0;             ///< no layout is shorter, inches; 0 = not known
    bool StartBelowRules = false; ///< see ImproveProgress; the bound then proves nothing
    Integer StartPieces = 0;
    Integer Pieces = 0; ///< parts in all
    std::int64_t Steps = 0;
};

/// Improve the layout that MultiEstimate, or an earlier improvement, left in the arrays: a shorter
/// one, or an equally long one with fewer joins, or with a larger undivided free end. Nothing else
/// changes when none is found. Without a piece, or with one that is too wide for the roll, nothing
/// is tried.
///
/// On an error, also one that the observer raises, the arrays are as they were. Raises what the
/// observer raises, and "Internal error" when the improved layout fails its check.
ImproveResult ImproveEngine(const SharedState& state, EngineArrays& engine,
                            const ImproveLimits& limits, ImproveObserver& observer);

} // namespace tarn
