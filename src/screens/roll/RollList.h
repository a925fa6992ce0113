#pragma once

#include "screens/roll/RollChart.h"

#include <QAbstractListModel>
#include <QListView>

#include <functional>
#include <optional>

namespace tarn {

/// The lines of a chart as the model of a list.
class ChartLineModel : public QAbstractListModel {
  public:
    using QAbstractListModel::QAbstractListModel;

    void Show(std::vector<ChartLine> lines);
    /// The piece that a row is about, and the row about a piece; -1 for none.
    std::optional<std::size_t> PieceOf(int row) const;
    int RowOf(std::optional<std::size_t> piece) const;
    /// Mark the row that is pointed at; -1 for none.
    void SetPointed(int row);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

  private:
    void Tell(int row);

    std::vector<ChartLine> lines_;
    std::vector<int> rows_; ///< by piece
    int pointed_ = -1;
};

/// The list by which a roll is cut, at the program's text size.
class RollList : public QListView {
  public:
    explicit RollList(QWidget* parent);

    void Show(std::vector<ChartLine> lines);
    /// Make the line about a piece the current one, or none; calls nothing back.
    void SetCurrent(std::optional<std::size_t> piece);
    /// Mark the line about a piece and bring it into view, or take the mark away.
    void SetPointed(std::optional<std::size_t> piece);

    /// Called when the user goes to a line, or points at one or at none, with its piece.
    std::function<void(std::optional<std::size_t>)> OnCurrent = [](auto) {};
    std::function<void(std::optional<std::size_t>)> OnPointed = [](auto) {};

    /// As wide as its longest line about a piece, within bounds; other lines are wrapped.
    QSize sizeHint() const override;
    /// How wide it may be, pixels.
    void SetMostWidth(int width);

  protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;

  private:
    void PointFrom(const QModelIndex& index);
    void MeasureLines();

    ChartLineModel* lines_;
    int widest_ = 0;       ///< of the lines about pieces, pixels
    int most_ = 0;         ///< how wide it may be; 0 = not told yet
    bool setting_ = false; ///< the current line is not set by the user
};

} // namespace tarn
