#pragma once

#include "improve/ImproveJob.h"

#include <functional>

namespace tarn {

/// A bound by column generation.
///
/// The bar relaxation: lengths may be divided at will, so the roll is a sequence of cross sections,
/// each a choice of fills side by side, a fill at most as often as it may have parts. The least
/// length over all fractions of cross sections is a bound for every layout; it is at least as good
/// as those of Bounds.h but for the rounding described below.
///
/// With a pattern a cross section keeps to its columns; see ColumnKnapsack.
///
/// Solved by column generation: a simplex over the cross sections found so far, and a knapsack that
/// finds the best one to add. The simplex computes in Double, the bound does not depend on it:
/// whatever prices it gives, the bound is computed from them in whole numbers (the worth of all
/// fills over that of the best cross section). Widths in very small units are rounded down first,
/// which can make the bound smaller but never wrong.
///
/// `goOn` is asked before every cross section and within the steps of the simplex; when it says no,
/// the best bound so far is returned, and so it is when it has become clear that no bound above
/// `known` will come. 0 when the job has too many different fills for this.
Long BarRelaxationBound(const ImproveJob& job, Long known, const std::function<bool()>& goOn);

} // namespace tarn
