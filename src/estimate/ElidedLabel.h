#pragma once

#include <QLabel>

namespace tarn {

/// A label of one line that is cut off with dots where it is given less room than its text needs,
/// so that a long name never widens a screen. Shows the whole text as its tool tip.
class ElidedLabel : public QLabel {
  public:
    using QLabel::QLabel;

    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tarn
