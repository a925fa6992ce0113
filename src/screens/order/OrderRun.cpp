#include "screens/order/OrderRun.h"

#include <QMetaObject>

#include <atomic>
#include <mutex>
#include <optional>
#include <utility>

namespace tarn {

namespace {

/// Raised where nobody waits for the order any more.
struct Abandoned {};

} // namespace

/// What the two threads share: the order so far, of which the window's thread takes the last one,
/// however many it missed.
class OrderRun::Search : public OrderObserver {
  public:
    struct News {
        std::optional<Order> SoFar;
        bool HasEnded = false;
        std::exception_ptr Fault;
    };

    /// `wake` is called by the search's thread when there are news and those before were taken.
    explicit Search(std::function<void()> wake)
        : wake_(std::move(wake)) {}

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
    void Stop() { stopped_ = true; }
    void Abandon() { abandoned_ = true; }
    News Take() {
        const std::scoped_lock lock(mutex_);
        return std::exchange(news_, {});
    }

  private:
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
        wake_();
    }

    std::function<void()> wake_;
    std::atomic<bool> stopped_ = false;
    std::atomic<bool> abandoned_ = false;
    std::mutex mutex_;
    News news_;
};

OrderRun::OrderRun(Project project, Byte carpet, OrderRequest request, const OrderLimits& limits,
                   Callbacks callbacks)
    : callbacks_(std::move(callbacks))
    , search_(std::make_unique<Search>([this] {
        QMetaObject::invokeMethod(
            this, [this] { Deliver(); }, Qt::QueuedConnection);
    })) {
    thread_ = std::thread([search = search_.get(), project = std::move(project), carpet,
                           request = std::move(request),
                           limits] { search->Run(project, carpet, request, limits); });
}

OrderRun::~OrderRun() {
    search_->Abandon();
    thread_.join();
}

void OrderRun::Stop() {
    search_->Stop();
}

void OrderRun::Deliver() {
    const Search::News news = search_->Take();
    if (news.SoFar) {
        callbacks_.Progress(*news.SoFar);
    }
    if (news.HasEnded) {
        const auto ended = callbacks_.Ended; // it may destroy this
        ended(news.Fault);
    }
}

} // namespace tarn
