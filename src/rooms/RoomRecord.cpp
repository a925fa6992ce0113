#include "rooms/RoomRecord.h"

#include "app/Numbers.h"
#include "app/RunTimeError.h"

namespace tarn {

void PutRoom(SharedState& state, long long slot, const RoomRecord& room) {
    state.RoomWidth[slot] = room.Width;
    state.RoomLength[slot] = room.Length;
    state.RoomCarpet[slot] = room.Covering;
    state.RoomBase[slot] = room.Base;
    state.RoomNoStr[slot] = room.RoomNo;
    state.RoomRemark[slot] = room.Remark;
}

RoomRecord TakeRoom(const SharedState& state, long long slot) {
    return {state.RoomWidth[slot], state.RoomLength[slot], state.RoomCarpet[slot],
            state.RoomBase[slot],  state.RoomNoStr[slot],  state.RoomRemark[slot]};
}

void PutRooms(SharedState& state, const std::vector<RoomRecord>& rooms) {
    const auto count = static_cast<long long>(rooms.size());
    if (count > RoomCapacity) {
        RaiseSubscript(std::string(ProjectFullText));
    }
    for (long long i = 0; i < count; ++i) {
        PutRoom(state, i, rooms[static_cast<std::size_t>(i)]);
    }
    state.ObjNum = ToInteger(count);
}

std::vector<RoomRecord> TakeRooms(const SharedState& state) {
    std::vector<RoomRecord> rooms;
    for (Integer i = 0; i < state.ObjNum; ++i) {
        rooms.push_back(TakeRoom(state, i));
    }
    return rooms;
}

} // namespace tarn
