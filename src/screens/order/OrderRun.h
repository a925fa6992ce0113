#pragma once

#include "order/MakeOrder.h"
#include "project/Project.h"

#include <exception>
#include <functional>

namespace tarn {

/// The making of one order on threads of its own, so that the window goes on working. It begins
/// with the object; what it finds is told by the event loop of the thread that made the object.
class OrderRun {
  public:
    struct Callbacks {
        /// Some row has become better. Every row of the order is refused, has its best layout so
        /// far, or has none yet.
        std::function<void(const Order&)> Progress;
        /// It is over, after the last progress; `fault` is what MakeOrder raised, if it did. May
        /// destroy the run.
        std::function<void(std::exception_ptr fault)> Ended;
    };

    OrderRun(Project project, Byte carpet, OrderRequest request, const OrderLimits& limits,
             Callbacks callbacks);
    /// Ends the search without waiting for it: the window does not stand still for that. Nothing is
    /// told any more. The program's end waits for it.
    ~OrderRun();
    OrderRun(const OrderRun&) = delete;
    OrderRun& operator=(const OrderRun&) = delete;

    /// End the search; the best so far is told before the end is.
    void Stop();

  private:
    class Search;

    Search* search_; ///< owns itself once this is gone
};

} // namespace tarn
