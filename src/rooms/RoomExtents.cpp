#include "rooms/RoomExtents.h"

#include "app/Lengths.h"
#include "app/Numbers.h"
#include "app/RunTimeError.h"

namespace tarn {

namespace {

Single ExtentOf(const SharedState& state, Integer size) {
    if (state.DimScale == 0) {
        RaiseDivisionByZero();
    }
    const Double units = size / state.DimScale;
    return CSng(state.IsMetric() ? units / CentimetresPerInch : units);
}

} // namespace

void BuildRoomExtents(SharedState& state, long long room) {
    state.RoomX(room, 0) = 0;
    state.RoomY(room, 0) = 0;
    state.RoomX(room, 1) = ExtentOf(state, state.RoomWidth[room]);
    state.RoomY(room, 1) = ExtentOf(state, state.RoomLength[room]);
}

void BuildAllRoomExtents(SharedState& state) {
    for (Integer room = 0; room < state.ObjNum; ++room) {
        BuildRoomExtents(state, room);
    }
}

} // namespace tarn
