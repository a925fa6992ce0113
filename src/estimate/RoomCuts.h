// Rooms cut across the roll: into whole-width cuts, and strips (fills) for what is left over.

#pragma once

#include "engine/Piece.h"
#include "estimate/EstimateRequest.h"
#include "project/Project.h"

#include <vector>

namespace tarn {

/// A whole-width cut of a room: as wide as the roll and as long as the room. In coordinate units of
/// the room.
struct Cut {
    Single X1 = 0;
    Single X2 = 0;
    Single Y1 = 0;
    Single Y2 = 0;
    Integer Room = 0; ///< of which it is: its place in the project, from 0

    bool operator==(const Cut&) const = default;
};

/// The rooms of a carpet cut across the roll, before any fill has its place.
struct RoomCuts {
    std::vector<Cut> Cuts;
    std::vector<Piece> Fills; ///< the leftover strips, numbered in their order

    bool operator==(const RoomCuts&) const = default;
};

/// Most cuts of an estimate.
inline constexpr std::size_t MaxCuts = 3001;

/// Cut every room of the request's carpet into whole-width cuts, and the leftover strips into
/// fills: along X in down lay, along Y in cross lay. Rooms without an area are not cut. A width
/// within half a coordinate unit of a multiple of the roll is that multiple: it leaves no sliver
/// and loses no cut.
///
/// Raises "Subscript out of range" past MaxCuts cuts, and so for a roll width of 0 or less when
/// there is a room to cut; "Overflow" when an extent is not finite, "Division by zero" for a scale
/// of 0.
RoomCuts CutAcrossRoll(const Project& project, const EstimateRequest& request);

} // namespace tarn
