#pragma once

#include <QLabel>

namespace tarn {

/// A one-line label that takes the width it is given: a text that does not fit ends in dots, and
/// the tool tip has it whole.
class ElidedLabel : public QLabel {
  public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QString Shown() const;
};

} // namespace tarn
