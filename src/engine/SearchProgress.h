#pragma once

#include "app/EventYield.h"
#include "engine/SearchObserver.h"

#include <functional>

class QLabel;
class QProgressBar;

namespace tarn {

/// Shows how far a search is, and lets the window system work while it runs: so the screen stays
/// alive, and closing it can stop the search.
class SearchProgress : public SearchObserver {
  public:
    /// `finished` is run when the layout is final, unless the search was stopped; it may raise.
    SearchProgress(QProgressBar& bar, QLabel& percentage, std::function<void()> finished);

    /// Stop the search after the placement in hand; after the last one, drop its layout.
    void Stop() { stopped_ = true; }
    bool Stopped() const { return stopped_; }

    void Started(Long maximum) override;
    bool Scored(Long done) override;
    void Ended() noexcept override;
    void Finished() override;

  private:
    QProgressBar& bar_;
    QLabel& percentage_;
    std::function<void()> finished_;
    EventYield yield_;
    bool stopped_ = false;
};

} // namespace tarn
