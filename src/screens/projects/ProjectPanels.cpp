#include "screens/projects/ProjectPanels.h"

#include "base/Words.h"
#include "files/QtText.h"
#include "screens/Arrangement.h"
#include "screens/ControlNames.h"
#include "screens/Controls.h"
#include "screens/Display.h"
#include "screens/ElidedLabel.h"
#include "screens/Narrowing.h"
#include "screens/Theme.h"
#include "screens/projects/ChoiceList.h"
#include "screens/projects/ProjectBox.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <utility>

namespace tarn {

namespace {

// Twips.
constexpr double SettingsWidth = 8100;
constexpr double MonthsWidth = 2250;
constexpr double DirectoriesWidth = 3300;
constexpr double ProjectsWidth = 4500;

QPushButton* NewWideButton(QWidget* parent, const char* name, std::string_view caption) {
    QPushButton* button = NewButton(parent, name, caption);
    button->setMinimumWidth(Pixels(Metrics::ButtonWidth));
    return button;
}

QLabel* NewSetting(QGroupBox* parent, const char* name) {
    auto* label = new ElidedLabel(parent);
    label->setObjectName(name);
    SetRole(*label, TextRole::Heading);
    return label;
}

} // namespace

SettingsPanel::SettingsPanel() {
    setObjectName(Controls::settingsPanel);
    SetPanel(*this);
    setMinimumWidth(Pixels(SettingsWidth));
    auto* current = new QGroupBox(this);
    current->setTitle(ToQt(Words(" CURRENT SETTING")));
    NameControl(*current, Controls::currentSetting, current->title());
    directory_ = NewSetting(current, Controls::currentDirectory);
    project_ = NewSetting(current, Controls::currentProject);
    auto* settings = new QVBoxLayout(current);
    settings->setSpacing(Pixels(Metrics::Spacing));
    settings->addWidget(directory_);
    settings->addWidget(project_);
    SelectProject = NewWideButton(this, Controls::selectProject, Words("&SELECT PROJECT"));
    SetPrimary(*SelectProject);
    Exit = NewWideButton(this, Controls::exitProgram, Words("E&XIT"));
    // The free place beside the buttons: a click there brings the focus back to the main one.
    BesideSelectProject = NewButton(this, Controls::besideSelectProject, {});
    BesideSelectProject->setFlat(true);
    BesideSelectProject->setStyleSheet(QStringLiteral("background: transparent; border: none;"));
    BesideSelectProject->setFocusPolicy(Qt::NoFocus);
    BesideSelectProject->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(Pixels(Metrics::Spacing));
    buttons->addWidget(SelectProject);
    buttons->addWidget(BesideSelectProject, 1);
    buttons->addWidget(Exit);
    auto* layout = new QVBoxLayout(this);
    SetSpacing(*layout, Metrics::Margin);
    layout->addWidget(current);
    layout->addLayout(buttons);
    setTabOrder(SelectProject, Exit);
}

void SettingsPanel::Show(const std::string& directory, const std::string& project) {
    SetText(*directory_, Words("DIRECTORY:%1", directory));
    SetText(*project_, project.empty() ? std::string(Words("No Project Selected"))
                                       : Words("PROJECT:%1", project));
}

SelectionPanel::SelectionPanel() {
    setObjectName(Controls::selectionPanel);
    SetPanel(*this);
    setMinimumHeight(Pixels(MostPanelHeight));
    MakeControls();
    LayOut();
    SetRoom(QWIDGETSIZE_MAX);
}

void SelectionPanel::MakeControls() {
    const auto newList = [this](const char* name) {
        auto* list = new ChoiceList(this);
        list->setObjectName(name);
        return list;
    };
    Months = newList(Controls::months);
    Directories = newList(Controls::directories);
    Projects = newList(Controls::projects);
    monthsCaption_ = NewLabelFor(*Months, this, Controls::monthsCaption, Words("&MONTHS"));
    directoriesCaption_ =
        NewLabelFor(*Directories, this, Controls::directoriesCaption, Words("&DIRECTORIES"));
    projectsCaption_ = NewLabelFor(*Projects, this, Controls::projectsCaption, Words("&PROJECTS"));

    Name = new ProjectBox(this);
    NameControl(*Name, Controls::projectBox, ToQt(Words("PROJECT")));

    NewProject = NewWideButton(this, Controls::newProject, Words("&NEW PROJECT"));
    NewDirectory = NewWideButton(this, Controls::newDirectory, Words("NEW DIRECTOR&Y"));
    Done = NewWideButton(this, Controls::acceptProject, Words("D&ONE"));
    SetPrimary(*Done);
    Exit = NewWideButton(this, Controls::closeSelection, Words("&EXIT"));
}

void SelectionPanel::LayOut() {
    buttons_ = new WrappingRow;
    buttons_->Add(*NewProject);
    buttons_->Add(*NewDirectory);
    buttons_->Add(*Done, true);
    buttons_->Add(*Exit);
    auto* layout = new QGridLayout(this);
    SetSpacing(*layout, Metrics::Margin);
    layout->addWidget(monthsCaption_, 0, 0);
    layout->addWidget(directoriesCaption_, 0, 1);
    layout->addWidget(projectsCaption_, 0, 2);
    layout->addWidget(Months, 1, 0, 2, 1);
    layout->addWidget(Directories, 1, 1, 2, 1);
    layout->addWidget(Projects, 1, 2);
    layout->addWidget(Name, 2, 2);
    layout->addLayout(buttons_, 3, 0, 1, 3);
    layout->setRowStretch(1, 1);

    SetTabOrders({Months, Directories, Projects, Name, NewProject, NewDirectory, Done, Exit});
}

/// The lists have what they like, or share what there is alike.
void SelectionPanel::SetRoom(int room) {
    const int inside = room - 2 * Pixels(Metrics::Margin) - 2 * frameWidth();
    buttons_->SetRoom(inside);
    const int forLists = inside - 2 * Pixels(Metrics::Spacing);
    const std::array lists{std::pair(Months, MonthsWidth), std::pair(Directories, DirectoriesWidth),
                           std::pair(Projects, ProjectsWidth)};
    for (const auto& [list, width] : lists) {
        const double share = width / (MonthsWidth + DirectoriesWidth + ProjectsWidth);
        list->setMinimumWidth(std::min(TextPixels(width), static_cast<int>(forLists * share)));
    }
}

} // namespace tarn
