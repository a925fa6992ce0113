#pragma once

#include "order/CheckOrder.h"
#include "order/MakeOrder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarn::testing {

/// Width and length of a room, whole units.
struct RoomSides {
    int Width;
    int Length;
};

/// A project with rooms of CARPET-1.
inline Project ProjectOf(const std::vector<RoomSides>& rooms) {
    Project project;
    for (const RoomSides& sides : rooms) {
        Room room;
        room.Width = static_cast<Integer>(sides.Width);
        room.Length = static_cast<Integer>(sides.Length);
        project.Rooms.push_back(room);
    }
    return project;
}

/// A request for one roll, down lay, everything else as usual, without drift.
inline OrderRequest RequestFor(Double width, Units units = Units::Imperial) {
    OrderRequest request = DefaultOrderRequest(units);
    request.Rolls = {{width, "", "", std::nullopt}};
    request.PatternDrift = 0;
    return request;
}

inline OrderLimits StepLimits(std::int64_t steps, std::uint64_t seed = 1) {
    OrderLimits limits;
    limits.Steps = steps;
    limits.Seed = seed;
    return limits;
}

inline Order MakeOrderOf(const Project& project, const OrderRequest& request,
                         std::int64_t steps = 3000) {
    OrderObserver nobody;
    return MakeOrder(project, 0, request, StepLimits(steps), nobody);
}

} // namespace tarn::testing
