#include "screens/estimate/QuietSearch.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include <exception>
#include <memory>
#include <optional>
#include <utility>

namespace tarn {

namespace {

class StoppedBy : public ImproveObserver {
  public:
    explicit StoppedBy(const std::atomic<bool>& stopped)
        : stopped_(stopped) {}

    bool Progress(const ImproveProgress& /*progress*/) override { return !stopped_; }

  private:
    const std::atomic<bool>& stopped_;
};

/// Nothing where there is nothing better, and where the search failed: nobody asked for it, and
/// IMPROVE tells.
std::optional<Estimate> BetterThan(const Estimate& estimate, const QuietSearch::Search& search,
                                   const std::atomic<bool>& stopped) {
    try {
        ImproveLimits limits;
        limits.Seconds = QuietSearch::Seconds;
        StoppedBy observer(stopped);
        ImprovedEstimate improved = search(estimate, limits, observer);
        return improved.Result.Improved ? std::optional(std::move(improved.Value)) : std::nullopt;
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

bool IsPress(const QEvent& event) {
    switch (event.type()) {
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride: // a key that presses a button reaches nobody else
        return !static_cast<const QKeyEvent&>(event).isAutoRepeat();
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::TouchBegin:
        return true;
    default:
        return false;
    }
}

} // namespace

QuietSearch::QuietSearch(Search search, Found found)
    : search_(std::move(search))
    , found_(std::move(found)) {}

QuietSearch::~QuietSearch() {
    Drop();
}

void QuietSearch::Begin(const Estimate& estimate) {
    Drop();
    stopped_ = false;
    const auto better = std::make_shared<std::optional<Estimate>>();
    work_.Start([this, estimate, better] { *better = BetterThan(estimate, search_, stopped_); },
                [this, estimate, better] {
                    QCoreApplication::instance()->removeEventFilter(this);
                    if (*better) {
                        found_(estimate, **better);
                    }
                });
    QCoreApplication::instance()->installEventFilter(this);
}

void QuietSearch::Drop() {
    Stop();
    work_.Drop();
    QCoreApplication::instance()->removeEventFilter(this);
}

bool QuietSearch::eventFilter(QObject* watched, QEvent* event) {
    if (IsPress(*event)) {
        Stop();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace tarn
