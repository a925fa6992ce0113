#pragma once

#include "app/TitledScreen.h"
#include "rooms/RoomEntry.h"

#include <functional>
#include <string>

class QLineEdit;
class QPushButton;

namespace tarn {

class ReportFrame;
class RoomEntryFrame;

/// The room entry: the rooms of the open project, typed one at a time, and their listing. It opens
/// on a new room after the last one. Rooms are changed in memory; SAVE writes them to the database.
/// NEXT, PREVIOUS, SAVE, ESTIMATE and REPORT wait while a size on the screen is refused or the
/// project is full. Leaving waits for nothing: a room that cannot be stored without a word with the
/// user is left as it was in memory, and what was typed is gone. An action that fails takes back
/// the room that it stored, which stays on the screen.
class TarnForm : public TitledScreen {
  public:
    explicit TarnForm(Session& session);

    bool eventFilter(QObject* watched, QEvent* event) override;

  protected:
    /// As BACK.
    void OnCloseByFrame() override { Leave(); }
    void OnUncover() override;
    QWidget* FirstFocus() override;

  private:
    // Building
    void MakeMenu();
    void MakeButtonsBelow();
    void SetTabOrder();
    void ConnectButtons();
    void ConnectFields();
    /// Run a command of the entry under the guard; after an error the focus is on the sizes.
    void RunCommand(const std::string& failure, const std::function<void()>& body);
    void OnCommand(QPushButton& button, const std::string& failure, std::function<void()> body);

    // The procedures of the screen; `rid` is 0 .. ObjNum, ObjNum being a new room.
    void DispRoomInfo(Integer rid);
    /// Store the fields, or say why not and go to the field to correct.
    StoreResult SaveRoomInfo(Integer rid);
    void DeleteRoom(Integer rid);

    // Actions
    void ShowNext();
    void ShowPrevious();
    void AskAndDelete();
    /// SAVE and File > Save.
    void Save();
    void SaveAll();
    void Estimate();
    void ShowReport();
    /// Whether the entry, BACK, SAVE and the File menu are there to be used.
    void SetEntryEnabled(bool enabled);
    void PrintReport();
    void SaveReportAsPdf();
    void SaveReportAsSvg();
    void CloseReport();
    /// Take the fields into memory if that needs no word with the user, and show the menu.
    void Leave();
    /// SaveRoomInfo for the room on the screen, then `action`, unless a field is to be corrected.
    StoreResult WithRoomTaken(const std::function<void()>& action);
    void FocusAfter(const StoreResult& result);

    // Keys
    void EnterFrom(const QObject& field);
    void TestSize(QLineEdit& field);
    void TestTypedBase();
    void TestEnteredBase();

    RoomEntryFrame* entry_ = nullptr; ///< Frame1
    ReportFrame* report_ = nullptr;   ///< Frame4
    QWidget* below_ = nullptr;        ///< holds BACK and SAVE
    QPushButton* back_ = nullptr;
    QPushButton* save_ = nullptr;
    Integer curRoom_ = 0; ///< CurRoom: the room on the screen, 0 .. ObjNum
};

} // namespace tarn
