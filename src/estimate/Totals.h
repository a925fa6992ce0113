// The figures of an estimate's totals. How they are worded is in CutList.cpp. Sums are accumulated
// in Single, what is computed from them is Double.

#pragma once

#include "estimate/Estimate.h"
#include "project/Project.h"

#include <vector>

namespace tarn {

/// Whether any room of the project has covering `code`.
bool HasRooms(const Project& project, Byte code);

/// The wall base of all rooms, of every covering, in the rooms' small unit (inches or centimetres).
/// The plain sum: rooms are not raised to multiples as on the entered-data report.
Single TotalBase(const Project& project);

/// The area of all rooms with covering `code`, square inches. Raises "Overflow" beyond a Single,
/// and as ExtentOf.
Single CoveringArea(const Project& project, Byte code, Units units);

/// The perimeter of all rooms with covering `code`, inches. Raises as CoveringArea.
Single CoveringPerimeter(const Project& project, Byte code, Units units);

/// The floors of the tiles that have rooms, in ascending order. Raises as CoveringArea.
std::vector<TileFloor> TileFloors(const Project& project, Units units);

/// The extent of a cut along the roll, coordinate units.
Single ExtentAlong(const Cut& cut, Lay lay);

/// The length of all whole-width cuts along the roll, inches. Raises "Overflow" beyond a Single.
Single TotalCutLength(const Estimate& estimate);

/// An area in the three units that totals are shown in.
struct Area {
    Double SquareFeet = 0;
    Double SquareYards = 0;
    Double SquareMeters = 0;
};

/// The area of `squareInches`.
Area AreaOf(Double squareInches);

/// The roll needed for an estimate.
struct RollTotals {
    Double CutLength = 0; ///< inches
    Double Length = 0;    ///< cuts and fills, inches
    Area Size;            ///< of that length at the roll's width
};

/// A length of roll in inches as totals list it: whole inches, or centimetres. Raises "Overflow"
/// beyond a Long.
Long ListedTotal(Double inches, Units units);

/// Roll width times the length of the cuts and the reported length of the fills.
RollTotals TotalRoll(const Estimate& estimate);

/// A length (inches) made whole inches (whole centimetres with metric) as on the cut list and then
/// raised to a multiple of the repeat along: whole inches or centimetres. Raises "Overflow" when
/// the length itself is beyond a Long.
long long RaisedWhole(Double inches, const PatternRepeat& repeat, Units units);
/// The same in inches.
Double RaisedInches(Double inches, const PatternRepeat& repeat, Units units);

/// The roll needed when every cut and the fills begin on a pattern repeat.
struct PatternTotals {
    Long Length = 0; ///< whole inches or centimetres, as the request has it
    Area Size;       ///< of that length at the roll's width
};

/// Every cut's length along the roll and the reported length of the fills, each made whole inches
/// (whole centimetres) as on the cut list and then raised to a multiple of the repeat along.
/// Raises "Overflow" beyond a Long.
PatternTotals TotalPattern(const Estimate& estimate, const PatternRepeat& repeat);

} // namespace tarn
