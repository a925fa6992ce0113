#include "project/RoomExtents.h"

#include "base/Lengths.h"
#include "base/Numbers.h"
#include "base/RunTimeError.h"

namespace tarn {

namespace {

Single CoordinateOf(Integer size, Units units, Double scale) {
    if (scale == 0) {
        RaiseDivisionByZero();
    }
    const Double scaled = size / scale;
    return CSng(units == Units::Metric ? scaled / CentimetresPerInch : scaled);
}

} // namespace

RoomExtent ExtentOf(const Room& room, Units units, Double scale) {
    return {CoordinateOf(room.Width, units, scale), CoordinateOf(room.Length, units, scale)};
}

void RequireExtents(const Project& project, Units units) {
    std::size_t count = 0;
    for (const Room& room : project.Rooms) {
        if (++count > RoomCapacity) {
            RaiseSubscript();
        }
        ExtentOf(room, units, project.Scale);
    }
}

} // namespace tarn
