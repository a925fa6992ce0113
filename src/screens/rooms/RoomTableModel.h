#pragma once

#include "project/Room.h"
#include "project/RoomList.h"
#include "screens/OpenProject.h"

#include <QAbstractTableModel>

#include <cstddef>
#include <optional>

namespace tarn {

/// The rooms of the open project as the rows of a table, and the new room as the last one. The room
/// on the screen is shown as its fields would be stored.
class RoomTableModel : public QAbstractTableModel {
  public:
    /// `project` must outlive the model.
    RoomTableModel(const OpenProject& project, QObject* parent);

    /// The room on the screen, 0 .. number of rooms, and what its fields would be stored as.
    void ShowTyped(std::size_t room, const std::optional<Room>& typed);
    /// The rooms have changed.
    void NoteRooms();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    /// The room of a row; nothing for the new one.
    const Room* RoomAt(int row) const;
    QString TextAt(int row, RoomColumn column) const;
    void TellRow(std::size_t row);

    const OpenProject& project_;
    int rows_;
    std::size_t shown_ = 0;
    std::optional<Room> typed_;
};

} // namespace tarn
