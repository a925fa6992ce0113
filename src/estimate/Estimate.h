// What an estimate is. How one is made: MakeEstimate.h.

#pragma once

#include "engine/Search.h"
#include "estimate/EstimateRequest.h"
#include "estimate/Improvement.h"
#include "estimate/RoomCuts.h"

#include <optional>
#include <string>
#include <vector>

namespace tarn {

/// The floor of all rooms with one tile.
struct TileFloor {
    Byte Covering = 0;    ///< see Coverings.h
    Single Area = 0;      ///< square inches
    Single Perimeter = 0; ///< inches

    bool operator==(const TileFloor&) const = default;
};

/// How one carpet of a project is cut from a roll: all that is drawn, listed, totalled, printed and
/// exported of it. Made by MakeEstimate, whole or not at all.
struct Estimate {
    std::string ProjectName;
    EstimateRequest Request;
    std::vector<Cut> Cuts;
    SearchJob Job;                       ///< the fills as they were cut, and how they were searched
    SearchResult Fills;                  ///< where they lie; empty without a fill
    Single Base = 0;                     ///< wall base of all rooms, in the rooms' small unit
    std::vector<TileFloor> Tiles;        ///< of the tiles that have rooms, in ascending order
    std::optional<Improvement> Improved; ///< set when the layout is an improved one

    bool operator==(const Estimate&) const = default;
};

/// Whether nothing of the carpet is cut: no room of it has an area.
inline bool HasNothingToCut(const Estimate& estimate) {
    return estimate.Cuts.empty() && estimate.Job.Pieces.empty();
}

} // namespace tarn
