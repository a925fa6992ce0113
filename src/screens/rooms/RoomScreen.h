#pragma once

#include "project/RoomEntry.h"
#include "screens/TitledScreen.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>

class QPushButton;
class QSpacerItem;

namespace tarn {

class ReportFrame;
class RoomEntryFrame;
class RoomListFrame;
struct RoomListPlace;
class UndoMenu;

/// The room entry: the rooms of the open project, typed one at a time, their list and their report.
/// It opens on a new room after the last one. The list stands beside the form where the window is
/// large enough; else a button shows one or the other. Rooms are changed in memory; SAVE writes
/// them to the database. NEXT, PREVIOUS, SAVE, ESTIMATE and REPORT wait while a size on the screen
/// is refused or the project is full. Leaving waits for nothing: a room that cannot be stored
/// without a word with the user is left as it was in memory, and what was typed stands in its
/// fields when the screen opens again. An action that fails takes back the room that it stored,
/// which stays on the screen. What is typed is kept in the project's draft; every change of the
/// rooms can be taken back.
class RoomScreen : public TitledScreen {
  public:
    explicit RoomScreen(Session& session);

  protected:
    /// As BACK.
    std::string_view GuidePage() const override;
    void OnCloseByFrame() override { Leave(); }
    void OnUncover() override;
    void OnArranged() override;
    void OnBodyRoom() override;
    QWidget* FirstFocus() override;

  private:
    /// Where the list stands beside the form; nothing where it has no room there.
    std::optional<RoomListPlace> ListPlace(const Places& form) const;
    void MakeMenu();
    void MakeButtonsBelow();
    void MakeKeys();
    void SetTabOrder();
    void ConnectButtons();
    void ConnectList();
    /// Run a command of the entry under the guard; after an error the focus is on the sizes.
    void RunCommand(const std::string& failure, const std::function<void()>& body);
    void OnCommand(QPushButton& button, const std::string& failure, std::function<void()> body);

    /// The room to begin with: the one that was being typed, or the new one.
    static std::size_t FirstRoom(const OpenProject& project);
    /// Show a room, 0 .. number of rooms, see RoomEntry.h; with what was typed for it and is not
    /// stored.
    void ShowRoom(std::size_t room);
    /// ShowRoom, which is then the room on the screen.
    void GoTo(std::size_t room);
    /// GoTo after a change of the rooms. What comes back into the fields of a new room then is
    /// explained: nobody asked for it.
    void GoToChanged(std::size_t room);
    void ConnectTyping();
    /// Take what stands in the fields for the typing of the open project, unless it is what the
    /// room has, and tell the draft.
    void KeepTyping();
    /// Show in the list and in the Undo menu what the fields would be stored as.
    void ShowTyped();
    /// What the fields would be stored as; nothing when they would not be.
    std::optional<Room> Typed() const;
    void ShowUnitsWarning();
    void ShowTrouble();
    /// Store the fields as the room on the screen, or keep them as typing.
    StoreResult StoreFields();
    /// Store the fields as the room on the screen, or say why not and go to the field to correct.
    StoreResult StoreShownRoom();
    /// Show the message of a result.
    void SayWhyNotStored(const StoreResult& result);
    /// Say why the fields were not stored, and go to the field to correct, if that stops the user.
    void TellRefused(const StoreResult& result);
    /// StoreShownRoom, then `action`, unless a field is to be corrected.
    StoreResult WithRoomStored(const std::function<void()>& action);
    void FocusAfter(const StoreResult& result);

    /// Say below the fields which room a save could not store.
    void TellNotStored();

    void ShowNext();
    void ShowPrevious();
    void AskAndDelete();
    /// Forget what is typed for the room on the screen and is not stored.
    void ForgetTyping();
    /// Go to a room of the list as NEXT goes to the next; false, and told, when a field is to be
    /// corrected first.
    bool WentToListed(std::size_t room);
    /// Go there, to its fields.
    void GoToListed(std::size_t room);
    /// Go there and delete it.
    void DeleteListed(std::size_t room);
    /// Put the rooms of the clipboard behind the others and go to the first of them; all or, told,
    /// none. What stands in the fields is stored first, as by NEXT.
    void PasteRooms();
    /// Take the last change of the rooms back, or make the next again, and show its room. What
    /// stands in the fields is stored first: it is the last change.
    void Undo();
    void Redo();
    /// Whether storing what is typed would do nothing but take the last change back.
    bool TakesLastChangeBack() const;
    /// Store the fields before a change is taken back or made again; a half-typed new room stays
    /// as typed. False, and told, when a field is to be corrected first.
    bool IsReadyForStep();
    /// SAVE and File > Save.
    void Save();
    void SaveAll();
    void Estimate();
    void ShowReport();
    /// Whether the entry, BACK, SAVE and the menus are there to be used.
    void SetEntryEnabled(bool enabled);
    bool IsReportShown() const;
    /// Whether the list is shown in place of the form.
    bool IsListAlone() const;
    void ShowForm();
    void ShowList();
    /// From the form to the list or back: by the focus, or by showing the other.
    void SwitchToOther();
    /// Escape: close the report, or go back to the form.
    void Escape();
    /// Ctrl+P: print the report, which is shown first.
    void PrintShown();
    void PrintReport();
    void CloseReport();
    /// Take the fields into memory if that needs no word with the user, and show the menu.
    void Leave();

    RoomEntryFrame* entry_;
    ReportFrame* report_;
    std::unique_ptr<QObject> reading_; ///< while the report is shown
    RoomListFrame* list_ = nullptr;
    UndoMenu* undo_ = nullptr;
    QWidget* below_ = nullptr; ///< holds the buttons that follow
    QPushButton* back_ = nullptr;
    QPushButton* save_ = nullptr;
    QSpacerItem* balance_ = nullptr;  ///< has BACK and SAVE stand in the middle, where it has room
    int balanced_ = 0;                ///< its width then
    QPushButton* showList_ = nullptr; ///< shows the list, or the form again
    std::size_t current_;             ///< the room on the screen
    RoomDraft untouched_;             ///< its fields as they stand when nothing is typed
    bool isNewShown_ = false;         ///< it is the new one, behind the last
    bool showing_ = false;            ///< the fields are being filled in by the program
};

} // namespace tarn
