#pragma once

#include "base/Units.h"
#include "project/RoomList.h"

#include <QTableView>

#include <vector>

namespace tarn {

/// The totals of the rooms by covering, as a table to be read.
class RoomTotals : public QTableView {
  public:
    explicit RoomTotals(Units shown);

    void Show(const std::vector<CoveringTotal>& totals);

    /// As wide as its columns; as high as its lines, of which it scrolls those that are too many.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void changeEvent(QEvent* event) override;

  private:
    class Model;
    void Fit();
    int HeightOf(int lines) const;

    Model* model_;
    int width_ = 0; ///< in which its columns can be read
};

} // namespace tarn
