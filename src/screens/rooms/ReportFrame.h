#pragma once

#include "project/Report.h"

#include <QFrame>

class QAction;
class QPlainTextEdit;
class QPushButton;

namespace tarn {

/// The entered-data report, to be read, printed and saved as a file.
class ReportFrame : public QFrame {
  public:
    ReportFrame();

    void Show(EnteredDataReport report);
    /// What the view shows.
    const EnteredDataReport& Shown() const { return shown_; }

    QPlainTextEdit& View() { return *view_; }
    QPushButton& Print() { return *print_; }
    QPushButton& Close() { return *close_; }
    /// Of the view's context menu.
    QAction& SaveAsPdf() { return *saveAsPdf_; }
    QAction& SaveAsSvg() { return *saveAsSvg_; }

  private:
    void MakeMenu();

    EnteredDataReport shown_;
    QPlainTextEdit* view_ = nullptr;
    QPushButton* print_ = nullptr;
    QPushButton* close_ = nullptr;
    QAction* saveAsPdf_ = nullptr;
    QAction* saveAsSvg_ = nullptr;
};

} // namespace tarn
