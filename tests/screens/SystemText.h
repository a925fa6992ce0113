#pragma once

#include <QApplication>
#include <QFont>

namespace tarn::testing {

/// The system's text of a size, and the old one back at the end.
class SystemText {
  public:
    explicit SystemText(double points) {
        QFont font = before_;
        font.setPointSizeF(points);
        QApplication::setFont(font);
    }
    ~SystemText() { QApplication::setFont(before_); }
    SystemText(const SystemText&) = delete;
    SystemText& operator=(const SystemText&) = delete;

  private:
    QFont before_ = QApplication::font();
};

} // namespace tarn::testing
