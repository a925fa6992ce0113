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

/// A roll of that length as stretches of at most `most` units, one behind the other: broken where
/// no piece is, as far as that leaves a stretch more than half as long; else where pieces go on for
/// `least` units on both sides, if there is such a place. `pieces` are in cutting order.
std::vector<RollStretch> FoldedRoll(const std::vector<OrderPiece>& pieces, Long length, Long most,
                                    Long least);

/// A part of the roll that no piece takes, whole units from the usable edge and the roll's start.
struct LeftOver {
    Long X1 = 0;
    Long Y1 = 0;
    Long X2 = 0;
    Long Y2 = 0;

    bool operator==(const LeftOver&) const = default;
};

/// All that the pieces leave of a stretch `width` wide, as rectangles that do not overlap.
std::vector<LeftOver> LeftOvers(const std::vector<OrderPiece>& pieces, Long width,
                                const RollStretch& stretch);

} // namespace tarn
