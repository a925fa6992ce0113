// The sizes of a room as a rectangle in the coordinates in which all is laid out.

#pragma once

#include "base/Types.h"
#include "base/Units.h"
#include "project/Project.h"
#include "project/Room.h"

namespace tarn {

/// The far corner of a room whose near one is (0, 0), in coordinate units: hundredths of an inch
/// with the usual scale.
struct RoomExtent {
    Single X = 0; ///< its width
    Single Y = 0; ///< its length

    bool operator==(const RoomExtent&) const = default;
};

/// The extent of a room whose sizes count in `units`; `scale` is the size of one coordinate unit in
/// inches. Computed in Double and rounded once to Single. Raises "Division by zero" for a scale of
/// 0, "Overflow" when an extent is not finite.
RoomExtent ExtentOf(const Room& room, Units units, Double scale);

/// Raise what would keep the rooms of a project from being laid out: as ExtentOf for any of them,
/// and "Subscript out of range" for more of them than RoomCapacity.
void RequireExtents(const Project& project, Units units);

} // namespace tarn
