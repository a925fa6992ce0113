#pragma once

#include "rooms/RoomRecord.h"

#include <optional>
#include <string>
#include <vector>

namespace tarn {

/// A stored room as it was read: a null text is empty, a null number 0.
struct RoomRow {
    std::optional<Integer> Slot; ///< the room's slot; nothing for an ObjNum outside 0 .. 500
    std::string ObjNumText;      ///< the row's ObjNum as it stands
    RoomRecord Room;
    bool HasNumber = false;   ///< ObjNum was no null
    bool HasSize = false;     ///< neither width nor length was null
    bool HasCovering = false; ///< the covering was no null
    bool HasBase = false;     ///< the wall base was no null
};

/// The stored rooms of a sheet by ObjNum. Raises DatabaseError, and "Overflow", naming the room,
/// for a number that does not fit.
std::vector<RoomRow> ReadRoomRows(SharedState& state, Integer tid);

/// What is odd about the rows of a project of `objNum` rooms: rooms without a row, rows beyond the
/// project, several rows for one room, nulls in numbers, unknown coverings and wall bases. One line
/// for each kind, with the rooms counted from 1: "Missing, read as empty: rooms 2, 4 to 6."
/// `sharing` names the other projects under the same sheet number: a row does not tell whose it is.
std::vector<std::string> RoomFindings(const std::vector<RoomRow>& rows, Integer objNum,
                                      const std::vector<std::string>& sharing);

} // namespace tarn
