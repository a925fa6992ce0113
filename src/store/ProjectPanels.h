#pragma once

#include <QFrame>

#include <array>
#include <string>

class QLabel;
class QPushButton;

namespace tarn {

class ChoiceList;
class ProjectBox;

/// The two panels of the project selection, built and laid out; ProjectForm makes them work. At the
/// usual type size neither is higher than MostPanelHeight, twips.
inline constexpr double MostPanelHeight = 5300;

/// Frame1: the current directory and project.
class SettingsPanel : public QFrame {
  public:
    SettingsPanel();

    /// Show the two names; no project when `project` is empty.
    void Show(const std::string& directory, const std::string& project);

    QPushButton* Command2; ///< EXIT
    QPushButton* Command3; ///< SELECT PROJECT
    QPushButton* Command4; ///< without a caption: leads back to SELECT PROJECT

  private:
    std::array<QLabel*, 2> label1_; ///< directory, project
};

/// Frame5: where a project and its directory are chosen and made.
class SelectionPanel : public QFrame {
  public:
    SelectionPanel();

    std::array<ChoiceList*, 2> List1; ///< months, directories
    ChoiceList* List2;                ///< projects
    ProjectBox* Text1;
    QPushButton* Command1; ///< NEW PROJECT
    QPushButton* Command5; ///< DONE
    QPushButton* Command6; ///< EXIT
    QPushButton* Command7; ///< NEW DIRECTORY

  private:
    void MakeControls();
    void LayOut();

    std::array<QLabel*, 3> label2_;
};

} // namespace tarn
