#pragma once

#include "order/MakeOrder.h"
#include "project/Project.h"

#include <QObject>

#include <exception>
#include <functional>
#include <memory>
#include <thread>

namespace tarn {

/// The making of one order on threads of its own, so that the window goes on working. It begins
/// with the object and ends with it at the latest; what it finds is told by the event loop of the
/// thread that made the object.
class OrderRun : public QObject {
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
    /// Ends the search, which takes less than a tenth of a second; nothing is told any more.
    ~OrderRun() override;

    /// End the search; the best so far is told before the end is.
    void Stop();

  private:
    class Search;

    void Deliver();

    Callbacks callbacks_;
    std::unique_ptr<Search> search_;
    std::thread thread_;
};

} // namespace tarn
