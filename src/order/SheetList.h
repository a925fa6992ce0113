// The list by which a roll is cut, on pages.

#pragma once

#include "order/Order.h"
#include "order/SheetPage.h"
#include "project/Project.h"

#include <string_view>
#include <vector>

namespace tarn {

/// The pages of a row's list in cutting order, in columns under their heads, ListTypeSize points.
/// Texts that are too wide for their column go on below; a piece stays on one page, but for one
/// that is longer than a page. `head` stands at the top of each.
std::vector<Drawing> ListPages(const Project& project, const Order& order,
                               const OrderCandidate& candidate, const SheetPaper& paper,
                               std::string_view head);

} // namespace tarn
