#pragma once

#include "project/OrderEntry.h"

#include <QTableWidget>

#include <functional>
#include <vector>

namespace tarn {

/// The rolls of an order as a table that is typed into: width, name and price. Behind the last roll
/// stands an empty row for a further one, as long as there may be more.
class RollTable : public QTableWidget {
  public:
    RollTable(QWidget* parent, Units units);

    /// Show these rolls; calls nothing back.
    void Show(const std::vector<TypedRoll>& rolls);
    /// What stands in the rows, by their places; what is being typed is taken over first.
    std::vector<TypedRoll> Rolls();
    /// Take the focus to a roll: to its price, or else its width.
    void FocusRoll(std::size_t roll, bool price);
    /// Take the current row away.
    void RemoveCurrent();

    /// The user changed something. Must not raise.
    std::function<void()> OnChange = [] {};

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    enum Column { Width, Name, Price, Columns };

    void AddRow(const TypedRoll& roll);
    void KeepEmptyRow();
    void CellChanged(int row, int column);
    void CommitTyping();
    TypedRoll RollIn(int row) const;

    /// What was typed is being taken over: who is told of it may ask for the rolls.
    bool isTaking_ = false;
};

} // namespace tarn
