#include "screens/order/OrderRun.h"

#include <QCoreApplication>
#include <QMetaObject>

#include <atomic>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

namespace tarn {

namespace {

/// Raised where nobody waits for the order any more.
struct Abandoned {};

} // namespace

/// The search on its thread, and what it shares with the window's: the order so far, of which that
/// one takes the last, however many it missed. Abandoned, it ends as soon as it can and destroys
/// itself then, with the program at the latest.
class OrderRun::Search : public QObject, public OrderObserver {
  public:
    explicit Search(Callbacks callbacks)
        : callbacks_(std::move(callbacks)) {}
    ~Search() override { thread_.join(); }

    void Begin(Project project, Byte carpet, OrderRequest request, const OrderLimits& limits) {
        thread_ =
            std::thread([this, project = std::move(project), carpet, request = std::move(request),
                         limits] { Run(project, carpet, request, limits); });
    }
    void Stop() { stopped_ = true; }
    void Abandon() {
        abandoned_ = true;
        setParent(QCoreApplication::instance());
        EndAbandoned();
    }

  private:
    struct News {
        std::optional<Order> SoFar;
        bool HasEnded = false;
        std::exception_ptr Fault;
    };

    /// The thread of the search.
    void Run(const Project& project, Byte carpet, const OrderRequest& request,
             const OrderLimits& limits) {
        News last;
        try {
            last.SoFar = MakeOrder(project, carpet, request, limits, *this);
        } catch (...) {
            last.Fault = std::current_exception();
        }
        last.HasEnded = true;
        Tell(std::move(last));
    }
    bool Progress(const Order& soFar, bool changed) override {
        if (abandoned_) {
            throw Abandoned();
        }
        if (changed) {
            Tell({soFar, false, nullptr});
        }
        return !stopped_;
    }
    void Tell(News news) {
        {
            const std::scoped_lock lock(mutex_);
            if (!news.SoFar) {
                news.SoFar = std::move(news_.SoFar);
            }
            const bool isWoken = news_.SoFar.has_value() || news_.HasEnded;
            news_ = std::move(news);
            if (isWoken) {
                return;
            }
        }
        QMetaObject::invokeMethod(
            this, [this] { Deliver(); }, Qt::QueuedConnection);
    }

    News Take() {
        const std::scoped_lock lock(mutex_);
        return std::exchange(news_, {});
    }
    /// Each callback may abandon this.
    void Deliver() {
        const News news = Take();
        hasEnded_ = hasEnded_ || news.HasEnded;
        if (news.SoFar && !abandoned_) {
            callbacks_.Progress(*news.SoFar);
        }
        if (news.HasEnded && !abandoned_) {
            callbacks_.Ended(news.Fault);
        }
        EndAbandoned();
    }
    void EndAbandoned() {
        if (abandoned_ && hasEnded_) {
            deleteLater(); // nothing but the end of the thread is left to wait for
        }
    }

    Callbacks callbacks_;
    bool hasEnded_ = false; ///< as far as the window's thread knows
    std::atomic<bool> stopped_ = false;
    std::atomic<bool> abandoned_ = false;
    std::mutex mutex_;
    News news_;
    std::thread thread_;
};

OrderRun::OrderRun(Project project, Byte carpet, OrderRequest request, const OrderLimits& limits,
                   Callbacks callbacks)
    : search_(new Search(std::move(callbacks))) {
    search_->Begin(std::move(project), carpet, std::move(request), limits);
}

OrderRun::~OrderRun() {
    search_->Abandon();
}

void OrderRun::Stop() {
    search_->Stop();
}

} // namespace tarn
