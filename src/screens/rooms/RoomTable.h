#pragma once

#include "screens/OpenProject.h"

#include <QTableView>

#include <cstddef>
#include <functional>
#include <optional>

namespace tarn {

class RoomTableModel;

/// The table of the rooms. The room on the screen is its selected row; the keys move a frame from
/// row to row, and the user's own doing calls back: nothing is selected but by the program.
class RoomTable : public QTableView {
  public:
    /// `project` must outlive the table.
    explicit RoomTable(const OpenProject& project);

    /// Neither may raise. A row, counted from 0, was clicked, or Enter or F2 was pressed on it.
    std::function<void(std::size_t)> OnChosen;
    /// Delete was pressed on it.
    std::function<void(std::size_t)> OnDelete;
    /// Ctrl+V was pressed.
    std::function<void()> OnPaste;

    /// Select the row of the room on the screen, which would be stored as `typed`, and see that it
    /// is in view.
    void Show(std::size_t room, const std::optional<Room>& typed);
    /// The rooms have changed.
    void NoteRooms();
    /// Take the frame back to the selected row.
    void ReturnToSelected();

    /// The least width in which the columns can be read, and the largest that is of use.
    int LeastWidth() const;
    int MostWidth() const;
    /// The height of so many rows with their heads.
    int HeightOf(int rows) const;
    QSize minimumSizeHint() const override;

  protected:
    QItemSelectionModel::SelectionFlags
    selectionCommand(const QModelIndex& index, const QEvent* event = nullptr) const override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    void BringSelectedIntoView();
    void FitColumns();
    int WidthOf(const QString& text) const;
    int WidthBeside(int remark) const;

    RoomTableModel* model_;
    std::optional<std::size_t> shown_; ///< the selected row
};

} // namespace tarn
