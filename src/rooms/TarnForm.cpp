#include "rooms/TarnForm.h"

#include "app/Numbers.h"
#include "app/OutputFile.h"
#include "app/Printing.h"
#include "app/QtText.h"
#include "app/RunTimeError.h"
#include "app/SaveAs.h"
#include "print/PdfFile.h"
#include "rooms/Report.h"
#include "rooms/ReportFrame.h"
#include "rooms/ReportSvg.h"
#include "rooms/RoomEntryFrame.h"

#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>

namespace tarn {

namespace {

constexpr const char* DeleteQuestion = "Really want to delete current data?";
constexpr const char* NothingToEstimateMessage =
    "There is no data to estimate. Please fill in the room information before estimating.";

std::string Date(const QDate& date) {
    return ShortDate(date.year(), date.month(), date.day());
}

} // namespace

void TarnForm::OnUncover() {
    FirstFocus()->setFocus();
}

QWidget* TarnForm::FirstFocus() {
    return &entry_->Text(RoomEntryFrame::WidthMajor);
}

void TarnForm::DispRoomInfo(Integer rid) {
    if (rid == State().ObjNum) {
        entry_->ShowNewRoom();
    } else {
        entry_->Show(FieldsOf(State(), rid));
    }
    entry_->SetItemNumber(ToInteger(rid + 1));
}

StoreResult TarnForm::SaveRoomInfo(Integer rid) {
    const StoreResult result = StoreRoom(State(), Shared().Project, rid, entry_->Fields());
    if (!result.Message().empty()) {
        Shared().Boxes.Message(std::string(result.Message()));
    }
    if (result.What == StoreResult::Outcome::WrongSize) {
        entry_->Text(static_cast<int>(result.Wrong)).setFocus();
    }
    return result;
}

void TarnForm::DeleteRoom(Integer rid) {
    tarn::DeleteRoom(State(), rid);
    DispRoomInfo(curRoom_);
}

StoreResult TarnForm::WithRoomTaken(const std::function<void()>& action) {
    const RoomBackup before(State(), Shared().Project, curRoom_);
    const StoreResult result = SaveRoomInfo(curRoom_);
    if (result.Stops()) {
        return result;
    }
    try {
        action();
    } catch (...) {
        before.Restore(State(), Shared().Project);
        throw;
    }
    return result;
}

void TarnForm::RunCommand(const std::string& failure, const std::function<void()>& body) {
    if (!Guard(failure, body)) {
        FirstFocus()->setFocus();
    }
}

void TarnForm::FocusAfter(const StoreResult& result) {
    if (result.What != StoreResult::Outcome::WrongSize) {
        FirstFocus()->setFocus();
    }
}

void TarnForm::ShowNext() {
    const StoreResult result = SaveRoomInfo(curRoom_);
    if (result.IsStored()) {
        DispRoomInfo(ToInteger(curRoom_ + 1));
        ++curRoom_;
    }
    FocusAfter(result);
}

void TarnForm::ShowPrevious() {
    if (curRoom_ < 1) {
        FirstFocus()->setFocus();
        return;
    }
    const StoreResult result = SaveRoomInfo(curRoom_);
    if (!result.Stops()) {
        DispRoomInfo(ToInteger(curRoom_ - 1));
        --curRoom_;
    }
    FocusAfter(result);
}

void TarnForm::AskAndDelete() {
    if (Shared().Boxes.AskYesNo(DeleteQuestion)) {
        DeleteRoom(curRoom_);
        FirstFocus()->setFocus();
    }
}

void TarnForm::Save() {
    RunCommand(std::string(NotSavedMessage), [this] { SaveAll(); });
}

void TarnForm::SaveAll() {
    bool saved = false;
    const StoreResult result =
        WithRoomTaken([&] { saved = SaveOpenProject(State(), Shared().Project); });
    if (!result.Stops()) {
        Shared().Boxes.Message(saved
                                   ? std::string(SavedMessage)
                                   : std::string(NotSavedMessage) + " " + State().DatabaseFailure);
    }
    FocusAfter(result);
}

void TarnForm::Estimate() {
    WithRoomTaken([this] {
        if (State().ObjNum < 1) {
            Shared().Boxes.Message(NothingToEstimateMessage);
        } else {
            Shared().Go.ShowEstimate(false);
        }
    });
}

void TarnForm::ShowReport() {
    WithRoomTaken([this] {
        report_->Show(LoadReport(State(), Date(Shared().Today())));
        SetEntryEnabled(false);
        ShowPanel(*report_);
        report_->View().setFocus();
    });
}

void TarnForm::SetEntryEnabled(bool enabled) {
    below_->setVisible(enabled);
    entry_->setEnabled(enabled);
    Menus().setEnabled(enabled);
}

void TarnForm::PrintReport() {
    if (Printed(Shared().Boxes, [this] { Shared().Paper.PrintReport(report_->Shown()); })) {
        CloseReport();
    }
}

void TarnForm::SaveReportAsPdf() {
    SaveAs(Shared().Boxes, State().CurProjName, "pdf", [this](const std::string& path) {
        WriteReportPdf(report_->Shown(), path, PaperOf(State().PrnWidth, State().PrnHeight));
    });
}

void TarnForm::SaveReportAsSvg() {
    SaveAs(Shared().Boxes, State().CurProjName, "svg",
           [this](const std::string& path) { WriteOutputFile(path, ReportSvg(report_->Shown())); });
}

void TarnForm::CloseReport() {
    SetEntryEnabled(true);
    ShowPanel(*entry_);
    FirstFocus()->setFocus();
}

void TarnForm::Leave() {
    try {
        StoreRoom(State(), Shared().Project, curRoom_, entry_->Fields());
    } catch (const RunTimeError&) {
        // A size that no room can have: the room stays as it was, and nothing is said on leaving.
    }
    Shared().Go.ShowMenu(MenuEntry::Returning);
}

} // namespace tarn
