#pragma once

#include "base/Types.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tarn {

/// An area, or a sum of lengths, in the job's units.
using Area64 = std::int64_t;

/// A fill to be laid on the roll, in the job's units.
struct ImproveFill {
    Long Width;  ///< across the roll, 1 .. the job's width
    Long Length; ///< along the roll, 1 or more
    Long Parts;  ///< the most parts that it may be laid in, 1 or more
};

/// What the improving search works on: whole numbers of some small unit, which may be another one
/// across the roll than along it. Fills are never turned. A part of a divided fill is at least
/// MinPart long, and every part but one is a whole multiple of CutStep long.
struct ImproveJob {
    Long Width = 0; ///< usable width of the roll
    Long MinPart = 1;
    Long CutStep = 1;
    Long MostPieces = 1 << 20; ///< parts that a layout may have in all
    std::vector<ImproveFill> Fills;
};

/// The most parts that a fill can be laid in, by its own number and the job's minimum part.
Long PartsAllowed(const ImproveJob& job, const ImproveFill& fill);

/// Whether any fill of the job can be divided at all.
bool AnyDivisible(const ImproveJob& job);

/// The area of all fills.
Area64 TotalArea(const ImproveJob& job);

/// The length of a roll on which all fills lie one behind the other, undivided.
Area64 StackedLength(const ImproveJob& job);

} // namespace tarn
