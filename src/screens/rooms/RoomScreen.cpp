#include "screens/rooms/RoomScreen.h"

#include "base/RunTimeError.h"
#include "base/Text.h"
#include "base/Words.h"
#include "files/QtText.h"
#include "files/ShortDate.h"
#include "project/Report.h"
#include "project/RoomChange.h"
#include "project/RoomList.h"
#include "screens/Arrangement.h"
#include "screens/ControlNames.h"
#include "screens/Controls.h"
#include "screens/Display.h"
#include "screens/SaveProject.h"
#include "screens/Theme.h"
#include "screens/rooms/ReportFrame.h"
#include "screens/rooms/RoomEntryFrame.h"
#include "screens/rooms/RoomListFrame.h"
#include "screens/rooms/RoomOutput.h"
#include "screens/rooms/RoomPaste.h"
#include "screens/rooms/RoomTable.h"
#include "screens/rooms/RoomTotals.h"
#include "screens/rooms/UndoMenu.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QShortcut>

#include <algorithm>
#include <utility>
#include <vector>

namespace tarn {

namespace {

constexpr auto NotStored = Words("The room could not be stored.");
constexpr auto ReportNotSaved = Words("The report could not be saved.");
constexpr auto NotClosed = Words("The screen could not be closed.");
constexpr auto NotDeleted = Words("The room could not be deleted.");
constexpr auto NotReported = Words("The report could not be made.");
constexpr auto NotPrinted = Words("The report could not be printed.");
constexpr auto NotUndone = Words("The rooms could not be put back.");
constexpr auto NotPasted = Words("The rooms could not be pasted.");
constexpr auto ListNotSaved = Words("The list of the rooms could not be saved.");
constexpr auto NotShown = Words("The rooms could not be shown.");

/// From which width of the window on the list may stand beside the form, twips.
constexpr double WideWindow = 16500;

constexpr auto ShowListCaption = Words("S&HOW LIST");
constexpr auto ShowFormCaption = Words("S&HOW FORM");

constexpr auto DeleteQuestion = Words("Really want to delete current data?");
constexpr auto TypedBeforeHint =
    Words("Typed before for a new room, and not stored. DELETE empties the fields.");
constexpr auto NothingToEstimateMessage =
    Words("There is no data to estimate. Please fill in the room information before estimating.");

std::string Date(const QDate& date) {
    return ShortDate(date.year(), date.month(), date.day());
}

QAction* AddItem(QMenu& menu, const char* name, std::string_view text) {
    QAction* item = menu.addAction(ToQt(text));
    item->setObjectName(name);
    return item;
}

} // namespace

RoomScreen::RoomScreen(Session& session)
    : TitledScreen(session, Controls::roomScreen, Words("*EDIT DATA*"))
    , entry_(new RoomEntryFrame(session.Project.Now.Name, session.Project.Shown, session.Boxes))
    , report_(new ReportFrame)
    , current_(FirstRoom(session.Project)) {
    session.History.Follow();
    MakeMenu();
    AddPanel(*entry_);
    AddPanel(*report_, PanelSize::Filling);
    MakeButtonsBelow();
    list_ = new RoomListFrame(session.Project);
    AddPanel(*list_, PanelSize::Filling);
    MakeKeys();
    SetTabOrder();
    ConnectButtons();
    ConnectList();
    session.Project.Typed = InUnits(std::move(session.Project.Typed), session.Project.Shown);
    ShowRoom(current_);
    ConnectTyping();
    ShowTyped();
    ShowUnitsWarning();
    ShowTrouble();
    session.Drafts.OnTrouble(*this, [this] { ShowTrouble(); });
}

void RoomScreen::MakeMenu() {
    QMenu* menu = Menus().addMenu(ToQt(Words("&File")));
    menu->setObjectName(Controls::fileMenu);
    QAction* save = AddItem(*menu, Controls::fileSave, Words("&Save"));
    save->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_S));
    save->setAutoRepeat(false);
    menu->addSeparator()->setObjectName(Controls::fileSeparator);
    const QAction* close = AddItem(*menu, Controls::fileClose, Words("&Close"));
    connect(save, &QAction::triggered, this, [this] { Save(); });
    connect(close, &QAction::triggered, this, [this] { Guard(NotClosed, [this] { Leave(); }); });
    undo_ = new UndoMenu(
        Menus(), this, [this] { RunCommand(NotUndone, [this] { Undo(); }); },
        [this] { RunCommand(NotUndone, [this] { Redo(); }); });
    for (int i = 0; i < RoomEntryFrame::Texts; ++i) {
        undo_->Attend(entry_->Text(i));
    }
    undo_->Menu().addSeparator();
    const QAction* paste = AddItem(undo_->Menu(), Controls::pasteRooms, PasteRoomsCaption);
    connect(paste, &QAction::triggered, this,
            [this] { RunCommand(NotPasted, [this] { PasteRooms(); }); });
    AddHelpMenu();
}

void RoomScreen::MakeButtonsBelow() {
    below_ = new QWidget;
    back_ = NewButton(below_, Controls::leaveRooms, Words("&BACK"));
    save_ = NewButton(below_, Controls::saveRooms, Words("&SAVE"));
    auto* row = new QHBoxLayout(below_);
    SetSpacing(*row, 0, Metrics::Margin);
    showList_ = NewButton(below_, Controls::showRoomList, ShowListCaption);
    KeepRoom(*showList_);
    IgnoreSecondClick(*showList_);
    showList_->ensurePolished();
    int widest = Pixels(Metrics::ButtonWidth);
    for (const Phrase caption : {ShowFormCaption, ShowListCaption}) {
        SetCaption(*showList_, caption);
        widest = std::max(widest, showList_->sizeHint().width());
    }
    // At the left: nowhere near the buttons of the report.
    for (QPushButton* button : {showList_, back_, save_}) {
        button->setMinimumWidth(button == showList_ ? widest : Pixels(Metrics::ButtonWidth));
        row->addWidget(button);
    }
    balance_ = new QSpacerItem(widest + row->spacing(), 0, QSizePolicy::Fixed);
    row->addItem(balance_);
    balanced_ = balance_->sizeHint().width();
    SetBelow(*below_);
}

void RoomScreen::MakeKeys() {
    const auto add = [this](const QKeySequence& key, Phrase failure, void (RoomScreen::*act)()) {
        auto* shortcut = new QShortcut(key, this);
        shortcut->setAutoRepeat(false);
        connect(shortcut, &QShortcut::activated, this,
                [this, failure, act] { Guard(failure, [this, act] { (this->*act)(); }); });
    };
    add(QKeySequence(Qt::CTRL | Qt::Key_P), NotPrinted, &RoomScreen::PrintShown);
    add(QKeySequence(Qt::Key_F6), NotShown, &RoomScreen::SwitchToOther);
    add(QKeySequence(Qt::Key_Escape), NotShown, &RoomScreen::Escape);
}

void RoomScreen::SetTabOrder() {
    std::vector<QWidget*> order;
    for (int i = 0; i < RoomEntryFrame::Texts; ++i) {
        if (i == RoomEntryFrame::SizeTexts) {
            order.push_back(&entry_->Covering());
        }
        order.push_back(&entry_->Text(i));
    }
    order.insert(order.end(),
                 {&entry_->Next(), &entry_->Previous(), &entry_->Delete(), &entry_->Estimate(),
                  &entry_->Report(), back_, save_, showList_, &list_->Table(), &list_->Totals(),
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
    OnCommand(entry_->Delete(), NotDeleted, [this] { AskAndDelete(); });
    connect(save_, &QPushButton::clicked, this, [this] { Save(); });
    OnClick(entry_->Estimate(), Words("The estimate could not be opened."), [this] { Estimate(); });
    OnClick(entry_->Report(), NotReported, [this] { ShowReport(); });
    OnClick(*back_, NotClosed, [this] { Leave(); });
    OnClick(report_->Print(), NotPrinted, [this] { PrintReport(); });
    report_->OnSave = [this](const ReportFile& file) {
        Guard(ReportNotSaved, [&] { SaveReportAs(Shared(), report_->Shown(), file); });
    };
    OnClick(report_->Close(), Words("The report could not be closed."), [this] { CloseReport(); });
}

void RoomScreen::ConnectList() {
    OnClick(*showList_, NotShown, [this] { SwitchToOther(); });
    list_->Table().OnChosen = [this](std::size_t room) {
        RunCommand(NotStored, [this, room] { GoToListed(room); });
    };
    list_->Table().OnDelete = [this](std::size_t room) {
        RunCommand(NotDeleted, [this, room] { DeleteListed(room); });
    };
    list_->OnPaste = [this] { RunCommand(NotPasted, [this] { PasteRooms(); }); };
    list_->OnSave = [this](const RoomListFile& file) {
        RunCommand(ListNotSaved, [&] { WithRoomStored([&] { SaveRoomListAs(Shared(), file); }); });
    };
    Shared().History.OnChange(*this, [this] { list_->NoteRooms(); });
}

std::string_view RoomScreen::GuidePage() const {
    return report_->isHidden() ? GuidePages::rooms : GuidePages::report;
}

void RoomScreen::OnUncover() {
    entry_->SetProject(Shared().Project.Now.Name); // another one, if it was saved as a new project
    ShowUnitsWarning();
    FirstFocus()->setFocus();
}

QWidget* RoomScreen::FirstFocus() {
    if (IsListAlone()) {
        return &list_->Table();
    }
    return &entry_->Text(RoomEntryFrame::WidthMajor);
}

std::optional<RoomListPlace> RoomScreen::ListPlace(const Places& form) const {
    return width() < Pixels(WideWindow)
               ? std::nullopt
               : list_->PlaceBeside(Body().size(), form.Panel, form.Below.bottom() + 1);
}

void RoomScreen::OnArranged() {
    if (list_ == nullptr || IsReportShown()) {
        return; // it is not made yet, or hidden with the form
    }
    const auto place = ListPlace(PlacesOf(*entry_));
    const bool hadFocus = list_->isAncestorOf(focusWidget());
    if (place && IsListAlone()) {
        ShowForm(); // the list comes beside it
        return;
    }
    if (place) {
        list_->StandAt(*place);
    } else {
        list_->StandAlone();
    }
    showList_->setVisible(!place);
    if (!IsListAlone()) {
        list_->setVisible(place.has_value());
        if (!place && hadFocus) {
            FirstFocus()->setFocus();
        }
    }
}

void RoomScreen::OnBodyRoom() {
    entry_->SetRoom(PanelRoom());
    const int taken = below_->sizeHint().width() - balance_->sizeHint().width();
    balance_->changeSize(std::clamp(PanelRoom() - taken, 0, balanced_), 0, QSizePolicy::Fixed);
    below_->layout()->invalidate();
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
    isNewShown_ = room == project.Now.Rooms.size();
    if (isNewShown_) {
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

void RoomScreen::GoTo(std::size_t room) {
    ShowRoom(room);
    current_ = room;
    ShowTyped();
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
    ShowTyped();
}

std::optional<Room> RoomScreen::Typed() const {
    const OpenProject& project = Shared().Project;
    return RoomAsTyped(project.Now, project.Shown, current_, entry_->Draft());
}

void RoomScreen::ShowTyped() {
    const std::vector<Room>& rooms = Shared().Project.Now.Rooms;
    const RoomHistory& history = Shared().History;
    const std::optional<Room> typed = Typed();
    list_->Show(current_, typed);
    RoomChange change{current_, {}, {}};
    if (current_ < rooms.size()) {
        change.Before.push_back(rooms[current_]);
    }
    if (typed) {
        change.After.push_back(*typed);
    }
    if (!typed || change.Before == change.After) {
        undo_->Show(history.UndoName(), history.RedoName());
    } else {
        undo_->Show(NameOf(change), {}); // what is typed would be stored first
    }
}

void RoomScreen::ShowUnitsWarning() {
    SetTitleWarning(UnitsWarning(Shared().Project));
}

void RoomScreen::ShowTrouble() {
    const std::string& trouble = Shared().Drafts.Trouble();
    entry_->SetWarning(trouble.empty() ? QString() : ToQt(Words("NOT KEPT: %1", trouble)));
}

StoreResult RoomScreen::StoreFields() {
    OpenProject& project = Shared().Project;
    entry_->SpreadSizes();
    const RoomDraft fields = entry_->Draft();
    const bool isNew = current_ == project.Now.Rooms.size();
    StoreResult result;
    Shared().History.Do(current_,
                        [&] { result = StoreRoom(project.Now, project.Shown, current_, fields); });
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
    StoreResult result = StoreFields();
    if (result.What == StoreResult::Outcome::OneSizeMissing) {
        SayWhyNotStored(result);
    }
    TellRefused(result);
    return result;
}

void RoomScreen::TellRefused(const StoreResult& result) {
    if (!result.Stops()) {
        return;
    }
    ShowForm();
    SayWhyNotStored(result);
    if (result.What == StoreResult::Outcome::WrongSize) {
        entry_->Text(static_cast<int>(result.Wrong)).setFocus();
    }
}

/// The box keeps clear of the field that it is about, for that has the focus then.
void RoomScreen::SayWhyNotStored(const StoreResult& result) {
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
    const int steps = Shared().History.Position();
    StoreResult result = StoreShownRoom();
    if (result.Stops()) {
        return result;
    }
    try {
        action();
    } catch (...) {
        Shared().Project.Now = std::move(before);
        Shared().History.ForgetBehind(steps);
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
        GoTo(current_ + 1);
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
        GoTo(current_ - 1);
    }
    FocusAfter(result);
}

void RoomScreen::ForgetTyping() {
    OpenProject& project = Shared().Project;
    if (current_ == project.Now.Rooms.size()) {
        project.Typed.New.reset();
    }
    project.Typed.Changed.reset();
}

void RoomScreen::AskAndDelete() {
    if (Shared().Boxes.AskYesNo(DeleteQuestion)) {
        ForgetTyping();
        Project& project = Shared().Project.Now;
        Shared().History.Do(current_, [&] { DeleteRoom(project, current_); });
        GoToChanged(current_);
        FirstFocus()->setFocus();
    }
}

void RoomScreen::GoToChanged(std::size_t room) {
    const bool wasNew = isNewShown_;
    GoTo(room);
    KeepTyping();
    if (!wasNew && isNewShown_ && Shared().Project.Typed.New) {
        entry_->SetHint(ToQt(TypedBeforeHint));
    }
}

bool RoomScreen::WentToListed(std::size_t room) {
    if (room == current_) {
        return true;
    }
    list_->Table().ReturnToSelected(); // unless it gets there
    const StoreResult result = StoreShownRoom();
    if (result.IsStored() || result.What == StoreResult::Outcome::Empty) {
        GoTo(room);
        return true;
    }
    ShowForm();
    FocusAfter(result);
    return false;
}

void RoomScreen::GoToListed(std::size_t room) {
    if (WentToListed(room)) {
        ShowForm();
        FirstFocus()->setFocus();
    }
}

void RoomScreen::DeleteListed(std::size_t room) {
    const OpenProject& project = Shared().Project;
    const bool isNothing = room == project.Now.Rooms.size() && !project.Typed.New;
    if (!isNothing && WentToListed(room)) {
        AskAndDelete();
        list_->Table().setFocus();
    }
}

void RoomScreen::PasteRooms() {
    const StoreResult result = StoreShownRoom();
    if (!result.IsStored() && result.What != StoreResult::Outcome::Empty) {
        ShowForm();
        FocusAfter(result);
        return;
    }
    OpenProject& project = Shared().Project;
    const std::size_t first = project.Now.Rooms.size();
    const RoomCsvReading pasted = ReadClipboardRooms(project.Shown, RoomCapacity - first);
    if (!pasted.Succeeded()) {
        Shared().Boxes.Message(NothingPasted, WhyNotPasted(pasted));
        return;
    }
    Shared().History.Do(
        first, [&] { AddRooms(project.Now, project.Shown, pasted.Rooms); },
        NameOfPaste(pasted.Rooms.size()));
    GoTo(first);
    KeepTyping();
    if (!pasted.Notes.empty()) {
        Shared().Boxes.Message(PastedRounded, RoundedText(pasted));
    }
}

bool RoomScreen::TakesLastChangeBack() const {
    const RoomHistory& history = Shared().History;
    std::vector<Room> rooms = Shared().Project.Now.Rooms;
    const std::optional<Room> typed = Typed();
    if (!typed || !history.CanUndo()) {
        return false;
    }
    rooms.resize(std::max(rooms.size(), current_ + 1));
    rooms[current_] = *typed;
    return rooms == history.RoomsAfterUndo();
}

bool RoomScreen::IsReadyForStep() {
    const StoreResult result = StoreFields();
    TellRefused(result);
    return !result.Stops();
}

void RoomScreen::Undo() {
    RoomHistory& history = Shared().History;
    if (TakesLastChangeBack()) {
        ForgetTyping();
    } else if (!IsReadyForStep()) {
        return;
    }
    if (history.CanUndo()) {
        GoToChanged(history.Undo());
    }
}

void RoomScreen::Redo() {
    RoomHistory& history = Shared().History;
    if (IsReadyForStep() && history.CanRedo()) {
        GoToChanged(history.Redo());
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
            ToQt(Words("Room %1 is not stored: it needs a width and a length.", TrimStr(room))));
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
        reading_ = std::make_unique<QObject>();
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

bool RoomScreen::IsReportShown() const {
    return !report_->isHidden();
}

bool RoomScreen::IsListAlone() const {
    return entry_->isHidden() && !list_->isHidden();
}

void RoomScreen::ShowForm() {
    if (IsListAlone()) {
        SetCaption(*showList_, ShowListCaption);
        ShowPanel(*entry_);
    }
}

void RoomScreen::ShowList() {
    SetCaption(*showList_, ShowFormCaption);
    ShowPanel(*list_);
    list_->Table().setFocus();
}

void RoomScreen::SwitchToOther() {
    if (IsReportShown()) {
        return;
    }
    if (list_->isHidden()) {
        ShowList();
    } else if (IsListAlone() || list_->isAncestorOf(focusWidget())) {
        ShowForm();
        FirstFocus()->setFocus();
    } else {
        list_->Table().setFocus();
    }
}

void RoomScreen::Escape() {
    if (IsReportShown()) {
        CloseReport();
    } else if (IsListAlone() || list_->isAncestorOf(focusWidget())) {
        ShowForm();
        FirstFocus()->setFocus();
    }
}

void RoomScreen::PrintShown() {
    if (IsReportShown()) {
        PrintReport();
    } else {
        Guard(NotReported, [this] { ShowReport(); });
    }
}

void RoomScreen::PrintReport() {
    Shared().Printing.Print(report_->Shown(), *reading_, [this] { CloseReport(); });
}

void RoomScreen::CloseReport() {
    reading_.reset();
    SetEntryEnabled(true);
    ShowPanel(*entry_);
    SetCaption(*showList_, ShowListCaption);
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
