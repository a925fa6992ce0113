// The orders of a project's carpets together, as they are written to files.

#pragma once

#include "order/Order.h"
#include "project/Project.h"

#include <vector>

namespace tarn {

/// The orders of one project, in the order of their carpets, and the project with the rooms that
/// they are for.
struct OrderDocument {
    Project Of;
    Units In = Units::Imperial;
    std::vector<Order> Orders;

    bool operator==(const OrderDocument&) const = default;
};

/// The room that a piece is for.
inline const Room& RoomOf(const OrderDocument& document, const OrderPiece& piece) {
    return document.Of.Rooms.at(static_cast<std::size_t>(piece.Room - 1));
}

/// The pieces of the best row; none when there is none.
inline const std::vector<OrderPiece>& BestPieces(const Order& order) {
    static const std::vector<OrderPiece> none;
    return order.Best ? order.Candidates.at(*order.Best).Pieces : none;
}

/// How files call a lay and units.
constexpr const char* LayWord(Lay lay) {
    return lay == Lay::Cross ? "cross" : "down";
}
constexpr const char* UnitWord(Units units) {
    return units == Units::Metric ? "cm" : "in";
}

} // namespace tarn
