#pragma once

#include "app/SharedState.h"
#include "app/Types.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// One room as it is stored and exchanged. The fields mean what the room arrays of SharedState do.
struct RoomRecord {
    Integer Width = 0;  ///< whole inches, or whole centimetres in a metric project
    Integer Length = 0; ///< as Width
    Byte Covering = 0;  ///< see Coverings.h
    Byte Base = 0;      ///< see WallBase.h
    std::string RoomNo;
    std::string Remark;

    bool operator==(const RoomRecord&) const = default;
};

/// What a user may enter, in characters. Longer texts that are already stored are kept.
inline constexpr long long MaxRoomNoLength = 8;
inline constexpr long long MaxRemarkLength = 255;
inline constexpr long long MaxBaseTextLength = 8;

inline constexpr long long RoomCapacity = MaxRoom + 1LL;

/// Refuses a room beyond the capacity.
inline constexpr std::string_view ProjectFullText = "The project is full: it can hold 501 rooms.";
static_assert(RoomCapacity == 501);

/// Put one room into a slot. Raises "Subscript out of range" outside 0 .. MaxRoom.
void PutRoom(SharedState& state, long long slot, const RoomRecord& room);

/// The room in a slot, in use or not. Raises as PutRoom.
RoomRecord TakeRoom(const SharedState& state, long long slot);

/// Make `rooms` the rooms of the open project: sets ObjNum and rooms 0 .. ObjNum - 1; the slots
/// behind keep what they held, and RoomX and RoomY are not rebuilt. Raises "Subscript out of range"
/// with ProjectFullText for more rooms than the capacity; nothing is changed then.
void PutRooms(SharedState& state, const std::vector<RoomRecord>& rooms);

/// The rooms of the open project.
std::vector<RoomRecord> TakeRooms(const SharedState& state);

} // namespace tarn
