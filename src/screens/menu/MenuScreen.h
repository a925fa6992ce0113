#pragma once

#include "screens/TitledScreen.h"

#include <cstddef>
#include <vector>

class QCheckBox;
class QHBoxLayout;
class QLabel;
class QMenu;
class QPushButton;

namespace tarn {

/// The operation menu of the current project: the way to its rooms and its estimate, and the
/// switch of the units that everything after it is shown in. Loading it loads the project, and
/// offers the rooms that were typed and not saved.
class MenuScreen : public TitledScreen {
  public:
    MenuScreen(Session& session, MenuEntry entry);

  protected:
    std::string_view GuidePage() const override { return GuidePages::menu; }
    void OnCloseByFrame() override;
    QWidget* FirstFocus() override;

  private:
    void BuildPanel();
    void BuildMenus();
    /// The languages, to choose that of the next start.
    void BuildLanguages();
    QHBoxLayout* BuildUnits(QWidget* panel);
    QHBoxLayout* BuildTakeBack(QWidget* panel);
    /// Show what the open project is: its units, whether it is saved, which drafts it has.
    void ShowProject();
    void ShowUnits();
    void ShowTrouble();
    void OfferDrafts();
    /// Take back the draft of that place among those offered.
    void TakeBack(std::size_t place);
    void EnterRooms();
    void GoBack();
    void Estimate();

    QLabel* notSaved_ = nullptr;
    QLabel* notKept_ = nullptr; ///< why the unsaved rooms are in no draft either
    QLabel* tilesOnly_ = nullptr;
    QCheckBox* metric_ = nullptr;
    QPushButton* enteredIn_ = nullptr; ///< says so, and changes Metric
    QPushButton* takeBack_ = nullptr;
    QPushButton* earlier_ = nullptr;
    QMenu* earlierMenu_ = nullptr;
    std::vector<KeptDraft> offered_;
    QPushButton* enterRooms_ = nullptr;
    QPushButton* estimate_ = nullptr;
    QPushButton* back_ = nullptr;
};

} // namespace tarn
