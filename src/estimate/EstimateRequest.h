// What is asked for when an estimate is made.

#pragma once

#include "base/Lay.h"
#include "base/Types.h"
#include "base/Units.h"
#include "estimate/PatternRepeat.h"

#include <optional>

namespace tarn {

/// The minimum cut lengths that are offered, longest first; see MinCuts.h for what they mean.
enum class MinCut { ThreeFeet, FootAndAHalf, HalfFoot };

/// Most pieces that a fill may be cut into.
inline constexpr Integer MostPiecesPerFill = 6;

/// What is chosen for one estimate.
struct EstimateRequest {
    Byte Carpet = 0;      ///< covering code 0 .. 7
    Single RollWidth = 0; ///< inches
    Lay Direction = Lay::Down;
    Units In = Units::Imperial; ///< the units in which the rooms' sizes are read and all is shown
    std::optional<PatternRepeat> Repeat;
    MinCut ShortestPart = MinCut::ThreeFeet;
    Integer PiecesPerFill = 1; ///< 1 .. MostPiecesPerFill

    bool operator==(const EstimateRequest&) const = default;
};

} // namespace tarn
