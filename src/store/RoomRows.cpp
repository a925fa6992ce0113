#include "store/RoomRows.h"

#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "base/Words.h"
#include "project/Coverings.h"
#include "project/WallBase.h"
#include "store/Schema.h"
#include "store/Tables.h"

#include <cmath>
#include <set>

namespace tarn {

namespace {

std::optional<std::size_t> SlotOf(Double objNum) {
    constexpr Double LargestInteger = 32767;
    if (std::abs(objNum) > LargestInteger) {
        return std::nullopt;
    }
    const auto slot = static_cast<std::size_t>(CInt(objNum)); // a negative one is beyond all
    return slot < RoomCapacity ? std::optional(slot) : std::nullopt;
}

RoomRow ReadRoomRow(const StoredRow& stored) {
    const auto has = [&stored](const char* field) { return stored.NumberIn(field).has_value(); };
    RoomRow row;
    row.HasNumber = has("ObjNum");
    row.HasSize = has("RoomW") && has("RoomL");
    row.HasCovering = has("CTType");
    row.HasBase = has("BaseSty");
    row.Slot = SlotOf(stored.NumberIn("ObjNum").value_or(0));
    row.ObjNumText = stored.TextIn("ObjNum");
    row.Content.Width = stored.IntegerIn("RoomW");
    row.Content.Length = stored.IntegerIn("RoomL");
    row.Content.Covering = stored.ByteIn("CTType");
    row.Content.Base = stored.ByteIn("BaseSty");
    row.Content.Number = stored.TextIn("RoomNoStr");
    row.Content.Remark = stored.TextIn("RoomRemark");
    return row;
}

/// Rooms by their slots, in ascending order.
using Slots = std::set<std::size_t>;

/// "room 2", "rooms 2, 3", "rooms 2, 4 to 6": counted from 1.
std::string RoomList(const Slots& slots) {
    std::string list;
    for (auto slot = slots.begin(); slot != slots.end();) {
        const std::size_t first = *slot;
        std::size_t last = first;
        while (++slot != slots.end() && *slot == last + 1) {
            last = *slot;
        }
        const std::string begin = std::to_string(first + 1);
        const std::string end = std::to_string(last + 1);
        list += list.empty() ? "" : ", ";
        if (last > first + 1) {
            list += Words("%1 to %2", begin, end);
        } else {
            list += begin;
            list += last == first ? "" : ", " + end;
        }
    }
    return Words(slots.size() == 1 ? Words("room %1") : Words("rooms %1"), list);
}

/// "the project A", "the projects A, B".
std::string ProjectList(const std::vector<std::string>& projects) {
    std::string list;
    for (const std::string& project : projects) {
        list += (list.empty() ? "" : ", ") + project;
    }
    return Words(projects.size() == 1 ? Words("the project %1") : Words("the projects %1"), list);
}

/// The slots of the rows for which `holds` is true.
template <typename Condition>
Slots SlotsWhere(const std::vector<RoomRow>& rows, Condition holds) {
    Slots slots;
    for (const RoomRow& row : rows) {
        if (row.Slot && holds(row)) {
            slots.insert(*row.Slot);
        }
    }
    return slots;
}

Slots MissingSlots(const std::vector<RoomRow>& rows, std::size_t count) {
    Slots missing;
    for (std::size_t slot = 0; slot < count; ++slot) {
        missing.insert(slot);
    }
    for (const RoomRow& row : rows) {
        if (row.Slot) {
            missing.erase(*row.Slot);
        }
    }
    return missing;
}

Slots RepeatedSlots(const std::vector<RoomRow>& rows) {
    Slots seen;
    return SlotsWhere(rows, [&seen](const RoomRow& row) { return !seen.insert(*row.Slot).second; });
}

/// The numbers of the rows that no room can have; of many the first, and how many more there are.
std::string NumbersOutside(const std::vector<RoomRow>& rows) {
    constexpr std::size_t MostListed = 20;
    std::string numbers;
    std::size_t count = 0;
    for (const RoomRow& row : rows) {
        if (!row.Slot && ++count <= MostListed) {
            numbers += (numbers.empty() ? "" : ", ") + row.ObjNumText;
        }
    }
    return count > MostListed ? Words("%1 and %2 more", numbers, std::to_string(count - MostListed))
                              : numbers;
}

} // namespace

std::vector<RoomRow> ReadRoomRows(const std::vector<StoredRow>& stored) {
    std::vector<RoomRow> rows;
    rows.reserve(stored.size());
    for (const StoredRow& row : stored) {
        try {
            rows.push_back(ReadRoomRow(row));
        } catch (const RunTimeError& error) {
            throw error.WithAdvice(
                Words("A number stored in the room row with ObjNum %1 is too large.",
                      row.TextIn("ObjNum")));
        }
    }
    return rows;
}

std::vector<Room> RoomsOf(const std::vector<RoomRow>& rows, std::size_t count) {
    std::vector<Room> rooms(count);
    for (const RoomRow& row : rows) {
        if (row.Slot && *row.Slot < count) {
            rooms[*row.Slot] = row.Content;
        }
    }
    return rooms;
}

void StoreRoomRows(Connection& connection, Integer sheet, const std::vector<Room>& rooms) {
    Table table(connection, InputData);
    table.DeleteWhere("TabIndex", sheet);
    int number = 0;
    for (const Room& room : rooms) {
        table.Add({{"ObjNum", number++},
                   {"RoomW", room.Width},
                   {"RoomL", room.Length},
                   {"RoomNoStr", TextValue(room.Number)},
                   {"RoomRemark", TextValue(room.Remark)},
                   {"CTType", room.Covering},
                   {"BaseSty", room.Base},
                   {"TabIndex", sheet}});
    }
}

std::vector<std::string> RoomFindings(const std::vector<RoomRow>& rows, std::size_t count,
                                      const std::vector<std::string>& sharing) {
    std::vector<std::string> lines;
    const auto add = [&lines](const std::string& kind, const Slots& slots) {
        if (!slots.empty()) {
            lines.push_back(kind + ": " + RoomList(slots) + ".");
        }
    };
    const auto addWhere = [&](const std::string& kind, auto holds) {
        add(kind, SlotsWhere(rows, holds));
    };

    if (!sharing.empty()) {
        addWhere(
            Words("Stored under one number with %1, whose rooms they may be", ProjectList(sharing)),
            [](const RoomRow&) { return true; });
    }
    add(Words("Missing, read as empty"), MissingSlots(rows, count));
    addWhere(Words("Beyond the end of the project, dropped by SAVE"),
             [count](const RoomRow& row) { return *row.Slot >= count; });
    add(Words("Stored more than once, the last row is used"), RepeatedSlots(rows));
    if (const std::string numbers = NumbersOutside(rows); !numbers.empty()) {
        lines.push_back(Words("Outside rooms 1 to %1, left out and dropped by SAVE: ObjNum %2.",
                              std::to_string(RoomCapacity), numbers));
    }
    addWhere(Words("Without a room number, read as"),
             [](const RoomRow& row) { return !row.HasNumber; });
    addWhere(Words("Without a width or a length, read as 0"),
             [](const RoomRow& row) { return !row.HasSize; });
    addWhere(Words("Without a covering, read as %1", CoveringCaption(0)),
             [](const RoomRow& row) { return !row.HasCovering; });
    addWhere(Words("With an unknown covering, not estimated until one is chosen"),
             [](const RoomRow& row) { return row.Content.Covering > LastTileCode; });
    addWhere(Words("Without a wall base, read as none"),
             [](const RoomRow& row) { return !row.HasBase; });
    addWhere(Words("With an unknown wall base, shown as none"), [](const RoomRow& row) {
        return row.Content.Base != 0 && BaseText(row.Content.Base).empty();
    });
    return lines;
}

} // namespace tarn
