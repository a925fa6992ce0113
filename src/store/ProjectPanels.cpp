#include "store/ProjectPanels.h"

#include "app/Arrangement.h"
#include "app/Controls.h"
#include "app/Display.h"
#include "app/ElidedLabel.h"
#include "app/Theme.h"
#include "store/ChoiceList.h"
#include "store/ProjectBox.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace tarn {

namespace {

// Twips.
constexpr double SettingsWidth = 8100;
constexpr double MonthsWidth = 2250;
constexpr double DirectoriesWidth = 3300;
constexpr double ProjectsWidth = 4500;

QPushButton* NewNamedButton(QWidget* parent, const char* name, std::string_view caption,
                            char mnemonic) {
    QPushButton* button = NewButton(parent, QString::fromLatin1(name), caption, mnemonic);
    button->setMinimumWidth(Pixels(Metrics::ButtonWidth));
    return button;
}

} // namespace

SettingsPanel::SettingsPanel() {
    setObjectName(QStringLiteral("Frame1"));
    SetPanel(*this);
    setMinimumWidth(Pixels(SettingsWidth));
    auto* frame3 = new QGroupBox(this);
    frame3->setTitle(QStringLiteral(" CURRENT SETTING"));
    NameControl(*frame3, QStringLiteral("Frame3"), frame3->title());
    auto* settings = new QVBoxLayout(frame3);
    settings->setSpacing(Pixels(Metrics::Spacing));
    for (int i = 0; i < 2; ++i) {
        auto* label = new ElidedLabel(frame3);
        label->setObjectName(IndexedName("Label1", i));
        SetRole(*label, TextRole::Heading);
        settings->addWidget(label);
        label1_[static_cast<std::size_t>(i)] = label;
    }
    Command3 = NewNamedButton(this, "Command3", "SELECT PROJECT", 'S');
    SetPrimary(*Command3);
    Command2 = NewNamedButton(this, "Command2", "EXIT", 'X');
    // The free place beside the buttons: a click there brings the focus back to the main one.
    Command4 = NewButton(this, QStringLiteral("Command4"), {});
    Command4->setFlat(true);
    Command4->setStyleSheet(QStringLiteral("background: transparent; border: none;"));
    Command4->setFocusPolicy(Qt::NoFocus);
    Command4->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(Pixels(Metrics::Spacing));
    buttons->addWidget(Command3);
    buttons->addWidget(Command4, 1);
    buttons->addWidget(Command2);
    auto* layout = new QVBoxLayout(this);
    SetSpacing(*layout, Metrics::Margin);
    layout->addWidget(frame3);
    layout->addLayout(buttons);
    setTabOrder(Command3, Command2);
}

void SettingsPanel::Show(const std::string& directory, const std::string& project) {
    SetText(*label1_[0], "DIRECTORY:" + directory);
    SetText(*label1_[1], project.empty() ? "No Project Selected" : "PROJECT:" + project);
}

SelectionPanel::SelectionPanel() {
    setObjectName(QStringLiteral("Frame5"));
    SetPanel(*this);
    setMinimumHeight(Pixels(MostPanelHeight));
    MakeControls();
    LayOut();
}

void SelectionPanel::MakeControls() {
    const auto newList = [this](const QString& name, double width) {
        auto* list = new ChoiceList(this);
        list->setObjectName(name);
        list->setMinimumWidth(Pixels(width));
        return list;
    };
    List1[0] = newList(IndexedName("List1", 0), MonthsWidth);
    List1[1] = newList(IndexedName("List1", 1), DirectoriesWidth);
    List2 = newList(QStringLiteral("List2"), ProjectsWidth);
    label2_[0] = NewLabelFor(*List1[0], this, IndexedName("Label2", 0), "MONTHS", 'M');
    label2_[1] = NewLabelFor(*List1[1], this, IndexedName("Label2", 1), "DIRECTORIES", 'D');
    label2_[2] = NewLabelFor(*List2, this, IndexedName("Label2", 2), "PROJECTS", 'P');

    Text1 = new ProjectBox(this);
    NameControl(*Text1, QStringLiteral("Text1"), QStringLiteral("PROJECT"));

    Command1 = NewNamedButton(this, "Command1", "NEW PROJECT", 'N');
    Command7 = NewNamedButton(this, "Command7", "NEW DIRECTORY", 'Y');
    Command5 = NewNamedButton(this, "Command5", "DONE", 'O');
    SetPrimary(*Command5);
    Command6 = NewNamedButton(this, "Command6", "EXIT", 'E');
}

void SelectionPanel::LayOut() {
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(Pixels(Metrics::Spacing));
    for (QPushButton* button : {Command1, Command7, Command5, Command6}) {
        if (button == Command5) {
            buttons->addStretch();
        }
        buttons->addWidget(button);
    }
    auto* layout = new QGridLayout(this);
    SetSpacing(*layout, Metrics::Margin);
    for (int column = 0; column < 3; ++column) {
        layout->addWidget(label2_[static_cast<std::size_t>(column)], 0, column);
    }
    layout->addWidget(List1[0], 1, 0, 2, 1);
    layout->addWidget(List1[1], 1, 1, 2, 1);
    layout->addWidget(List2, 1, 2);
    layout->addWidget(Text1, 2, 2);
    layout->addLayout(buttons, 3, 0, 1, 3);
    layout->setRowStretch(1, 1);

    SetTabOrders({List1[0], List1[1], List2, Text1, Command1, Command7, Command5, Command6});
}

} // namespace tarn
