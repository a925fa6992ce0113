// The rows of InputData: the rooms of a sheet, and what is odd about those that are stored.

#pragma once

#include "project/Room.h"
#include "store/Tables.h"

#include <optional>
#include <string>
#include <vector>

namespace tarn {

/// A stored room as it was read: a null text is empty, a null number 0.
struct RoomRow {
    std::optional<std::size_t> Slot; ///< the room's place; nothing for an ObjNum outside 0 .. 500
    std::string ObjNumText;          ///< the row's ObjNum as it stands
    Room Content;
    bool HasNumber = false;   ///< ObjNum was no null
    bool HasSize = false;     ///< neither width nor length was null
    bool HasCovering = false; ///< the covering was no null
    bool HasBase = false;     ///< the wall base was no null
};

/// The rooms that stand in rows of InputData, in their order. Raises DatabaseError for a field that
/// is missing and a text where a number belongs, and "Overflow", naming the room, for a number that
/// does not fit.
std::vector<RoomRow> ReadRoomRows(const std::vector<StoredRow>& stored);

/// The first `count` rooms by their places: one without a row is empty, of several rows the last
/// counts, rows of other places are left out.
std::vector<Room> RoomsOf(const std::vector<RoomRow>& rows, std::size_t count);

/// Replace the stored rooms of a sheet. Raises DatabaseError.
void StoreRoomRows(Connection& connection, Integer sheet, const std::vector<Room>& rooms);

/// What is odd about the rows of a project of `count` rooms: rooms without a row, rows beyond the
/// project, several rows for one room, nulls in numbers, unknown coverings and wall bases. One line
/// for each kind, with the rooms counted from 1: "Missing, read as empty: rooms 2, 4 to 6."
/// `sharing` names the other projects under the same sheet number: a row does not tell whose it is.
std::vector<std::string> RoomFindings(const std::vector<RoomRow>& rows, std::size_t count,
                                      const std::vector<std::string>& sharing);

} // namespace tarn
