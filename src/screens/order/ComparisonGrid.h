#pragma once

#include "screens/order/ColumnFit.h"

#include <QTableWidget>

#include <functional>
#include <string>
#include <vector>

namespace tarn {

/// The table of a comparison, as high as its rows where they are not many. It does not scroll
/// sideways: where its columns have no room beside each other they get closer, and then those that
/// are only looked up are left out. The last column, the notes, has what the others leave.
class ComparisonGrid : public QTableWidget {
  public:
    explicit ComparisonGrid(QWidget* parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// Give it columns. `kept` are the places of those that are always shown.
    void SetHeads(const std::vector<std::string>& heads, const std::vector<int>& kept);
    /// Make the columns as wide as what is in them, after a change of it.
    void FitToCells();
    /// The columns that are only looked up and have no room, from the left. The head of one is its
    /// Head, on one line.
    std::vector<int> LeftOut() const;
    std::string Head(int column) const;

    /// LeftOut has changed. Must not raise.
    std::function<void()> OnLeftOut = [] {};

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void Measure();
    void Fit();
    void Apply(const ColumnFit& fit);
    void Widen();
    int TextWidth(int column) const;
    bool IsNotes(int column) const { return column == columnCount() - 1; }
    int HeightFor(int rows) const;

    std::vector<std::string> heads_;
    std::vector<int> kept_;
    std::vector<ColumnNeed> needs_; ///< as they were measured last
    ColumnFit fit_{false, {}};
    bool isFitting_ = false;
};

} // namespace tarn
