// The comparison of rolls and lays in words and figures, as lists and screens have it.

#pragma once

#include "order/Order.h"

#include <string>
#include <vector>

namespace tarn {

/// The heads of the columns: roll, lay, what is ordered .. price.
std::vector<std::string> ComparisonHeads(Units units);

/// What stands in them for a row. A refused one is "refused" behind its lay, and one whose layout
/// is still to come has nothing there.
std::vector<std::string> ComparisonCells(const Order& order, const OrderCandidate& candidate);

/// By how much of it what is needed lies above the least possible: "0.8"; empty without figures.
std::string AboveLeastText(const OrderCandidate& candidate);

/// A row that is taken, and its length: "Best: Shop 12ft, down, 81'0" in one length without a
/// join". One that is not the best is told as chosen. It must have figures.
std::string TakenText(const Order& order, std::size_t row);

/// By what the best row is the best: the least price, or where a roll has none the least carpet,
/// and then which. Empty while there is no best row.
std::string RuleOfBest(const Order& order);

/// Why a row is refused, or what there is to note on it, a line each; empty for nothing.
std::string RemarksOf(const OrderCandidate& candidate);

} // namespace tarn
