#pragma once

#include "improve/ImproveJob.h"

namespace tarn {

/// Lengths below which no layout of the job ends, whatever the search finds. All of them are whole
/// units, because a layout can be pushed together until every part begins at the roll's start or at
/// the end of another, and all lengths are whole units.

/// The area of the fills over the width of the roll.
Long AreaBound(const ImproveJob& job);

/// The longest part that cannot be avoided: a fill's parts lie side by side at best.
Long LongestBound(const ImproveJob& job);

/// Fills wider than half the roll lie one behind the other.
Long StackBound(const ImproveJob& job);

/// The best of the dual feasible functions that count a width w as floor((k + 1) w / W) of k, or,
/// when (k + 1) w / W is whole, as w / W; and of those that leave widths below a threshold out and
/// count widths above the rest as the whole roll.
Long DualFeasibleBound(const ImproveJob& job);

/// The largest of the bounds above.
Long QuickBound(const ImproveJob& job);

} // namespace tarn
