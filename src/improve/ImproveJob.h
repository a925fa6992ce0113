#pragma once

#include "base/Types.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tarn {

/// An area, or a sum of lengths, in the job's units.
using Area64 = std::int64_t;

/// The number of no room: nothing has to match a fill of it.
inline constexpr Long NoRoom = -1;

/// A fill to be laid on the roll, in the job's units.
struct ImproveFill {
    Long Width;  ///< across the roll, 1 .. the job's width
    Long Length; ///< along the roll, 1 or more
    Long Parts;  ///< the most parts that it may be laid in, 1 or more

    // With a repeat:
    Long Room = NoRoom; ///< 0 and up: the pieces of one room match each other
    Long Begin = 0;     ///< left edge of the fill in its room
    Long Strip = 0;     ///< its number in its room, from 0
};

/// The repeat of a pattern; 0 for none in that direction.
///
/// A piece that begins at (X, Y) of its room and lies at (x, y) shows the pattern shifted by (X -
/// x, Y - y). Two pieces match when their shifts differ by k repeats across and a whole number of
/// repeats along, with a half drop half a repeat more for odd k. Without a repeat across k is the
/// difference of their strip numbers, and the shift across does not count.
struct ImproveRepeat {
    Long Across = 0;
    Long Along = 0;
    bool HalfDrop = false; ///< Along is even then
};

/// What the improving search works on: whole numbers of some small unit, which may be another one
/// across the roll than along it. Fills are never turned. A part of a divided fill is at least
/// MinPart long, and every part but one is a whole multiple of CutStep long.
/// With a repeat, fills of one room are several, or may be divided; the first of several is as wide
/// as the roll and begins at the left edge of its room.
struct ImproveJob {
    Long Width = 0; ///< usable width of the roll
    Long MinPart = 1;
    Long CutStep = 1;
    Long MostPieces = 1 << 20; ///< parts that a layout may have in all
    std::vector<ImproveFill> Fills;
    ImproveRepeat Repeat{};
};

/// The most parts that a fill can be laid in, by its own number and the job's minimum part.
Long PartsAllowed(const ImproveJob& job, const ImproveFill& fill);

/// Whether any fill of the job can be divided at all.
bool AnyDivisible(const ImproveJob& job);

/// Whether there are fills that have to match.
bool HasPattern(const ImproveJob& job);

/// The area of all fills.
Area64 TotalArea(const ImproveJob& job);

/// The length of a roll on which all fills lie one behind the other, undivided.
Area64 StackedLength(const ImproveJob& job);

} // namespace tarn
