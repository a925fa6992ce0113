// The search for the shortest layout of one row of the comparison.

#pragma once

#include "improve/ImproveRun.h"
#include "order/RowLayout.h"

#include <functional>
#include <vector>

namespace tarn {

/// A layout of a row, and what is known of the least length.
struct RowFinding {
    std::vector<ImprovePart> Parts; ///< of the row's job
    Long Least = 0;                 ///< no layout needs less, what is stacked included
};

/// Find a layout at once, and then better ones until one is known to be the least or the limits end
/// it. `tell` is called with the first, with every better one and with every better bound, and many
/// times a second besides with nothing; when it says no, the search ends.
void SearchRow(const RowLayout& row, const ImproveLimits& limits,
               const std::function<bool(const RowFinding*)>& tell);

} // namespace tarn
