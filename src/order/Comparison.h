// The figures by which rolls and lays are compared, and which of them is best.

#pragma once

#include "order/Order.h"
#include "order/OrderStrips.h"
#include "project/Project.h"

#include <optional>
#include <vector>

namespace tarn {

/// The length to be ordered for one that is needed: raised by the drift of the pattern, then to
/// whole steps.
std::int64_t LengthToOrder(Long needed, const OrderRequest& request);

/// The figures of a row that is laid out: `candidate` holds its pieces.
OrderFigures FiguresOf(const Project& project, const OrderRequest& request,
                       const OrderCandidate& candidate, const std::vector<OrderStrip>& strips,
                       Long least);

/// The row to take: of the least price where each row that is not refused has one, else of the
/// least area; then the one with the shortest seams and joins, then the first.
std::optional<std::size_t> BestOf(const std::vector<OrderCandidate>& candidates);

/// Whether a row is the one that BestOf names: another one may be taken by choice.
bool IsBest(const Order& order, std::size_t row);

} // namespace tarn
