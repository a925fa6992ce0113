// The two panels of the project selection: what is set, and where it is chosen.

#pragma once

#include <QFrame>

#include <string>

class QLabel;
class QPushButton;

namespace tarn {

class ChoiceList;
class ProjectBox;
class WrappingRow;

/// The two panels of the project selection, built and laid out; ProjectScreen makes them work. At
/// the usual type size neither is higher than MostPanelHeight, twips.
inline constexpr double MostPanelHeight = 5300;

/// The current directory and project.
class SettingsPanel : public QFrame {
  public:
    SettingsPanel();

    /// Show the two names; no project when `project` is empty.
    void Show(const std::string& directory, const std::string& project);

    QPushButton* SelectProject;
    QPushButton* BesideSelectProject; ///< without a caption: leads back to SELECT PROJECT
    QPushButton* Exit;

  private:
    QLabel* directory_;
    QLabel* project_;
};

/// Where a project and its directory are chosen and made.
class SelectionPanel : public QFrame {
  public:
    SelectionPanel();

    /// Make do with a width, pixels: narrower lists, buttons on further rows.
    void SetRoom(int room);

    ChoiceList* Months;
    ChoiceList* Directories;
    ChoiceList* Projects;
    ProjectBox* Name; ///< of the project chosen or made
    QPushButton* NewProject;
    QPushButton* NewDirectory;
    QPushButton* Done;
    QPushButton* Exit;

  private:
    void MakeControls();
    void LayOut();

    WrappingRow* buttons_;
    QLabel* monthsCaption_;
    QLabel* directoriesCaption_;
    QLabel* projectsCaption_;
};

} // namespace tarn
