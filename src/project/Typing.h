// What is typed into the fields of the room entry and is no room of the project yet.

#pragma once

#include "base/Units.h"
#include "project/Room.h"
#include "project/RoomDraft.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace tarn {

/// A room of the project for which other texts stand in the fields.
struct ChangedRoom {
    std::size_t Place = 0; ///< counted from 0
    Room Before;           ///< the room as the project has it
    RoomDraft Texts;

    bool operator==(const ChangedRoom&) const = default;
};

/// The texts that were typed and are in no room: of the new room, and of one that the project has.
struct Typing {
    Units In = Units::Imperial; ///< of the sizes
    std::optional<RoomDraft> New;
    std::optional<ChangedRoom> Changed;

    bool IsEmpty() const { return !New && !Changed; }
    bool operator==(const Typing&) const = default;
};

/// Whether nothing is typed. The covering does not count: a new room has one before it is typed.
bool IsBlank(const RoomDraft& fields);

/// The typing with its sizes in other units. Sizes are plain numbers of the small unit, as those of
/// stored rooms: 3 metres 66 are 366, and 30 feet 6. A size that cannot be read stays as typed.
Typing InUnits(Typing typing, Units shown);

/// The typing for a project that has those rooms by now. Texts of a room that is another one now
/// become the new room's, unless it has some of its own.
Typing FittedTo(Typing typing, const std::vector<Room>& rooms);

} // namespace tarn
