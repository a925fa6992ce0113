#include "app/MenuForm.h"

#include "app/Arrangement.h"
#include "app/Controls.h"
#include "app/Display.h"
#include "app/MenuLoad.h"
#include "app/Theme.h"

#include <QAction>
#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace tarn {

namespace {

constexpr double PanelWidth = 5700; // twips

enum Command { EnterEditData, Backward, EstimateCarpet };

} // namespace

MenuForm::MenuForm(Session& session, MenuEntry entry)
    : TitledScreen(session, QStringLiteral("MenuForm"), "*SOLVANE OPTIONS*") {
    BuildPanel();
    BuildExit();
    const MenuLoad load = LoadMenu(State(), Shared().Project, entry);
    notSaved_->setVisible(load.Unsaved);
    command1_[EstimateCarpet]->setVisible(Shared().Project.EstimateVisible);
    for (const Command command : {EnterEditData, EstimateCarpet}) {
        command1_[command]->setEnabled(Shared().Project.Usable);
    }
    check1_->setChecked(State().IsMetric());
    ShowUnits();
    if (!load.Message.empty()) {
        // When this screen is in front: the box is about it.
        Later([this, message = load.Message] { Shared().Boxes.Message(message); });
    }
}

void MenuForm::BuildPanel() {
    auto* frame1 = new QFrame;
    frame1->setObjectName(QStringLiteral("Frame1"));
    SetPanel(*frame1);
    frame1->setMinimumWidth(Pixels(PanelWidth));

    auto* heading = NewLabel(frame1, QStringLiteral("Label1"), "OPERATION MENU");
    SetRole(*heading, TextRole::Heading);
    heading->setAlignment(Qt::AlignCenter);
    frame1->setAccessibleName(heading->text());
    notSaved_ = NewLabel(frame1, QStringLiteral("NotSaved"), "NOT SAVED");
    SetRole(*notSaved_, TextRole::Warning);
    notSaved_->setAlignment(Qt::AlignCenter);

    check1_ = new QCheckBox(frame1);
    check1_->setObjectName(QStringLiteral("Check1"));
    SetCaption(*check1_, "Metric", 'M');
    connect(check1_, &QCheckBox::toggled, this, [this](bool ticked) {
        Guard("The units could not be changed.", [&] {
            State().MetricFlag = ticked ? 1 : 0;
            ShowUnits();
        });
    });
    enteredMetric_ = NewLabel(frame1, QStringLiteral("EnteredMetric"), "ENTERED IN METRIC");
    SetRole(*enteredMetric_, TextRole::Warning);
    auto* units = new QHBoxLayout;
    units->addWidget(check1_);
    units->addWidget(enteredMetric_);
    units->addStretch();

    const auto newCommand = [&](Command index, std::string_view caption, char mnemonic) {
        command1_[index] = NewButton(frame1, IndexedName("Command1", index), caption, mnemonic);
    };
    newCommand(EnterEditData, "ENTER/EDIT DATA", 'D');
    newCommand(Backward, "BACKWARD", 'B');
    newCommand(EstimateCarpet, "ESTIMATE", 'E');
    SetPrimary(*command1_[EnterEditData]);
    OnClick(*command1_[EnterEditData], "The rooms could not be opened.", [this] { EnterData(); });
    OnClick(*command1_[Backward], "The projects could not be shown.", [this] { GoBack(); });
    OnClick(*command1_[EstimateCarpet], "The estimate could not be opened.",
            [this] { Estimate(); });

    auto* layout = new QVBoxLayout(frame1);
    SetSpacing(*layout, Metrics::Margin);
    layout->addWidget(heading);
    layout->addWidget(notSaved_);
    layout->addLayout(units);
    layout->addWidget(command1_[EnterEditData]);
    layout->addWidget(command1_[EstimateCarpet]);
    layout->addWidget(command1_[Backward]);
    AddPanel(*frame1);

    SetTabOrders(
        {check1_, command1_[EnterEditData], command1_[EstimateCarpet], command1_[Backward]});
}

void MenuForm::BuildExit() {
    QAction* exit = Menus().addAction(QStringLiteral("E&xit"));
    exit->setObjectName(QStringLiteral("EXmnu"));
    connect(exit, &QAction::triggered, this,
            [this] { Guard("The program could not be ended.", [this] { Shared().Go.End(); }); });
}

void MenuForm::ShowUnits() {
    enteredMetric_->setVisible(!State().IsMetric() && IsInMetric(State(), Shared().Project));
}

QWidget* MenuForm::FirstFocus() {
    return Shared().Project.Usable ? command1_[EnterEditData] : command1_[Backward];
}

void MenuForm::EnterData() {
    TakeSheetNumber(State(), Shared().Project);
    Shared().Go.ShowRooms();
}

void MenuForm::GoBack() {
    Shared().Go.ShowProjects(); // which drops the rooms
}

void MenuForm::Estimate() {
    Shared().Engine.PieceCount = 0;
    State().ECutCount = 0;
    if (LoadData(State())) {
        Shared().Go.ShowEstimate(true);
    }
}

void MenuForm::OnCloseByFrame() {
    Shared().Go.End();
}

} // namespace tarn
