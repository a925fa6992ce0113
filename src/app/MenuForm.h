#pragma once

#include "app/TitledScreen.h"

#include <array>

class QCheckBox;
class QLabel;
class QPushButton;

namespace tarn {

/// The operation menu of the current project: the way to its rooms and its estimate, and the
/// switch of the units that everything after it is shown in. Loading it loads the project.
class MenuForm : public TitledScreen {
  public:
    MenuForm(Session& session, MenuEntry entry);

  protected:
    void OnCloseByFrame() override;
    QWidget* FirstFocus() override;

  private:
    void BuildPanel();
    void BuildExit();
    void ShowUnits();
    void EnterData();
    void GoBack();
    void Estimate();

    QLabel* notSaved_ = nullptr;
    QCheckBox* check1_ = nullptr;
    QLabel* enteredMetric_ = nullptr;
    std::array<QPushButton*, 3> command1_{};
};

} // namespace tarn
