// The sheet by which carpet is bought and cut: its pages, as drawings.

#pragma once

#include "order/Order.h"
#include "order/SheetPage.h"
#include "project/Project.h"

#include <string_view>
#include <vector>

namespace tarn {

/// The pages of the orders of one project, one order after the other, on upright sheets of paper:
/// for each a first page, the roll, and the list in cutting order, of its best row; the first page
/// alone for an order without one. All pages are numbered together. `date` is printed as it is. No
/// text is smaller than LeastTypeSize, and none overlaps another.
///
/// The paper must leave LeastSheetWidth by LeastSheetHeight between its margins.
std::vector<Drawing> OrderSheet(const Project& project, const std::vector<Order>& orders,
                                const SheetPaper& paper, std::string_view date);

/// The pages of one order below each other as one drawing, with an outline for each sheet.
Drawing OrderPicture(const Project& project, const Order& order, const SheetPaper& paper,
                     std::string_view date);

} // namespace tarn
