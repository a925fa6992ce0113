// The building of the room entry screen, and what its fields do as they are typed in.

#include "app/Arrangement.h"
#include "app/Controls.h"
#include "app/Display.h"
#include "app/QtText.h"
#include "app/Theme.h"
#include "rooms/ReportFrame.h"
#include "rooms/RoomEntryFrame.h"
#include "rooms/TarnForm.h"
#include "rooms/WallBase.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>

namespace tarn {

namespace {

constexpr const char* NotStored = "The room could not be stored.";
constexpr const char* ReportNotSaved = "The report could not be saved.";
constexpr const char* NotTested = "The text could not be tested.";
constexpr const char* NotClosed = "The screen could not be closed.";

bool IsEnter(const QEvent& event) {
    if (event.type() != QEvent::KeyPress) {
        return false;
    }
    const int key = static_cast<const QKeyEvent&>(event).key();
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

/// `text` without its last character, which may be made of two.
QString WithoutLast(QString text) {
    const bool isPair = text.size() > 1 && text.back().isLowSurrogate();
    text.chop(isPair ? 2 : 1);
    return text;
}

QAction* AddItem(QMenu& menu, int index, const char* text) {
    QAction* item = menu.addAction(QString::fromLatin1(text));
    item->setObjectName(IndexedName("FileMnu", index));
    return item;
}

} // namespace

TarnForm::TarnForm(Session& session)
    : TitledScreen(session, QStringLiteral("TarnForm"), "*EDIT DATA*")
    , entry_(new RoomEntryFrame(session.State.CurProjName, session.State.IsMetric()))
    , report_(new ReportFrame)
    , curRoom_(session.State.ObjNum) {
    MakeMenu();
    AddPanel(*entry_);
    AddPanel(*report_, PanelSize::Filling);
    MakeButtonsBelow();
    SetTabOrder();
    ConnectButtons();
    ConnectFields();
    DispRoomInfo(curRoom_);
}

void TarnForm::MakeMenu() {
    QMenu* menu = Menus().addMenu(QStringLiteral("&File"));
    menu->setObjectName(QStringLiteral("FMnu"));
    const QAction* save = AddItem(*menu, 1, "&Save");
    menu->addSeparator()->setObjectName(IndexedName("FileMnu", 90));
    const QAction* close = AddItem(*menu, 99, "&Close");
    connect(save, &QAction::triggered, this, [this] { Save(); });
    connect(close, &QAction::triggered, this, [this] { Guard(NotClosed, [this] { Leave(); }); });
}

void TarnForm::MakeButtonsBelow() {
    below_ = new QWidget;
    back_ = NewButton(below_, QStringLiteral("Back"), "BACK", 'B');
    save_ = NewButton(below_, IndexedName("Command1", 3), "SAVE", 'S');
    auto* row = new QHBoxLayout(below_);
    SetSpacing(*row, 0, Metrics::Margin);
    for (QPushButton* button : {back_, save_}) {
        button->setMinimumWidth(Pixels(Metrics::ButtonWidth));
        row->addWidget(button);
    }
    SetBelow(*below_);
}

void TarnForm::SetTabOrder() {
    std::vector<QWidget*> order;
    for (int i = 0; i < RoomEntryFrame::Texts; ++i) {
        if (i == RoomEntryFrame::SizeTexts) {
            order.push_back(&entry_->Covering());
        }
        order.push_back(&entry_->Text(i));
    }
    for (int i = 0; i < RoomEntryFrame::Buttons; ++i) {
        order.push_back(&entry_->Button(i));
    }
    order.insert(order.end(), {&entry_->Estimate(), &entry_->Report(), back_, save_,
                               &report_->View(), &report_->Print(), &report_->Close()});
    SetTabOrders(order);
}

void TarnForm::OnCommand(QPushButton& button, const std::string& failure,
                         std::function<void()> body) {
    connect(&button, &QPushButton::clicked, this,
            [this, failure, body = std::move(body)] { RunCommand(failure, body); });
}

void TarnForm::ConnectButtons() {
    OnCommand(entry_->Button(RoomEntryFrame::Next), NotStored, [this] { ShowNext(); });
    OnCommand(entry_->Button(RoomEntryFrame::Previous), NotStored, [this] { ShowPrevious(); });
    OnCommand(entry_->Button(RoomEntryFrame::Delete), "The room could not be deleted.",
              [this] { AskAndDelete(); });
    connect(save_, &QPushButton::clicked, this, [this] { Save(); });
    OnClick(entry_->Estimate(), "The estimate could not be opened.", [this] { Estimate(); });
    OnClick(entry_->Report(), "The report could not be made.", [this] { ShowReport(); });
    OnClick(*back_, NotClosed, [this] { Leave(); });
    OnClick(report_->Print(), "The report could not be printed.", [this] { PrintReport(); });
    connect(&report_->SaveAsPdf(), &QAction::triggered, this,
            [this] { Guard(ReportNotSaved, [this] { SaveReportAsPdf(); }); });
    connect(&report_->SaveAsSvg(), &QAction::triggered, this,
            [this] { Guard(ReportNotSaved, [this] { SaveReportAsSvg(); }); });
    OnClick(report_->Close(), "The report could not be closed.", [this] { CloseReport(); });
}

void TarnForm::ConnectFields() {
    for (int i = 0; i < RoomEntryFrame::Texts; ++i) {
        entry_->Text(i).installEventFilter(this);
    }
    entry_->Covering().installEventFilter(this);
    for (int i = 0; i < RoomEntryFrame::SizeTexts; ++i) {
        QLineEdit& field = entry_->Text(i);
        connect(&field, &QLineEdit::textChanged, this, [this, &field] { TestSize(field); });
    }
    connect(&entry_->Text(RoomEntryFrame::Base), &QLineEdit::textChanged, this,
            [this] { Guard(NotTested, [this] { TestTypedBase(); }); });
}

bool TarnForm::eventFilter(QObject* watched, QEvent* event) {
    const auto text = entry_->IndexOf(watched);
    QComboBox& covering = entry_->Covering();
    if (!text && watched != &covering) {
        return TitledScreen::eventFilter(watched, event);
    }
    if (IsEnter(*event)) {
        Guard(NotTested, [&] { EnterFrom(*watched); });
        return true;
    }
    if (event->type() == QEvent::FocusOut && text && *text < RoomEntryFrame::SizeTexts) {
        TestSize(entry_->Text(*text));
    }
    if (event->type() == QEvent::Wheel && watched == &covering && !covering.hasFocus()) {
        event->ignore(); // a turn of the wheel in passing must not change the covering
        return true;
    }
    return false;
}

void TarnForm::EnterFrom(const QObject& field) {
    const auto text = entry_->IndexOf(&field);
    if (!text) {
        entry_->Text(RoomEntryFrame::Base).setFocus();
    } else if (*text == RoomEntryFrame::LengthMinor) {
        entry_->Covering().setFocus();
    } else if (*text == RoomEntryFrame::Remark) {
        entry_->Button(RoomEntryFrame::Next).setFocus();
    } else {
        entry_->Text(*text + 1).setFocus();
    }
    if (text && *text == RoomEntryFrame::Base) {
        TestEnteredBase();
    }
}

void TarnForm::TestSize(QLineEdit& field) {
    Guard(NotTested, [&field] {
        if (IsEmptiedSizeText(FromQt(field.text()), field.hasFocus())) {
            field.clear();
        }
    });
}

void TarnForm::TestTypedBase() {
    EntryField& field = entry_->Text(RoomEntryFrame::Base);
    std::string copy = FromQt(field.text());
    if (CheckBaseStr(copy)) {
        return;
    }
    Shared().Boxes.Message(BaseMessage(TypedBaseExample));
    field.setFocus();
    field.ReplaceLastChange(WithoutLast(field.text())); // a change, and so tested again
}

void TarnForm::TestEnteredBase() {
    EntryField& field = entry_->Text(RoomEntryFrame::Base);
    std::string text = FromQt(field.text());
    if (CheckBaseStr(text)) {
        field.Replace(ToQt(text));
    } else {
        Shared().Boxes.Message(BaseMessage(EnteredBaseExample));
        field.setFocus();
    }
}

} // namespace tarn
