#include "screens/menu/MenuScreen.h"

#include "screens/Arrangement.h"
#include "screens/ControlNames.h"
#include "screens/Controls.h"
#include "screens/Display.h"
#include "screens/Theme.h"
#include "screens/menu/MenuLoad.h"

#include <QAction>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace tarn {

namespace {

constexpr double PanelWidth = 5700; // twips

} // namespace

MenuScreen::MenuScreen(Session& session, MenuEntry entry)
    : TitledScreen(session, Controls::menuScreen, "*SOLVANE OPTIONS*") {
    BuildPanel();
    BuildExit();
    OpenProject& project = Shared().Project;
    const MenuLoad load = LoadMenu(project, Shared().Store, entry);
    notSaved_->setVisible(load.Unsaved);
    estimate_->setVisible(project.OffersEstimate);
    for (QPushButton* button : {enterRooms_, estimate_}) {
        button->setEnabled(project.IsUsable);
    }
    metric_->setChecked(project.Shown == Units::Metric);
    ShowUnits();
    if (!load.Message.empty()) {
        // When this screen is in front: the box is about it.
        Later([this, message = load.Message] { Shared().Boxes.Message(message); });
    }
}

void MenuScreen::BuildPanel() {
    auto* panel = new QFrame;
    panel->setObjectName(Controls::menuPanel);
    SetPanel(*panel);
    panel->setMinimumWidth(Pixels(PanelWidth));

    auto* heading = NewLabel(panel, Controls::menuHeading, "OPERATION MENU");
    SetRole(*heading, TextRole::Heading);
    heading->setAlignment(Qt::AlignCenter);
    panel->setAccessibleName(heading->text());
    notSaved_ = NewLabel(panel, Controls::notSaved, "NOT SAVED");
    SetRole(*notSaved_, TextRole::Warning);
    notSaved_->setAlignment(Qt::AlignCenter);

    metric_ = new QCheckBox(panel);
    metric_->setObjectName(Controls::metric);
    SetCaption(*metric_, "Metric", 'M');
    connect(metric_, &QCheckBox::toggled, this, [this](bool ticked) {
        Guard("The units could not be changed.", [&] {
            Shared().Project.Shown = ticked ? Units::Metric : Units::Imperial;
            ShowUnits();
        });
    });
    enteredInMetric_ = NewLabel(panel, Controls::enteredInMetric, "ENTERED IN METRIC");
    SetRole(*enteredInMetric_, TextRole::Warning);
    auto* units = new QHBoxLayout;
    units->addWidget(metric_);
    units->addWidget(enteredInMetric_);
    units->addStretch();

    enterRooms_ = NewButton(panel, Controls::enterRooms, "ENTER/EDIT DATA", 'D');
    back_ = NewButton(panel, Controls::backToProjects, "BACKWARD", 'B');
    estimate_ = NewButton(panel, Controls::estimateFromMenu, "ESTIMATE", 'E');
    SetPrimary(*enterRooms_);
    OnClick(*enterRooms_, "The rooms could not be opened.", [this] { EnterRooms(); });
    OnClick(*back_, "The projects could not be shown.", [this] { GoBack(); });
    OnClick(*estimate_, "The estimate could not be opened.", [this] { Estimate(); });

    auto* layout = new QVBoxLayout(panel);
    SetSpacing(*layout, Metrics::Margin);
    layout->addWidget(heading);
    layout->addWidget(notSaved_);
    layout->addLayout(units);
    layout->addWidget(enterRooms_);
    layout->addWidget(estimate_);
    layout->addWidget(back_);
    AddPanel(*panel);

    SetTabOrders({metric_, enterRooms_, estimate_, back_});
}

void MenuScreen::BuildExit() {
    QAction* exit = Menus().addAction(QStringLiteral("E&xit"));
    exit->setObjectName(Controls::exitFromMenu);
    connect(exit, &QAction::triggered, this,
            [this] { Guard("The program could not be ended.", [this] { Shared().Go.End(); }); });
}

void MenuScreen::ShowUnits() {
    const OpenProject& project = Shared().Project;
    enteredInMetric_->setVisible(project.Shown == Units::Imperial && project.IsInMetric());
}

QWidget* MenuScreen::FirstFocus() {
    return Shared().Project.IsUsable ? enterRooms_ : back_;
}

void MenuScreen::EnterRooms() {
    TakeSheetNumber(Shared().Project, Shared().Store);
    Shared().Go.ShowRooms();
}

void MenuScreen::GoBack() {
    Shared().Go.ShowProjects(); // which drops the rooms
}

void MenuScreen::Estimate() {
    if (HasCarpetRoom(Shared().Project.Now)) {
        Shared().Go.ShowEstimate(true);
    }
}

void MenuScreen::OnCloseByFrame() {
    Shared().Go.End();
}

} // namespace tarn
