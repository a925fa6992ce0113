#pragma once

#include "app/SharedState.h"
#include "engine/EngineArrays.h"

namespace tarn {

/// Whether any room of the open project has covering `code`.
bool HasRooms(const SharedState& state, Integer code);

/// The wall base of all rooms, of every covering, in the rooms' small unit (inches or centimetres).
/// The plain sum: rooms are not raised to multiples as on the entered-data report.
Single TotalBase(const SharedState& state);

/// The extent of cut `i` along the roll, coordinate units.
Single CutExtentAlong(const SharedState& state, Integer layDir, Integer i);

/// The length of all whole-width cuts along the roll, inches.
Single TotalCutLength(const SharedState& state, Integer layDir);

/// The area of all rooms with covering `code`, square inches.
Single CarpetArea(const SharedState& state, Byte code);

/// The perimeter of all rooms with covering `code`, inches.
Single CarpetPerimeter(const SharedState& state, Byte code);

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

/// Roll width times the length of the cuts and ResultLen.
RollTotals TotalRoll(const SharedState& state, const EngineArrays& engine);

} // namespace tarn
