#include "rooms/RoomRows.h"

#include "app/Numbers.h"
#include "app/RunTimeError.h"
#include "app/Text.h"
#include "rooms/Coverings.h"
#include "rooms/WallBase.h"
#include "store/Fields.h"
#include "store/Schema.h"
#include "store/SharedRows.h"
#include "store/Sheets.h"

#include <cmath>
#include <set>

namespace tarn {

namespace {

std::optional<Integer> SlotOf(Double objNum) {
    constexpr Double LargestInteger = 32767;
    if (std::abs(objNum) > LargestInteger) {
        return std::nullopt;
    }
    const Integer slot = CInt(objNum);
    return slot >= 0 && slot <= MaxRoom ? std::optional(slot) : std::nullopt;
}

RoomRow ReadRoomRow(const Recordset& rows) {
    const auto has = [&rows](const char* field) { return NumberIn(rows, field).has_value(); };
    RoomRow row;
    row.HasNumber = has("ObjNum");
    row.HasSize = has("RoomW") && has("RoomL");
    row.HasCovering = has("CTType");
    row.HasBase = has("BaseSty");
    row.Slot = SlotOf(NumberIn(rows, "ObjNum").value_or(0));
    row.ObjNumText = TextIn(rows, "ObjNum");
    row.Room.Width = IntegerIn(rows, "RoomW");
    row.Room.Length = IntegerIn(rows, "RoomL");
    row.Room.Covering = ByteIn(rows, "CTType");
    row.Room.Base = ByteIn(rows, "BaseSty");
    row.Room.RoomNo = TextIn(rows, "RoomNoStr");
    row.Room.Remark = TextIn(rows, "RoomRemark");
    return row;
}

/// Rooms by their slots, in ascending order.
using Slots = std::set<Integer>;

/// "room 2", "rooms 2, 3", "rooms 2, 4 to 6": counted from 1.
std::string RoomList(const Slots& slots) {
    std::string list = slots.size() == 1 ? "room " : "rooms ";
    for (auto slot = slots.begin(); slot != slots.end();) {
        const Integer first = *slot;
        Integer last = first;
        while (++slot != slots.end() && *slot == last + 1) {
            last = *slot;
        }
        list += (first == *slots.begin() ? "" : ", ") + TrimStr(first + 1);
        if (last > first) {
            list += (last == first + 1 ? ", " : " to ") + TrimStr(last + 1);
        }
    }
    return list;
}

/// "the project A", "the projects A, B".
std::string ProjectList(const std::vector<std::string>& projects) {
    std::string list;
    for (const std::string& project : projects) {
        list += (list.empty() ? "" : ", ") + project;
    }
    return (projects.size() == 1 ? "the project " : "the projects ") + list;
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

Slots MissingSlots(const std::vector<RoomRow>& rows, Integer objNum) {
    Slots missing;
    for (Integer slot = 0; slot < objNum; ++slot) {
        missing.insert(slot);
    }
    for (const RoomRow& row : rows) {
        missing.erase(row.Slot.value_or(-1));
    }
    return missing;
}

Slots RepeatedSlots(const std::vector<RoomRow>& rows) {
    Slots seen;
    return SlotsWhere(rows, [&seen](const RoomRow& row) { return !seen.insert(*row.Slot).second; });
}

std::string NumbersOutside(const std::vector<RoomRow>& rows) {
    std::string numbers;
    for (const RoomRow& row : rows) {
        if (!row.Slot) {
            numbers += (numbers.empty() ? "" : ", ") + row.ObjNumText;
        }
    }
    return numbers;
}

} // namespace

std::vector<RoomRow> ReadRoomRows(SharedState& state, Integer tid) {
    const auto rows =
        OpenedDatabase(state).OpenSnapshot(SheetQuery(InputData, tid) + " Order by ObjNum");
    std::vector<RoomRow> read;
    for (; !rows->AtEnd(); rows->MoveNext()) {
        try {
            read.push_back(ReadRoomRow(*rows));
        } catch (const RunTimeError& error) {
            throw error.WithAdvice("A number stored in the room row with ObjNum " +
                                   TextIn(*rows, "ObjNum") + " is too large.");
        }
    }
    return read;
}

std::vector<std::string> RoomFindings(const std::vector<RoomRow>& rows, Integer objNum,
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
        addWhere("Stored under one number with " + ProjectList(sharing) +
                     ", whose rooms they may be",
                 [](const RoomRow&) { return true; });
    }
    add("Missing, read as empty", MissingSlots(rows, objNum));
    addWhere("Beyond the end of the project, dropped by SAVE",
             [objNum](const RoomRow& row) { return *row.Slot >= objNum; });
    add("Stored more than once, the last row is used", RepeatedSlots(rows));
    if (const std::string numbers = NumbersOutside(rows); !numbers.empty()) {
        lines.push_back("Outside rooms 1 to " + TrimStr(RoomCapacity) +
                        ", left out and dropped by SAVE: ObjNum " + numbers + ".");
    }
    addWhere("Without a room number, read as", [](const RoomRow& row) { return !row.HasNumber; });
    addWhere("Without a width or a length, read as 0",
             [](const RoomRow& row) { return !row.HasSize; });
    addWhere("Without a covering, read as " + CoveringCaption(0),
             [](const RoomRow& row) { return !row.HasCovering; });
    addWhere("With an unknown covering, not estimated until one is chosen",
             [](const RoomRow& row) { return row.Room.Covering > LastTileCode; });
    addWhere("Without a wall base, read as none", [](const RoomRow& row) { return !row.HasBase; });
    addWhere("With an unknown wall base, shown as none", [](const RoomRow& row) {
        return row.Room.Base != 0 && GetBaseStr(row.Room.Base).empty();
    });
    return lines;
}

} // namespace tarn
