#pragma once

#include "estimate/ImproveEstimate.h"
#include "screens/BackgroundWork.h"

#include <QObject>

#include <atomic>
#include <functional>

namespace tarn {

/// The improving search that runs for a moment after an estimate, away from the window and without
/// a word. It works on its own copy of the estimate; whatever is pressed in the program, a key or
/// the mouse, ends it, and what was found until then counts.
class QuietSearch : public QObject {
  public:
    /// How long it goes on at most.
    static constexpr Double Seconds = 1;

    /// An improving search of the estimate, within the limits. Run on a thread of its own.
    using Search = std::function<ImprovedEstimate(const Estimate& estimate,
                                                  const ImproveLimits& limits, ImproveObserver&)>;

    /// Called from the event loop with the estimate and a better one; not when there is none, or
    /// the search failed.
    using Found = std::function<void(const Estimate& estimate, const Estimate& better)>;

    QuietSearch(Search search, Found found);
    /// Ends the search, which takes its placement in hand to the end.
    ~QuietSearch() override;

    /// Begin; what ran before is dropped.
    void Begin(const Estimate& estimate);
    /// End what runs, if anything; what it found until now is still handed over.
    void Stop() { stopped_ = true; }
    /// End what runs, if anything; nothing of it is handed over.
    void Drop();
    bool IsRunning() const { return work_.IsRunning(); }

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    Search search_;
    Found found_;
    std::atomic<bool> stopped_ = false;
    BackgroundWork work_; ///< uses what stands above
};

} // namespace tarn
