#include "estimate/Totals.h"

#include "base/Lengths.h"
#include "base/Numbers.h"
#include "project/Coverings.h"
#include "project/RoomExtents.h"
#include "project/WallBase.h"

#include <algorithm>
#include <cmath>

namespace tarn {

namespace {

/// The sum over the rooms with covering `code`, accumulated in Single. Coordinate units.
template <typename OfExtent>
Single SumOverRooms(const Project& project, Byte code, Units units, OfExtent ofExtent) {
    Single sum = 0;
    for (const Room& room : project.Rooms) {
        if (room.Covering == code) {
            const RoomExtent extent = ExtentOf(room, units, project.Scale);
            sum = CSng(static_cast<Double>(sum + ofExtent(extent)));
        }
    }
    return sum;
}

} // namespace

bool HasRooms(const Project& project, Byte code) {
    return std::any_of(project.Rooms.begin(), project.Rooms.end(),
                       [&](const Room& room) { return room.Covering == code; });
}

Single TotalBase(const Project& project) {
    Single sum = 0;
    for (const Room& room : project.Rooms) {
        const Long base = BaseWidths(room.Base) * room.Width + BaseLengths(room.Base) * room.Length;
        sum += static_cast<Single>(base);
    }
    return sum;
}

Single CoveringArea(const Project& project, Byte code, Units units) {
    const Single sum = SumOverRooms(project, code, units, [](const RoomExtent& extent) {
        return std::abs(extent.X * extent.Y);
    });
    return CSng(static_cast<Double>(sum) * project.Scale * project.Scale);
}

Single CoveringPerimeter(const Project& project, Byte code, Units units) {
    const Single sum = SumOverRooms(project, code, units, [](const RoomExtent& extent) {
        return std::abs(2 * extent.X) + std::abs(2 * extent.Y);
    });
    return CSng(static_cast<Double>(sum) * project.Scale);
}

std::vector<TileFloor> TileFloors(const Project& project, Units units) {
    std::vector<TileFloor> floors;
    for (Byte code = FirstTileCode; code <= LastTileCode; ++code) {
        if (HasRooms(project, code)) {
            floors.push_back({code, CoveringArea(project, code, units),
                              CoveringPerimeter(project, code, units)});
        }
    }
    return floors;
}

Single ExtentAlong(const Cut& cut, Lay lay) {
    return lay == Lay::Cross ? cut.X2 - cut.X1 : cut.Y2 - cut.Y1;
}

Single TotalCutLength(const Estimate& estimate) {
    Single sum = 0;
    for (const Cut& cut : estimate.Cuts) {
        sum = CSng(static_cast<Double>(sum + ExtentAlong(cut, estimate.Request.Direction)));
    }
    return CSng(static_cast<Double>(sum) * estimate.Job.Scale);
}

Area AreaOf(Double squareInches) {
    return {squareInches / 144, squareInches / 144 / 9,
            squareInches * CentimetresPerInch * CentimetresPerInch / 10000};
}

Long ListedTotal(Double inches, Units units) {
    return units == Units::Metric ? RoundedCentimetres(inches) : WholeInches(inches);
}

RollTotals TotalRoll(const Estimate& estimate) {
    RollTotals totals;
    totals.CutLength = static_cast<Double>(TotalCutLength(estimate));
    totals.Length = totals.CutLength + estimate.Fills.Length;
    totals.Size = AreaOf(static_cast<Double>(estimate.Request.RollWidth) * totals.Length);
    return totals;
}

long long RaisedWhole(Double inches, const PatternRepeat& repeat, Units units) {
    return RaisedToRepeat(units == Units::Metric ? WholeCentimetres(inches) : WholeInches(inches),
                          repeat.Along);
}

Double RaisedInches(Double inches, const PatternRepeat& repeat, Units units) {
    const long long whole = RaisedWhole(inches, repeat, units);
    const auto length = static_cast<Double>(whole);
    return units == Units::Metric ? length / CentimetresPerInch : length;
}

PatternTotals TotalPattern(const Estimate& estimate, const PatternRepeat& repeat) {
    const Units units = estimate.Request.In;
    const auto raised = [&](Double inches) { return RaisedWhole(inches, repeat, units); };
    long long length = raised(estimate.Fills.Length);
    for (const Cut& cut : estimate.Cuts) {
        const Single along = ExtentAlong(cut, estimate.Request.Direction);
        length += raised(static_cast<Double>(along) * estimate.Job.Scale);
    }

    PatternTotals totals;
    totals.Length = ToLong(length);
    const Double inches =
        units == Units::Metric ? totals.Length / CentimetresPerInch : totals.Length;
    totals.Size = AreaOf(static_cast<Double>(estimate.Request.RollWidth) * inches);
    return totals;
}

} // namespace tarn
