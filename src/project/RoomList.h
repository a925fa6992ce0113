// The rooms of a project as a list, and what they come to: the room that is being typed counts as
// it would be stored.

#pragma once

#include "base/Units.h"
#include "project/Project.h"
#include "project/RoomDraft.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// What the list says of each room, from left to right.
enum class RoomColumn { Item, Width, Length, Covering, Base, Number, Remark, Area };
inline constexpr int RoomColumns = 8;

/// The head of a column: areas are square yards, or square metres.
std::string_view CaptionOf(RoomColumn column, Units shown);

/// What the list says of the room at `place`, counted from 0: sizes and areas in `shown`, the
/// covering in its short form, texts on one line.
std::string ListText(RoomColumn column, const Room& room, std::size_t place, Units shown);

/// What stands in the list for the new room behind the last one; `isHalfTyped` when there are texts
/// of it that make no room yet.
std::string_view NewRoomText(bool isHalfTyped);

/// The room that `draft` would be stored as at `room`, 0 .. number of rooms; nothing when it would
/// not be stored. See StoreRoom; raises nothing.
std::optional<Room> RoomAsTyped(const Project& project, Units shown, std::size_t room,
                                const RoomDraft& draft);

/// The rooms with one covering.
struct CoveringTotal {
    Byte Covering = 0;
    std::size_t Rooms = 0;
    long long Area = 0; ///< square inches, or square centimetres in a metric project

    bool operator==(const CoveringTotal&) const = default;
};

/// The totals of the coverings that have rooms, in ascending order. The room at `place` counts as
/// `typed`, which may be the new one behind the last; as it is when nothing is typed for it.
std::vector<CoveringTotal> TotalsByCovering(const std::vector<Room>& rooms, std::size_t place,
                                            const std::optional<Room>& typed);

/// The heads of the totals: the covering, its rooms, and their area in square yards and square
/// feet, or in square metres.
std::vector<std::string> TotalCaptions(Units shown);

/// The totals as the list has them: a line for each covering and, where there are several, one for
/// all of them.
std::vector<std::vector<std::string>> TotalLines(const std::vector<CoveringTotal>& totals,
                                                 Units shown);

} // namespace tarn
