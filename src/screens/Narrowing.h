#pragma once

// How controls make do with less width than they would like. What is decided here depends on a room
// that the window gives, never on what follows from it: it cannot go to and fro.

#include <QVBoxLayout>

#include <vector>

class QAbstractButton;
class QLabel;
class QWidget;

namespace tarn {

/// The width that columns ask for beside each other, pixels; also while they stand below each
/// other.
int NaturalWidth(const QBoxLayout& columns);
/// The same of the least width that each can have.
int LeastWidth(const QBoxLayout& columns);
/// Have the columns stand below each other, or beside each other.
void SetStacked(QBoxLayout& columns, bool stacked);

/// Break a caption into lines no wider than `room` where it is wider, and take earlier breaks out
/// again. Its accessible name stays as it is.
void WrapWithin(QLabel& label, int room);
void WrapWithin(QAbstractButton& button, int room);

/// Buttons beside each other, and on further rows where there is no room for them on one. It is as
/// wide as its widest row.
class WrappingRow : public QVBoxLayout {
  public:
    WrappingRow();

    /// One more button. `atTheEnd` keeps it, and those that follow, at the end of their rows.
    void Add(QWidget& button, bool atTheEnd = false);
    /// Put the buttons into as few rows of `room` pixels as they take.
    void SetRoom(int room);

  private:
    struct Item {
        QWidget* Button;
        bool IsAtTheEnd;
    };
    /// How many buttons each row has.
    std::vector<int> RowsIn(int room) const;
    void Fill(const std::vector<int>& rows);

    std::vector<Item> items_;
    std::vector<int> rows_; ///< as they are now
};

} // namespace tarn
