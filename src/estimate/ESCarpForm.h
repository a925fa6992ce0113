#pragma once

#include "app/Screen.h"
#include "engine/FillsClient.h"
#include "estimate/CarpetEstimate.h"
#include "estimate/ChoicePanel.h"
#include "estimate/PictureBox.h"

#include <array>

class QPushButton;
class QVBoxLayout;

namespace tarn {

/// The carpet estimate: one carpet of the open project at a time is cut, drawn and listed, printed
/// and pasted. Its buttons can be used once the choice panel was closed for the first time; without
/// a carpet room there is only the way back.
class ESCarpForm : public Screen, public FillsClient {
  public:
    /// `fromMenu`: the menu opened it and is shown again when it closes; else the screen below it
    /// is. Rebuilds the rooms' extents and empties the estimate. Raises as BuildAllRoomExtents.
    ESCarpForm(Session& session, bool fromMenu);

    void LayoutReady() override;
    void NoLayout() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

  protected:
    void OnCloseByFrame() override { Leave(); }
    void OnUncover() override;
    QWidget* FirstFocus() override;

  private:
    enum ButtonIndex { Back, Estimate, PasteCut, Print, Save, Redraw, ButtonCount };

    void Build();
    QVBoxLayout* BuildButtons();
    void Connect();
    void PlacePanel();
    void OpenPanel();
    void ClosePanel();
    void EnableButtons();
    void FocusResult();

    void Empty();
    void TakeOk();
    void MakeEstimate();
    void RedrawLayout();
    bool PictureMouseDown(Double x, Double y);
    void SetPasteCuts(bool paste);
    void PrintPic();
    void SendToPrinter();
    void SaveRooms();
    void Leave();

    bool FromMenu;
    bool PasteCuts = false;
    CarpetEstimate estimate_;
    ChoicePanel* panel_ = nullptr;  ///< Frame7
    PictureBox* picture_ = nullptr; ///< Picture1
    QLabel* zoomHint_ = nullptr;
    std::array<QPushButton*, ButtonCount> buttons_{};
};

} // namespace tarn
