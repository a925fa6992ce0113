// The improving search on a searched job: from its layout to a better one, with a proven bound.

#pragma once

#include "base/Units.h"
#include "engine/Search.h"
#include "improve/ImproveRun.h"

#include <cstdint>
#include <optional>

namespace tarn {

/// The rules that an improving search keeps beside those of the job (whose minimum cut it does not
/// look at).
struct ImproveRules {
    Units In = Units::Imperial; ///< parts are whole inches or whole centimetres long
    Double ShortestPart = 0;    ///< of a divided piece, inches
};

/// How far an improving search is. Lengths are inches.
struct ImproveProgress {
    Double Best = 0;  ///< length of the best layout so far
    Double Bound = 0; ///< no layout is shorter; 0 while that is not known
    /// The start is shorter than any layout that keeps the improving search's rules (it may have
    /// shorter parts): nothing better will be found, and whether it is the least is not known.
    bool StartBelowRules = false;
};

/// What an improving search tells its caller while it runs. The default does nothing and never
/// stops.
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
    bool Improved = false; ///< Fills is a better layout than the start
    SearchResult Fills;    ///< the start when not
    /// When the start is better, but does not keep the rules: the best layout found that does.
    std::optional<SearchResult> Kept;
    Single StartLength = 0;
    Single Length = 0;            ///< of Fills, inches
    Double Bound = 0;             ///< no layout is shorter, inches; 0 = not known
    bool StartBelowRules = false; ///< see ImproveProgress; the bound then proves nothing
    Integer StartPieces = 0;
    Integer Pieces = 0; ///< parts in all
    std::int64_t Steps = 0;
};

/// Improve the layout that Search, or an earlier improvement, found for the job: a shorter one, or
/// an equally long one with fewer joins, or with a larger undivided free end. Of the record of the
/// search the cases and the power stay. Without a piece, or with one that is too wide for the roll,
/// nothing is tried.
///
/// Raises what the observer raises, and "Internal error" when the improved layout fails its check.
ImproveResult ImproveFills(const SearchJob& job, const SearchResult& start,
                           const ImproveRules& rules, const ImproveLimits& limits,
                           ImproveObserver& observer);

} // namespace tarn
