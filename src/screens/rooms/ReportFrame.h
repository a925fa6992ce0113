#pragma once

#include "project/Report.h"
#include "screens/rooms/RoomOutput.h"

#include <QFrame>

#include <functional>

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
    /// Called for the kind of file that was chosen in the view's context menu.
    std::function<void(const ReportFile& file)> OnSave = [](const ReportFile&) {};

  private:
    void MakeMenu();

    EnteredDataReport shown_;
    QPlainTextEdit* view_ = nullptr;
    QPushButton* print_ = nullptr;
    QPushButton* close_ = nullptr;
};

} // namespace tarn
