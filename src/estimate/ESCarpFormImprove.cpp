// The improving search of the estimate screen.

#include "estimate/ESCarpForm.h"
#include "estimate/ImproveEstimate.h"
#include "estimate/ImprovePanel.h"
#include "estimate/Improvement.h"

#include <QPushButton>

#include <optional>
#include <vector>

namespace tarn {

namespace {

constexpr const char* ImproveFailure = "The layout could not be improved.";

/// Takes every control of `parent` but one out of use while it lives.
class OthersDisabled {
  public:
    OthersDisabled(const QWidget& parent, const QWidget& but) {
        for (auto* child : parent.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
            if (child != &but && child->isEnabled()) {
                child->setEnabled(false);
                disabled_.push_back(child);
            }
        }
    }
    ~OthersDisabled() {
        for (QWidget* widget : disabled_) {
            widget->setEnabled(true);
        }
    }
    OthersDisabled(const OthersDisabled&) = delete;
    OthersDisabled& operator=(const OthersDisabled&) = delete;

  private:
    std::vector<QWidget*> disabled_;
};

std::string NothingBetterText(const ImproveResult& result) {
    const std::string reason = NothingBetterReason(result);
    return "No better layout was found" + (reason.empty() ? "" : ": " + reason) + ".";
}

} // namespace

void ESCarpForm::EnableImprove() {
    // A layout becomes ready while the whole screen is still disabled below the options.
    const bool usable = buttons_[Estimate]->isEnabledTo(&Body());
    buttons_[Improve]->setEnabled(usable && Shared().Engine.PosCount > 0);
}

void ESCarpForm::ImproveLayout() {
    SetPasteCuts(false);
    ImproveResult result;
    const std::optional<Improvement> before = estimate_.Improved;
    const bool done = Guard(ImproveFailure, [&] {
        const OthersDisabled others(Body(), *improvePanel_);
        result = improvePanel_->Run([this](const ImproveLimits& limits, ImproveObserver& observer) {
            return ImproveEstimate(State(), Shared().Engine, estimate_, limits, observer);
        });
    });
    FocusResult();
    if (!done) {
        return;
    }
    // Without a better layout the list may still know a better bound.
    if (estimate_.Improved != before) {
        try {
            LayoutReady();
        } catch (const std::exception&) {
            Empty();
            throw;
        }
    }
    if (!result.Improved) {
        Shared().Boxes.Message(NothingBetterText(result));
    }
}

/// Closing while a search improves the layout ends the search alone.
void ESCarpForm::OnCloseByFrame() {
    if (improvePanel_->IsRunning()) {
        improvePanel_->Stop();
        return;
    }
    Leave();
}

} // namespace tarn
