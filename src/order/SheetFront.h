// The first page of an order: what to buy, how it is cut, and what else the project needs.

#pragma once

#include "order/Order.h"
#include "order/SheetPage.h"
#include "project/Project.h"

#include <string_view>
#include <vector>

namespace tarn {

/// The page, or pages where its notes are very long: project, date (as it is), carpet, the roll and
/// the figures of the best row with its notes; for an order without one why each row is refused.
std::vector<Drawing> FrontPages(const Project& project, const Order& order, const SheetPaper& paper,
                                std::string_view head, std::string_view date);

} // namespace tarn
