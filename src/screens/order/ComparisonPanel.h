#pragma once

#include "order/Order.h"

#include <QWidget>

#include <functional>
#include <optional>

class QLabel;
class QTableWidget;
class QTableWidgetItem;

namespace tarn {

class ComparisonGrid;

/// The comparison of rolls and lays as a table, above it the row that is taken in words, with the
/// rule by which one is the best; below it what the table has no room for, and what there is to
/// remark on that row.
class ComparisonPanel : public QWidget {
  public:
    explicit ComparisonPanel(QWidget* parent);

    /// Show an order, and which of its rows is taken, if any is. Calls nothing back.
    void Show(const Order& order, std::optional<std::size_t> taken);
    /// Show no comparison.
    void Clear();

    QTableWidget& Table();

    /// The user went to another row. Must not raise.
    std::function<void(std::size_t)> OnRow = [](std::size_t) {};

  private:
    void SetHeads(Units units);
    void SetCells(const Order& order, std::size_t row, bool isTaken);
    void ShowTaken(const Order& order, std::optional<std::size_t> taken);
    void ShowLeftOut();
    QTableWidgetItem& Cell(int row, int column);

    QLabel* taken_ = nullptr;
    QLabel* rule_ = nullptr;
    ComparisonGrid* table_ = nullptr;
    QLabel* leftOut_ = nullptr;
    QLabel* remarks_ = nullptr;
    int takenRow_ = -1; ///< -1 for none that has figures
};

} // namespace tarn
