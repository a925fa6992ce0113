#pragma once

#include "project/Room.h"
#include "screens/OpenProject.h"
#include "screens/rooms/RoomOutput.h"

#include <QFrame>
#include <QRect>
#include <QSize>

#include <cstddef>
#include <functional>
#include <optional>

class QBoxLayout;

namespace tarn {

class RoomTable;
class RoomTotals;

/// Where the list of the rooms stands beside their form.
struct RoomListPlace {
    QRect Area;
    bool TotalsBeside = false; ///< the totals stand to the right of the table, else below it

    bool operator==(const RoomListPlace&) const = default;
};

/// All rooms of the project in a table, with their totals by covering.
class RoomListFrame : public QFrame {
  public:
    /// `project` must outlive the frame.
    explicit RoomListFrame(const OpenProject& project);

    RoomTable& Table() { return *table_; }
    RoomTotals& Totals() { return *totals_; }

    /// None may raise. Rooms are to be pasted: Ctrl+V in the table, or by its context menu.
    std::function<void()> OnPaste = [] {};
    /// The list is to be saved as that kind of file.
    std::function<void(const RoomListFile& file)> OnSave = [](const RoomListFile&) {};

    /// The room on the screen, 0 .. number of rooms, and what its fields would be stored as.
    void Show(std::size_t room, const std::optional<Room>& typed);
    /// The rooms have changed.
    void NoteRooms();

    /// Where it stands on a screen of that size: to the right of the form where its columns fit,
    /// else below the form and what is under it, where some rows fit. Nothing when there is no room
    /// for it.
    std::optional<RoomListPlace> PlaceBeside(QSize screen, const QRect& form, int under) const;
    void StandAt(const RoomListPlace& place);
    /// Have the totals below the table again.
    void StandAlone();

  private:
    void MakeMenu();
    QSize LeastSize(bool totalsBeside) const;
    /// The largest height up to `most` in which no row is cut off.
    int WholeRows(int most, bool totalsBeside) const;

    const OpenProject& project_;
    RoomTable* table_;
    RoomTotals* totals_;
    QBoxLayout* layout_;
};

} // namespace tarn
