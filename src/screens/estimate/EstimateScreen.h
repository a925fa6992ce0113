#pragma once

#include "base/Types.h"
#include "estimate/Estimate.h"
#include "screens/Screen.h"
#include "screens/estimate/EstimateClient.h"
#include "screens/estimate/EstimateHistory.h"
#include "screens/estimate/QuietSearch.h"

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>

class QHBoxLayout;
class QLabel;
class QMenu;
class QPushButton;
class QVBoxLayout;

namespace tarn {

class ChoicePanel;
class Drawing;
class ImproveButtons;
class ImprovePanel;
class PictureBox;
class ResultViews;

/// The carpet estimate: one carpet of the open project at a time is cut, drawn and listed, printed
/// and pasted. Its buttons can be used from the first OK or CANCEL of the choice panel on, whatever
/// comes of it; without a carpet room there is only the way back, once a message has said so.
/// Improvements of an estimate can be taken back, and a shorter layout that was found quietly is
/// there for the taking; nothing else changes what is shown by itself.
class EstimateScreen : public Screen, public EstimateClient {
  public:
    /// `fromMenu`: the menu opened it and is shown again when it closes; else the screen below it
    /// is. `quietly` looks for a shorter layout after each estimate. Raises as RequireExtents.
    EstimateScreen(Session& session, bool fromMenu, QuietSearch::Search quietly = &ImproveEstimate);
    ~EstimateScreen() override;

    void EstimateReady(const Estimate& estimate) override;
    std::optional<FillChoices> FirstChoices() const override { return firstChoices_; }
    void NoEstimate() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

  protected:
    std::string_view GuidePage() const override;
    void OnCloseByFrame() override;
    void OnUncover() override;
    QWidget* FirstFocus() override;
    void OnBodyRoom() override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void Build();
    QHBoxLayout* BuildTitle();
    void ShowProjectName();
    void ShowUnitsWarning();
    QHBoxLayout* BuildPictureAndButtons();
    QHBoxLayout* BuildStatus();
    QVBoxLayout* BuildButtons();
    void BuildFileMenus();
    void AddToMenu(QMenu& menu, const char* name, std::string_view caption,
                   std::function<void()> save);
    void Connect();
    void ConnectKeys();
    std::array<QPushButton*, 8> Buttons() const;
    void TellNoData();
    void PlacePanels();
    void OpenPanel();
    void ClosePanel();
    void EnableButtons();
    void EnableImprove();
    void FocusResult();
    void OfferViews();
    void SwitchView();

    const Project& OpenedProject() const { return Shared().Project.Now; }
    Units ShownUnits() const { return Shared().Project.Shown; }

    void ShowDrawing(Drawing drawing, bool fromStart);
    void OfferDrawing();
    void AcceptChoices();
    void ChooseLast();
    void KeepChoices(const Estimate& estimate);
    void Begin(const EstimateRequest& request);
    void RedrawLayout();
    void ShowEstimate(const Estimate& estimate);
    void Restore(ShownEstimate shown);
    ShownEstimate ShownNow() const;
    void ForgetImprovements();
    void OfferShorter(const Estimate& estimate, const Estimate& better);
    bool OffersShorter() const;
    void ShowOffer();
    void ImproveLayout();
    void SearchLong();
    void OfferKept(const ImproveResult& result);
    void DropKept();
    void TakeKept();
    void LeaveKept();
    void TakeImprovement(const Estimate& better);
    void UndoImprovement();
    void RedoImprovement();
    void Escape();
    bool PasteCutList(Double x, Double y);
    void SetPasting(bool pasting);
    void SaveRooms();
    void Leave();

    bool fromMenu_;
    bool pasting_ = false;                    ///< the next press on the picture pastes the cut list
    std::optional<Estimate> estimate_;        ///< the one that is shown
    EstimateChoices accepted_;                ///< at the last OK
    std::optional<FillChoices> firstChoices_; ///< of the options that it opens
    EstimateHistory history_;
    /// A shorter layout, as long as the estimate that it is of is shown.
    struct ShorterLayout {
        Estimate Of;
        Estimate Better;
        std::string By; ///< see ShorterText
    };
    std::optional<ShorterLayout> shorter_;
    std::optional<Estimate> kept_; ///< offered by the panel, instead of the one shown
    bool takesShorter_ = false;    ///< IMPROVE offered it when it was pressed
    QuietSearch quiet_;
    ImproveButtons* improveButtons_ = nullptr;
    ChoicePanel* panel_ = nullptr;
    std::unique_ptr<ResultViews> views_;
    PictureBox* picture_ = nullptr; ///< one of the views
    ImprovePanel* improvePanel_ = nullptr;
    QMenu* pictureMenu_ = nullptr;
    QLabel* title_ = nullptr;
    QLabel* unitsWarning_ = nullptr;
    QLabel* projectName_ = nullptr;
    QLabel* zoomHint_ = nullptr;
    QPushButton* openPanel_ = nullptr;
    QPushButton* improve_ = nullptr;
    QPushButton* order_ = nullptr;
    QPushButton* paste_ = nullptr;
    QPushButton* redraw_ = nullptr;
    QPushButton* print_ = nullptr;
    QPushButton* save_ = nullptr;
    QPushButton* switchView_ = nullptr;
    QPushButton* back_ = nullptr;
};

} // namespace tarn
