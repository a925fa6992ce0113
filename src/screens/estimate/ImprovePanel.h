#pragma once

#include "base/Units.h"
#include "estimate/ImproveEstimate.h"
#include "screens/EventYield.h"

#include <QElapsedTimer>
#include <QFrame>

#include <functional>
#include <string>

class QLabel;
class QProgressBar;
class QPushButton;

namespace tarn {

/// The panel that shows an improving search: the best length so far, the least possible, how far
/// they may be apart, and the time that is left. Its button ends the search. Afterwards it offers
/// what the search kept beside the estimate, if anything.
class ImprovePanel : public QFrame, private ImproveObserver {
  public:
    /// How long a search goes on at most, seconds.
    static constexpr int Seconds = 10;

    ImprovePanel(QWidget* parent, Units units);

    /// An improving search within the limits, which tells the observer how far it is.
    using Search = std::function<ImprovedEstimate(const ImproveLimits& limits, ImproveObserver&)>;
    /// Run `search` with the panel in view; the window system works meanwhile. The panel is hidden
    /// afterwards, also after an error of the search, which is handed on.
    ImprovedEstimate Run(const Search& search);
    /// End the search that runs; the best layout so far is taken.
    void Stop() { stopped_ = true; }
    bool IsRunning() const { return running_; }

    /// Come into view with a layout that can be taken instead of the estimate's: what it is (see
    /// KeptText), and why it is offered, unless empty. Stays until it is hidden.
    void Offer(const std::string& kept, const std::string& reason);
    QPushButton& TakeButton() { return *take_; }
    QPushButton& LeaveButton() { return *leave_; }

  private:
    bool Progress(const ImproveProgress& progress) override;
    void Show(const ImproveProgress& progress);
    /// Show what belongs to a search, or what belongs to an offer.
    void ShowControls(bool ofSearch);

    Units units_;
    bool running_ = false;
    bool stopped_ = false;
    bool shown_ = false; ///< the figures of this search, at least once
    QElapsedTimer sinceStart_;
    QElapsedTimer sinceShown_;
    EventYield yield_;
    QLabel* best_ = nullptr;
    QLabel* least_ = nullptr;
    QLabel* gap_ = nullptr;
    QProgressBar* time_ = nullptr;
    QPushButton* stop_ = nullptr;
    QPushButton* take_ = nullptr;
    QPushButton* leave_ = nullptr;
};

} // namespace tarn
