#include "rooms/RoomRecord.h"

#include "app/Numbers.h"
#include "app/RunTimeError.h"

namespace tarn {

void PutRooms(SharedState& state, const std::vector<RoomRecord>& rooms) {
    const auto count = static_cast<long long>(rooms.size());
    if (count > RoomCapacity) {
        RaiseSubscript(std::string(ProjectFullText));
    }
    for (long long i = 0; i < count; ++i) {
        const RoomRecord& room = rooms[static_cast<std::size_t>(i)];
        state.RoomWidth[i] = room.Width;
        state.RoomLength[i] = room.Length;
        state.RoomCarpet[i] = room.Covering;
        state.RoomBase[i] = room.Base;
        state.RoomNoStr[i] = room.RoomNo;
        state.RoomRemark[i] = room.Remark;
    }
    state.ObjNum = ToInteger(count);
}

std::vector<RoomRecord> TakeRooms(const SharedState& state) {
    std::vector<RoomRecord> rooms;
    for (Integer i = 0; i < state.ObjNum; ++i) {
        rooms.push_back({state.RoomWidth[i], state.RoomLength[i], state.RoomCarpet[i],
                         state.RoomBase[i], state.RoomNoStr[i], state.RoomRemark[i]});
    }
    return rooms;
}

} // namespace tarn
