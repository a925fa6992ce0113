#pragma once

#include "order/Order.h"
#include "project/Project.h"

#include <string>

namespace tarn::testing {

/// What is wrong with a row of an order, found cell by cell and pair by pair, from the rules alone;
/// empty when nothing is.
std::string PlainFaultOf(const Project& project, const Order& order, const OrderCandidate& row);

} // namespace tarn::testing
