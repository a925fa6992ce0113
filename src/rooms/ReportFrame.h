#pragma once

#include <QFrame>

#include <string>

class QAction;
class QPlainTextEdit;
class QPushButton;

namespace tarn {

/// Frame4: the entered-data report, to be read, printed and saved as a file.
class ReportFrame : public QFrame {
  public:
    ReportFrame();

    /// The report as LoadReport made it, its lines ended by CrLf.
    void SetText(const std::string& text);
    const std::string& Text() const { return text_; }

    QPlainTextEdit& View() { return *view_; }
    QPushButton& Print() { return *print_; }
    QPushButton& Close() { return *close_; }
    /// Of the view's context menu.
    QAction& SaveAsPdf() { return *saveAsPdf_; }
    QAction& SaveAsSvg() { return *saveAsSvg_; }

  private:
    void MakeMenu();

    std::string text_;
    QPlainTextEdit* view_ = nullptr;
    QPushButton* print_ = nullptr;
    QPushButton* close_ = nullptr;
    QAction* saveAsPdf_ = nullptr;
    QAction* saveAsSvg_ = nullptr;
};

} // namespace tarn
