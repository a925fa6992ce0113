#include "screens/rooms/RoomScreen.h"

#include "base/RunTimeError.h"
#include "base/Text.h"
#include "files/OutputFile.h"
#include "files/QtText.h"
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
#include "screens/SaveProject.h"
#include "screens/Theme.h"
#include "screens/rooms/ReportFrame.h"
#include "screens/rooms/RoomEntryFrame.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>

#include <optional>
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
    , current_(FirstRoom(session.Project)) {
    MakeMenu();
    AddPanel(*entry_);
    AddPanel(*report_, PanelSize::Filling);
    MakeButtonsBelow();
    SetTabOrder();
    ConnectButtons();
    session.Project.Typed = InUnits(std::move(session.Project.Typed), session.Project.Shown);
    ShowRoom(current_);
    ConnectTyping();
    ShowUnitsWarning();
    ShowTrouble();
    session.Drafts.OnTrouble(*this, [this] { ShowTrouble(); });
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

std::string_view RoomScreen::GuidePage() const {
    return report_->isHidden() ? GuidePages::rooms : GuidePages::report;
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

std::size_t RoomScreen::FirstRoom(const OpenProject& project) {
    const auto& changed = project.Typed.Changed;
    return changed ? changed->Place : project.Now.Rooms.size();
}

void RoomScreen::ShowRoom(std::size_t room) {
    const OpenProject& project = Shared().Project;
    showing_ = true;
    if (room == project.Now.Rooms.size()) {
        entry_->ShowNewRoom();
        untouched_ = entry_->Draft();
        if (project.Typed.New) {
            entry_->Show(*project.Typed.New);
        }
    } else {
        entry_->Show(DraftOf(project.Now.Rooms.at(room), project.Shown));
        untouched_ = entry_->Draft();
        if (const auto& changed = project.Typed.Changed; changed && changed->Place == room) {
            entry_->Show(changed->Texts);
        }
    }
    showing_ = false;
    entry_->SetItemNumber(room + 1);
}

void RoomScreen::ConnectTyping() {
    const auto typed = [this] {
        if (!showing_) {
            Guard({}, [this] { KeepTyping(); });
        }
    };
    for (int i = 0; i < RoomEntryFrame::Texts; ++i) {
        connect(&entry_->Text(i), &QLineEdit::textChanged, this, typed);
    }
    connect(&entry_->Covering(), &QComboBox::currentIndexChanged, this, typed);
}

void RoomScreen::KeepTyping() {
    OpenProject& project = Shared().Project;
    const RoomDraft fields = entry_->Draft();
    project.Typed.In = project.Shown;
    project.Typed.Changed.reset();
    if (current_ == project.Now.Rooms.size()) {
        project.Typed.New = IsBlank(fields) ? std::nullopt : std::optional(fields);
    } else if (fields != untouched_) {
        project.Typed.Changed = ChangedRoom{current_, project.Now.Rooms.at(current_), fields};
    }
    Shared().Drafts.NoteChange();
    ShowUnitsWarning();
}

void RoomScreen::ShowUnitsWarning() {
    SetTitleWarning(UnitsWarning(Shared().Project));
}

void RoomScreen::ShowTrouble() {
    const std::string& trouble = Shared().Drafts.Trouble();
    entry_->SetWarning(trouble.empty() ? QString() : ToQt("NOT KEPT: " + trouble));
}

StoreResult RoomScreen::StoreFields() {
    OpenProject& project = Shared().Project;
    entry_->SpreadSizes();
    const RoomDraft fields = entry_->Draft();
    const bool isNew = current_ == project.Now.Rooms.size();
    const StoreResult result = StoreRoom(project.Now, project.Shown, current_, fields);
    if (result.IsStored()) {
        untouched_ = fields;
        if (isNew) {
            project.Typed.New.reset();
        }
    }
    KeepTyping();
    return result;
}

StoreResult RoomScreen::StoreShownRoom() {
    const StoreResult result = StoreFields();
    if (!result.Message().empty()) {
        TellRefusal(result);
    }
    if (result.What == StoreResult::Outcome::WrongSize) {
        entry_->Text(static_cast<int>(result.Wrong)).setFocus();
    }
    return result;
}

/// The box keeps clear of the field that it is about, for that has the focus then.
void RoomScreen::TellRefusal(const StoreResult& result) {
    const QPointer<QWidget> before = focusWidget();
    if (!result.Advice.empty()) {
        entry_->Text(static_cast<int>(result.Wrong)).setFocus();
    }
    Shared().Boxes.Message(std::string(result.Message()), result.Advice);
    if (before) {
        before->setFocus();
    }
}

StoreResult RoomScreen::WithRoomStored(const std::function<void()>& action) {
    Project before = Shared().Project.Now;
    RoomDraft untouched = untouched_;
    const StoreResult result = StoreShownRoom();
    if (result.Stops()) {
        return result;
    }
    try {
        action();
    } catch (...) {
        Shared().Project.Now = std::move(before);
        untouched_ = std::move(untouched);
        KeepTyping();
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
        OpenProject& project = Shared().Project;
        if (current_ == project.Now.Rooms.size()) {
            project.Typed.New.reset();
        }
        project.Typed.Changed.reset();
        DeleteRoom(project.Now, current_);
        ShowRoom(current_);
        KeepTyping();
        FirstFocus()->setFocus();
    }
}

void RoomScreen::Save() {
    RunCommand(std::string(NotSavedMessage), [this] { SaveAll(); });
}

void RoomScreen::SaveAll() {
    std::string message;
    std::optional<std::string> emptyRooms;
    const StoreResult result = WithRoomStored([&] {
        try {
            emptyRooms = SaveOrAsk(Shared());
        } catch (const DatabaseError& error) { // the room stays in memory
            message = std::string(NotSavedMessage) + " " + error.what();
        }
    });
    entry_->SetProject(Shared().Project.Now.Name);
    ShowUnitsWarning();
    if (emptyRooms) {
        Shared().Boxes.Message(std::string(SavedMessage), *emptyRooms);
        TellNotStored();
    } else if (!message.empty()) {
        Shared().Boxes.Message(message);
    }
    FocusAfter(result);
}

void RoomScreen::TellNotStored() {
    const OpenProject& project = Shared().Project;
    if (project.Typed.New) {
        const auto room = static_cast<long long>(project.Now.Rooms.size()) + 1;
        entry_->SetHint(
            ToQt("Room " + TrimStr(room) + " is not stored: it needs a width and a length."));
    }
}

void RoomScreen::Estimate() {
    WithRoomStored([this] {
        if (Shared().Project.Now.Rooms.empty()) {
            Shared().Boxes.Message(NothingToEstimateMessage);
        } else {
            Shared().Drafts.Flush();
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
    try {
        StoreFields();
    } catch (const RunTimeError&) {
        // A size that no room can have: nothing is said on leaving.
    }
    Shared().Drafts.Flush();
    Shared().Go.ShowMenu(MenuEntry::Returning);
}

} // namespace tarn
