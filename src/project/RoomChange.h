// One change of a project's rooms, so that it can be taken back and made again.

#pragma once

#include "project/Room.h"

#include <cstddef>
#include <limits>
#include <string>
#include <vector>

namespace tarn {

/// What a change did to the rooms of a project: from `Place` on those of `Before` stood there, and
/// those of `After` do so since. All other rooms stayed as they were, one behind the other.
struct RoomChange {
    std::size_t Place = 0; ///< counted from 0; the number of rooms for one behind the last
    std::vector<Room> Before;
    std::vector<Room> After;

    /// Whether nothing was changed.
    bool IsNone() const { return Before.empty() && After.empty(); }
    bool operator==(const RoomChange&) const = default;
};

/// For a change that is about no room in particular.
inline constexpr std::size_t AnyRoom = std::numeric_limits<std::size_t>::max();

/// What made `after` of `before`. `about` is the room that was stored or deleted: where rooms are
/// alike nothing else tells which of them it was.
RoomChange ChangeBetween(const std::vector<Room>& before, const std::vector<Room>& after,
                         std::size_t about = AnyRoom);

/// Make the change in rooms that are as they were before it.
void MakeChange(std::vector<Room>& rooms, const RoomChange& change);
/// Take the change back in rooms that are as it left them.
void TakeBackChange(std::vector<Room>& rooms, const RoomChange& change);

/// What was done, for the user: "new room 4", "change room 3", "delete room 3"; "change rooms" for
/// anything else.
std::string NameOf(const RoomChange& change);

} // namespace tarn
