// The words and figures of an order as lists, sheets and messages have them.

#pragma once

#include "order/Order.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace tarn {

/// "down" or "cross".
std::string_view LayName(Lay lay);
/// A row of the comparison: "Shop 12ft, down".
std::string CandidateName(const Order& order, const OrderCandidate& candidate);

/// Whole square units as square feet or square metres with two places.
std::string AreaText(std::int64_t area, Units units);
/// How many seams or joins and how long together: "5, 60'0""; "none".
std::string SeamText(const SeamTotal& seams, Units units);

} // namespace tarn
