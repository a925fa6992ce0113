#pragma once

#include "engine/SearchObserver.h"
#include "screens/EventYield.h"

class QLabel;
class QProgressBar;

namespace tarn {

/// Shows how far a search is, and lets the window system work while it runs: so the screen stays
/// alive, and closing it can stop the search.
class SearchProgress : public SearchObserver {
  public:
    SearchProgress(QProgressBar& bar, QLabel& percentage);

    /// Stop the search after the placement in hand; after the last one, have its layout dropped.
    void Stop() { stopped_ = true; }
    /// Take in what the user did until now, which was meant for the search and must not wait for
    /// the screen below; answers whether the search was stopped.
    bool CatchUp();

    void Started(Long maximum) override;
    bool Scored(Long done) override;
    void Ended() noexcept override;

  private:
    QProgressBar& bar_;
    QLabel& percentage_;
    EventYield yield_;
    bool stopped_ = false;
};

} // namespace tarn
