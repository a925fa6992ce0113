#include "estimate/Totals.h"

#include "app/Lengths.h"
#include "app/Numbers.h"
#include "rooms/WallBase.h"

#include <cmath>

namespace tarn {

namespace {

Single Extent(const BoundedTable<Single>& corners, Integer room) {
    return corners(room, 1) - corners(room, 0);
}

/// The sum over the rooms with covering `code`, accumulated in Single.
template <typename OfRoom>
Single SumOverRooms(const SharedState& state, Byte code, OfRoom ofRoom) {
    Single sum = 0;
    for (Integer room = 0; room < state.ObjNum; ++room) {
        if (state.RoomCarpet[room] == code) {
            sum = CSng(static_cast<Double>(sum + ofRoom(room)));
        }
    }
    return sum;
}

} // namespace

bool HasRooms(const SharedState& state, Integer code) {
    for (Integer room = 0; room < state.ObjNum; ++room) {
        if (state.RoomCarpet[room] == code) {
            return true;
        }
    }
    return false;
}

Single TotalBase(const SharedState& state) {
    Single sum = 0;
    for (Integer room = 0; room < state.ObjNum; ++room) {
        const Byte code = state.RoomBase[room];
        const Long base =
            BaseWidths(code) * state.RoomWidth[room] + BaseLengths(code) * state.RoomLength[room];
        sum += static_cast<Single>(base);
    }
    return sum;
}

Single CutExtentAlong(const SharedState& state, Integer layDir, Integer i) {
    return layDir != 0 ? state.ECutX2[i] - state.ECutX1[i] : state.ECutY2[i] - state.ECutY1[i];
}

Single TotalCutLength(const SharedState& state, Integer layDir) {
    Single sum = 0;
    for (Integer i = 0; i < state.ECutCount; ++i) {
        sum = CSng(static_cast<Double>(sum + CutExtentAlong(state, layDir, i)));
    }
    return CSng(static_cast<Double>(sum) * state.DimScale);
}

Single CarpetArea(const SharedState& state, Byte code) {
    const Single units = SumOverRooms(state, code, [&](Integer room) {
        return std::abs(Extent(state.RoomX, room) * Extent(state.RoomY, room));
    });
    return CSng(static_cast<Double>(units) * state.DimScale * state.DimScale);
}

Single CarpetPerimeter(const SharedState& state, Byte code) {
    const Single units = SumOverRooms(state, code, [&](Integer room) {
        return std::abs(2 * Extent(state.RoomX, room)) + std::abs(2 * Extent(state.RoomY, room));
    });
    return CSng(static_cast<Double>(units) * state.DimScale);
}

Area AreaOf(Double squareInches) {
    return {squareInches / 144, squareInches / 144 / 9,
            squareInches * CentimetresPerInch * CentimetresPerInch / 10000};
}

RollTotals TotalRoll(const SharedState& state, const EngineArrays& engine) {
    RollTotals totals;
    totals.CutLength = static_cast<Double>(TotalCutLength(state, engine.LayDir));
    totals.Length = totals.CutLength + engine.ResultLen;
    totals.Size = AreaOf(static_cast<Double>(engine.RollWidth) * totals.Length);
    return totals;
}

} // namespace tarn
