// From rooms and a request to what to buy and how to cut it.

#pragma once

#include "order/Order.h"
#include "project/Project.h"

#include <cstdint>

namespace tarn {

/// How long the search for an order goes on, and how many cores it may use. It ends by itself when
/// each row is known to be the least possible. A first layout of each row is made in any case.
struct OrderLimits {
    Double Seconds = 0;      ///< for all rows together; not looked at when there are steps
    std::int64_t Steps = 0;  ///< layouts that are tried for each row; 0 = by the seconds
    std::uint64_t Seed = 1;  ///< same seed and steps: same order, on any number of cores
    std::size_t Threads = 0; ///< cores that are used; 0 = those there are
};

/// What the making of an order tells its caller while it goes on. The default does nothing and
/// never stops. It is called by the thread that makes the order.
class OrderObserver {
  public:
    virtual ~OrderObserver() = default;

    /// Called about fifty times a second; `changed` says whether a row has become better since the
    /// last call, which it says some twenty times a second at most. Each row of the order is
    /// refused, has its best layout so far, or has none yet. False stops the search; the best so
    /// far is taken all the same, and a row without a layout gets its first one. To raise is to
    /// want no order: the search ends at once.
    virtual bool Progress([[maybe_unused]] const Order& soFar, [[maybe_unused]] bool changed) {
        return true;
    }
};

/// Make the order of a carpet: for each roll and lay of the request the shortest layout that the
/// search finds, checked (see CheckOrder). Without a room of the carpet that has an area all rows
/// have no piece, and there is no best one.
///
/// Raises what the observer raises, once the search has ended; RunTimeError "Invalid procedure
/// call" (5) for a request with a fault (see FaultOf), "Subscript out of range" for more rooms than
/// a project holds, and "Internal error" when an order fails its check.
Order MakeOrder(const Project& project, Byte carpet, const OrderRequest& request,
                const OrderLimits& limits, OrderObserver& observer);

} // namespace tarn
