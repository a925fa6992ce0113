#pragma once

#include "app/Screen.h"
#include "app/Types.h"
#include "engine/FillsClient.h"
#include "estimate/CarpetEstimate.h"
#include "estimate/ChoicePanel.h"
#include "estimate/EstimatePage.h"
#include "estimate/PictureBox.h"

#include <array>
#include <functional>
#include <string>

class QAction;
class QLabel;
class QMenu;
class QPushButton;
class QVBoxLayout;

namespace tarn {

class ImprovePanel;

/// The carpet estimate: one carpet of the open project at a time is cut, drawn and listed, printed
/// and pasted. Its buttons can be used from the first OK or CANCEL of the choice panel on, whatever
/// comes of it; without a carpet room there is only the way back, once a message has said so.
class ESCarpForm : public Screen, public FillsClient {
  public:
    /// `fromMenu`: the menu opened it and is shown again when it closes; else the screen below it
    /// is. Rebuilds the rooms' extents and empties the estimate. Raises as BuildAllRoomExtents.
    ESCarpForm(Session& session, bool fromMenu);

    void LayoutReady() override;
    void NoLayout() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

  protected:
    void OnCloseByFrame() override;
    void OnUncover() override;
    QWidget* FirstFocus() override;

  private:
    enum ButtonIndex { Back, Estimate, PasteCut, Print, Save, Redraw, Improve, ButtonCount };

    void Build();
    QVBoxLayout* BuildButtons();
    void BuildPictureMenu();
    void Connect();
    void TellNoData();
    void PlacePanel();
    void OpenPanel();
    void ClosePanel();
    void EnableButtons();
    void EnableImprove();
    void FocusResult();

    void Empty();
    void ShowDrawing(Picture drawing, bool fromStart);
    void OfferDrawing();
    void TakeOk();
    void MakeEstimate();
    void RedrawLayout();
    void ImproveLayout();
    bool PictureMouseDown(Double x, Double y);
    void SetPasteCuts(bool paste);
    void PrintPic();
    void AskForPage();
    EstimatePage Page() const;
    void SavePicture(const char* suffix, const std::function<void(const std::string& path)>& write);
    void SaveRooms();
    void Leave();

    bool FromMenu;
    bool PasteCuts = false;
    CarpetEstimate estimate_;
    ChoicePanel* panel_ = nullptr;  ///< Frame7
    PictureBox* picture_ = nullptr; ///< Picture1
    ImprovePanel* improvePanel_ = nullptr;
    QMenu* pictureMenu_ = nullptr;
    QLabel* zoomHint_ = nullptr;
    std::array<QPushButton*, ButtonCount> buttons_{};
};

} // namespace tarn
