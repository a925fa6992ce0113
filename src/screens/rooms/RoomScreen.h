#pragma once

#include "project/RoomEntry.h"
#include "screens/TitledScreen.h"

#include <cstddef>
#include <functional>
#include <string>

class QPushButton;

namespace tarn {

class ReportFrame;
class RoomEntryFrame;

/// The room entry: the rooms of the open project, typed one at a time, and their listing. It opens
/// on a new room after the last one. Rooms are changed in memory; SAVE writes them to the database.
/// NEXT, PREVIOUS, SAVE, ESTIMATE and REPORT wait while a size on the screen is refused or the
/// project is full. Leaving waits for nothing: a room that cannot be stored without a word with the
/// user is left as it was in memory, and what was typed stands in its fields when the screen opens
/// again. An action that fails takes back the room that it stored, which stays on the screen. What
/// is typed is kept in the project's draft.
class RoomScreen : public TitledScreen {
  public:
    explicit RoomScreen(Session& session);

  protected:
    /// As BACK.
    std::string_view GuidePage() const override;
    void OnCloseByFrame() override { Leave(); }
    void OnUncover() override;
    QWidget* FirstFocus() override;

  private:
    void MakeMenu();
    void MakeButtonsBelow();
    void SetTabOrder();
    void ConnectButtons();
    /// Run a command of the entry under the guard; after an error the focus is on the sizes.
    void RunCommand(const std::string& failure, const std::function<void()>& body);
    void OnCommand(QPushButton& button, const std::string& failure, std::function<void()> body);

    /// The room to begin with: the one that was being typed, or the new one.
    static std::size_t FirstRoom(const OpenProject& project);
    /// Show a room, 0 .. number of rooms, see RoomEntry.h; with what was typed for it and is not
    /// stored.
    void ShowRoom(std::size_t room);
    void ConnectTyping();
    /// Take what stands in the fields for the typing of the open project, unless it is what the
    /// room has, and tell the draft.
    void KeepTyping();
    void ShowUnitsWarning();
    void ShowTrouble();
    /// Store the fields as the room on the screen, or keep them as typing.
    StoreResult StoreFields();
    /// Store the fields as the room on the screen, or say why not and go to the field to correct.
    StoreResult StoreShownRoom();
    /// Say why the room on the screen was not stored.
    void TellRefusal(const StoreResult& result);
    /// StoreShownRoom, then `action`, unless a field is to be corrected.
    StoreResult WithRoomStored(const std::function<void()>& action);
    void FocusAfter(const StoreResult& result);

    /// Say below the fields which room a save could not store.
    void TellNotStored();

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

    RoomEntryFrame* entry_;
    ReportFrame* report_;
    QWidget* below_ = nullptr; ///< holds BACK and SAVE
    QPushButton* back_ = nullptr;
    QPushButton* save_ = nullptr;
    std::size_t current_;  ///< the room on the screen
    RoomDraft untouched_;  ///< its fields as they stand when nothing is typed
    bool showing_ = false; ///< the fields are being filled in by the program
};

} // namespace tarn
