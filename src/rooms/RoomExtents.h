#pragma once

#include "app/SharedState.h"

namespace tarn {

/// Rebuild the rectangle of one room in RoomX and RoomY from its sizes: from (0, 0) to width and
/// length in coordinate units (hundredths of an inch with the usual DimScale), under the MetricFlag
/// in force. Computed in Double and rounded once to Single. Raises "Subscript out of range" for a
/// room outside 0 .. MaxRoom, "Division by zero" for a DimScale of 0, "Overflow" when an extent is
/// not finite.
void BuildRoomExtents(SharedState& state, long long room);

/// The same for all rooms 0 .. ObjNum - 1. Needed whenever sizes, their order or MetricFlag may
/// have changed since the rooms were loaded.
void BuildAllRoomExtents(SharedState& state);

} // namespace tarn
