#include "screens/rooms/RoomScreen.h"

#include "base/RunTimeError.h"
#include "files/OutputFile.h"
#include "files/ReportSvg.h"
#include "files/ShortDate.h"
#include "paper/PdfFile.h"
#include "project/Report.h"
#include "screens/Arrangement.h"
#include "screens/ControlNames.h"
#include "screens/Controls.h"
#include "screens/Display.h"
#include "screens/Printing.h"
#include "screens/SaveAs.h"
#include "screens/Theme.h"
#include "screens/rooms/ReportFrame.h"
#include "screens/rooms/RoomEntryFrame.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>

#include <utility>
#include <vector>

namespace tarn {

namespace {

constexpr const char* NotStored = "The room could not be stored.";
constexpr const char* ReportNotSaved = "The report could not be saved.";
constexpr const char* NotClosed = "The screen could not be closed.";

constexpr const char* DeleteQuestion = "Really want to delete current data?";
constexpr const char* NothingToEstimateMessage =
    "There is no data to estimate. Please fill in the room information before estimating.";

std::string Date(const QDate& date) {
    return ShortDate(date.year(), date.month(), date.day());
}

QAction* AddItem(QMenu& menu, const char* name, const char* text) {
    QAction* item = menu.addAction(QString::fromLatin1(text));
    item->setObjectName(name);
    return item;
}

} // namespace

RoomScreen::RoomScreen(Session& session)
    : TitledScreen(session, Controls::roomScreen, "*EDIT DATA*")
    , entry_(new RoomEntryFrame(session.Project.Now.Name, session.Project.Shown, session.Boxes))
    , report_(new ReportFrame)
    , current_(session.Project.Now.Rooms.size()) {
    MakeMenu();
    AddPanel(*entry_);
    AddPanel(*report_, PanelSize::Filling);
    MakeButtonsBelow();
    SetTabOrder();
    ConnectButtons();
    ShowRoom(current_);
}

void RoomScreen::MakeMenu() {
    QMenu* menu = Menus().addMenu(QStringLiteral("&File"));
    menu->setObjectName(Controls::fileMenu);
    const QAction* save = AddItem(*menu, Controls::fileSave, "&Save");
    menu->addSeparator()->setObjectName(Controls::fileSeparator);
    const QAction* close = AddItem(*menu, Controls::fileClose, "&Close");
    connect(save, &QAction::triggered, this, [this] { Save(); });
    connect(close, &QAction::triggered, this, [this] { Guard(NotClosed, [this] { Leave(); }); });
}

void RoomScreen::MakeButtonsBelow() {
    below_ = new QWidget;
    back_ = NewButton(below_, Controls::leaveRooms, "BACK", 'B');
    save_ = NewButton(below_, Controls::saveRooms, "SAVE", 'S');
    auto* row = new QHBoxLayout(below_);
    SetSpacing(*row, 0, Metrics::Margin);
    for (QPushButton* button : {back_, save_}) {
        button->setMinimumWidth(Pixels(Metrics::ButtonWidth));
        row->addWidget(button);
    }
    SetBelow(*below_);
}

void RoomScreen::SetTabOrder() {
    std::vector<QWidget*> order;
    for (int i = 0; i < RoomEntryFrame::Texts; ++i) {
        if (i == RoomEntryFrame::SizeTexts) {
            order.push_back(&entry_->Covering());
        }
        order.push_back(&entry_->Text(i));
    }
    order.insert(order.end(), {&entry_->Next(), &entry_->Previous(), &entry_->Delete(),
                               &entry_->Estimate(), &entry_->Report(), back_, save_,
                               &report_->View(), &report_->Print(), &report_->Close()});
    SetTabOrders(order);
}

void RoomScreen::OnCommand(QPushButton& button, const std::string& failure,
                           std::function<void()> body) {
    connect(&button, &QPushButton::clicked, this,
            [this, failure, body = std::move(body)] { RunCommand(failure, body); });
}

void RoomScreen::ConnectButtons() {
    OnCommand(entry_->Next(), NotStored, [this] { ShowNext(); });
    OnCommand(entry_->Previous(), NotStored, [this] { ShowPrevious(); });
    OnCommand(entry_->Delete(), "The room could not be deleted.", [this] { AskAndDelete(); });
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

void RoomScreen::OnUncover() {
    FirstFocus()->setFocus();
}

QWidget* RoomScreen::FirstFocus() {
    return &entry_->Text(RoomEntryFrame::WidthMajor);
}

void RoomScreen::RunCommand(const std::string& failure, const std::function<void()>& body) {
    if (!Guard(failure, body)) {
        FirstFocus()->setFocus();
    }
}

void RoomScreen::ShowRoom(std::size_t room) {
    const OpenProject& project = Shared().Project;
    if (room == project.Now.Rooms.size()) {
        entry_->ShowNewRoom();
    } else {
        entry_->Show(DraftOf(project.Now.Rooms.at(room), project.Shown));
    }
    entry_->SetItemNumber(room + 1);
}

StoreResult RoomScreen::StoreShownRoom() {
    OpenProject& project = Shared().Project;
    const StoreResult result = StoreRoom(project.Now, project.Shown, current_, entry_->Draft());
    if (!result.Message().empty()) {
        Shared().Boxes.Message(std::string(result.Message()));
    }
    if (result.What == StoreResult::Outcome::WrongSize) {
        entry_->Text(static_cast<int>(result.Wrong)).setFocus();
    }
    return result;
}

StoreResult RoomScreen::WithRoomStored(const std::function<void()>& action) {
    Project before = Shared().Project.Now;
    const StoreResult result = StoreShownRoom();
    if (result.Stops()) {
        return result;
    }
    try {
        action();
    } catch (...) {
        Shared().Project.Now = std::move(before);
        throw;
    }
    return result;
}

void RoomScreen::FocusAfter(const StoreResult& result) {
    if (result.What != StoreResult::Outcome::WrongSize) {
        FirstFocus()->setFocus();
    }
}

void RoomScreen::ShowNext() {
    const StoreResult result = StoreShownRoom();
    if (result.IsStored()) {
        ShowRoom(current_ + 1);
        ++current_;
    }
    FocusAfter(result);
}

void RoomScreen::ShowPrevious() {
    if (current_ < 1) {
        FirstFocus()->setFocus();
        return;
    }
    const StoreResult result = StoreShownRoom();
    if (!result.Stops()) {
        ShowRoom(current_ - 1);
        --current_;
    }
    FocusAfter(result);
}

void RoomScreen::AskAndDelete() {
    if (Shared().Boxes.AskYesNo(DeleteQuestion)) {
        DeleteRoom(Shared().Project.Now, current_);
        ShowRoom(current_);
        FirstFocus()->setFocus();
    }
}

void RoomScreen::Save() {
    RunCommand(std::string(NotSavedMessage), [this] { SaveAll(); });
}

void RoomScreen::SaveAll() {
    std::string message(SavedMessage);
    std::string emptyRooms;
    const StoreResult result = WithRoomStored([&] {
        try {
            emptyRooms = SaveAndNameEmptyRooms(Shared().Project, Shared().Store);
        } catch (const DatabaseError& error) { // the room stays in memory
            message = std::string(NotSavedMessage) + " " + error.what();
        }
    });
    if (!result.Stops()) {
        Shared().Boxes.Message(message, emptyRooms);
    }
    FocusAfter(result);
}

void RoomScreen::Estimate() {
    WithRoomStored([this] {
        if (Shared().Project.Now.Rooms.empty()) {
            Shared().Boxes.Message(NothingToEstimateMessage);
        } else {
            Shared().Go.ShowEstimate(false);
        }
    });
}

void RoomScreen::ShowReport() {
    WithRoomStored([this] {
        const OpenProject& project = Shared().Project;
        report_->Show(MakeReport(project.Now, project.Shown, Date(Shared().Today())));
        SetEntryEnabled(false);
        ShowPanel(*report_);
        report_->View().setFocus();
    });
}

void RoomScreen::SetEntryEnabled(bool enabled) {
    below_->setVisible(enabled);
    entry_->setEnabled(enabled);
    Menus().setEnabled(enabled);
}

void RoomScreen::PrintReport() {
    if (Print(Shared().Boxes, [this] { Shared().Paper.PrintReport(report_->Shown()); })) {
        CloseReport();
    }
}

void RoomScreen::SaveReportAsPdf() {
    SaveAs(Shared().Boxes, Shared().Project.Now.Name, "pdf", [this](const std::string& path) {
        WriteReportPdf(report_->Shown(), path, PaperOf(Shared().Page));
    });
}

void RoomScreen::SaveReportAsSvg() {
    SaveAs(Shared().Boxes, Shared().Project.Now.Name, "svg",
           [this](const std::string& path) { WriteOutputFile(path, ReportSvg(report_->Shown())); });
}

void RoomScreen::CloseReport() {
    SetEntryEnabled(true);
    ShowPanel(*entry_);
    FirstFocus()->setFocus();
}

void RoomScreen::Leave() {
    OpenProject& project = Shared().Project;
    try {
        StoreRoom(project.Now, project.Shown, current_, entry_->Draft());
    } catch (const RunTimeError&) {
        // A size that no room can have: the room stays as it was, and nothing is said on leaving.
    }
    Shared().Go.ShowMenu(MenuEntry::Returning);
}

} // namespace tarn
