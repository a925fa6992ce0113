// How an improvement of the layout is recorded and worded.

#pragma once

#include "base/Types.h"
#include "estimate/EstimateRequest.h"
#include "improve/ImproveFills.h"

#include <string>

namespace tarn {

/// The record of an improved layout, which keeps the improving search's rules: lengths of the fills
/// along the roll, inches.
struct Improvement {
    Double StartLength = 0; ///< of the layout that the search before gave
    Double Length = 0;
    Double Bound = 0; ///< no layout is shorter
    Integer StartPieces = 0;
    Integer Pieces = 0; ///< parts in all: one more is one join more

    bool operator==(const Improvement&) const = default;
};

/// The line by which the cut list says that its layout was improved, for example
/// `Improved: fills 3.2% shorter, at most 1.8% above the least possible`. What was gained is
/// rounded down, what may be left is rounded up, so that neither promises too much.
std::string ImprovementText(const Improvement& improvement);

/// What may be left: by how many percent a layout of `length` may be above the least possible, as
/// the line above says it: "the least possible" or "at most 1.8% above the least possible".
std::string LeastPossibleText(Double length, Double bound);

/// What may be left, while a search goes on: LeastPossibleText, or, when only layouts whose parts
/// are too short are as short as the start, that. Empty while nothing is known.
std::string GapText(const ImproveProgress& progress);

/// What an estimate that keeps the minimum cut takes, where the estimate's own does not: `12'4"
/// with parts of at least 3 FT`. Empty when the search found none beside it.
std::string KeptText(const ImproveResult& result, const EstimateRequest& request);

/// The same of a search that found nothing better: "this one is the least possible", "none whose
/// parts keep the minimum cut is as short". Empty when nothing is known.
std::string NothingBetterReason(const ImproveResult& result);

} // namespace tarn
