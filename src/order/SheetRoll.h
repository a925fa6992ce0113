// The roll of an order, drawn to scale: folded into strips side by side, over as many pages as make
// every label readable.

#pragma once

#include "order/Order.h"
#include "order/SheetPage.h"
#include "project/Project.h"

#include <string_view>
#include <vector>

namespace tarn {

/// The pages of a row's roll, all of the length that is to be ordered. `head` stands at the top of
/// each. Each piece is a box whose tip is its letter and size, once for each strip that it is on.
std::vector<Drawing> RollPages(const Project& project, const Order& order,
                               const OrderCandidate& candidate, const SheetPaper& paper,
                               std::string_view head);

} // namespace tarn
