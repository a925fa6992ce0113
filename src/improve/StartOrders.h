#pragma once

#include "improve/ImproveJob.h"

#include <vector>

namespace tarn {

/// The orders of the fills that a search starts from, as numbers of fills: largest first by area,
/// by length, by width, by perimeter and by the longer side. Equal ones keep their order.
std::vector<std::vector<std::size_t>> StartOrders(const ImproveJob& job);

} // namespace tarn
