#pragma once

#include "screens/TitledScreen.h"

class QCheckBox;
class QLabel;
class QPushButton;

namespace tarn {

/// The operation menu of the current project: the way to its rooms and its estimate, and the
/// switch of the units that everything after it is shown in. Loading it loads the project.
class MenuScreen : public TitledScreen {
  public:
    MenuScreen(Session& session, MenuEntry entry);

  protected:
    void OnCloseByFrame() override;
    QWidget* FirstFocus() override;

  private:
    void BuildPanel();
    void BuildExit();
    void ShowUnits();
    void EnterRooms();
    void GoBack();
    void Estimate();

    QLabel* notSaved_ = nullptr;
    QCheckBox* metric_ = nullptr;
    QLabel* enteredInMetric_ = nullptr;
    QPushButton* enterRooms_ = nullptr;
    QPushButton* estimate_ = nullptr;
    QPushButton* back_ = nullptr;
};

} // namespace tarn
