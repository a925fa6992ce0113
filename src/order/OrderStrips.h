// The rooms of one carpet as strips on the roll: how wide and long each is cut, and whether the
// strips of a room can match.

#pragma once

#include "base/Words.h"
#include "project/OrderRequest.h"
#include "project/Project.h"

#include <string>
#include <vector>

namespace tarn {

/// One strip of a room, all of it in whole units.
struct OrderStrip {
    Long Room;      ///< place of the room in the project, from 0
    Long Number;    ///< in its room, from 0: the drops first, then the fill
    Long Count;     ///< strips of the room
    Long Begin;     ///< left edge in the room
    Long Width;     ///< as it is cut, with its trim
    Long Length;    ///< as Width
    Long NetWidth;  ///< without trim
    Long NetLength; ///< without trim
    bool MayDivide; ///< along the roll
};

/// Most strips of a row.
inline constexpr std::size_t MostStrips = 6001;

/// What a row of the comparison cuts, or why it cannot.
struct OrderStrips {
    Saying Refused; ///< a sentence; empty when all rooms can be cut
    std::vector<OrderStrip> Strips;
};

/// Cut the rooms of a carpet for a roll of that usable width. Rooms without an area are left out.
/// The request must be without a fault.
OrderStrips StripsOf(const Project& project, Byte carpet, const OrderRequest& request, Long usable,
                     Lay lay);

/// The usable width of a roll: what its selvage leaves, 0 or less for nothing.
Long UsableWidth(const RollChoice& roll, const OrderRequest& request);

/// A room as a message names it: "room 3 (KITCHEN)", with its number or else its remark.
std::string RoomText(const Project& project, Long room);

} // namespace tarn
