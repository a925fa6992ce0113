#pragma once

#include "estimate/EstimateRequest.h"
#include "estimate/MinCuts.h"
#include "screens/TitledScreen.h"
#include "screens/estimate/EstimateClient.h"

#include <array>
#include <vector>

class QBoxLayout;
class QLabel;
class QLayout;
class QProgressBar;
class QPushButton;
class QRadioButton;

namespace tarn {

class SearchProgress;

/// The estimation options: the minimum cut length and the most pieces per fill, which complete the
/// request that the choice panel began, and the estimate that is made of it. Opened above the
/// estimate screen, which gets the estimate, or word that there is none; either way the screen then
/// returns to it. Escape closes it as the frame does.
class OptionsScreen : public TitledScreen {
  public:
    /// `request` as the choice panel has it. `client` must outlive the screen.
    OptionsScreen(Session& session, const EstimateRequest& request, EstimateClient& client);

  protected:
    std::string_view GuidePage() const override { return GuidePages::options; }
    void OnCloseByFrame() override;
    QWidget* FirstFocus() override;
    void OnBodyRoom() override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void Choose(const FillChoices& choices);
    void BuildMinCuts(QWidget& frame);
    void BuildPieces(QWidget& frame);
    QLayout* BuildProgress(QWidget& frame);
    void BuildPanel();
    void Continue();
    bool MakeEstimate(SearchProgress& progress);
    void ReturnWithoutEstimate();
    void EnableChoices(bool enabled);
    void TakeChoices();

    EstimateRequest request_;
    EstimateClient& client_;
    std::array<QRadioButton*, AllMinCuts.size()> minCuts_{};
    std::array<QRadioButton*, MostPiecesPerFill> pieces_{};
    QBoxLayout* groups_ = nullptr; ///< of options
    std::vector<QLabel*> headings_;
    QPushButton* continue_ = nullptr;
    QProgressBar* bar_ = nullptr;
    QLabel* percentage_ = nullptr;
    SearchProgress* search_ = nullptr; ///< while a search runs
};

} // namespace tarn
