// A roll that is drawn folded: where it is broken into strips, and what no piece takes of it.

#pragma once

#include "order/Order.h"

#include <vector>

namespace tarn {

/// A stretch of a roll, whole units from its start.
struct RollStretch {
    Long From = 0;
    Long To = 0;

    bool operator==(const RollStretch&) const = default;
};

/// How long the stretches of a folded roll may be, whole units.
struct StretchLimits {
    Long Most = 0;  ///< of each
    Long Least = 0; ///< of a piece that is broken, on both sides, where there is such a place
};

/// The stretch of a roll of that length that begins at `from`: all that is left where it is not too
/// long; broken where no piece is, as far as that leaves it more than half as long as it may be;
/// else where pieces go on for long enough on both sides. `pieces` are in cutting order.
RollStretch StretchFrom(const std::vector<OrderPiece>& pieces, Long from, Long length,
                        const StretchLimits& limits);

/// A rectangle of the roll, whole units from an edge and from the roll's start.
struct RollArea {
    Long X1 = 0;
    Long Y1 = 0;
    Long X2 = 0;
    Long Y2 = 0;

    bool operator==(const RollArea&) const = default;
};
/// A part of the roll that no piece takes.
using LeftOver = RollArea;

/// All that is not taken of a stretch `width` wide, as rectangles that do not overlap: each as long
/// as the same width of the roll is free.
std::vector<LeftOver> LeftOvers(const std::vector<RollArea>& taken, Long width,
                                const RollStretch& stretch);
/// The same of what pieces take, from the usable edge.
std::vector<LeftOver> LeftOvers(const std::vector<OrderPiece>& pieces, Long width,
                                const RollStretch& stretch);

} // namespace tarn
