#pragma once

#include <QDialog>

#include <functional>
#include <string_view>

class QLabel;
class QLineEdit;
class QPushButton;

namespace tarn {

class Dialogs;
class GuideView;

/// The guide in a window of its own beside the program's, which stays in use: what is typed there
/// stays, and closing the guide leads back to it. Escape closes it, Ctrl+F and F3 find a word.
class GuideWindow : public QDialog {
  public:
    GuideWindow(QWidget& program, Dialogs& boxes);

    /// Show the guide at a page (see GuidePages.h), in front, with the focus in its text.
    void ShowPage(std::string_view page);

    /// What the button ABOUT does.
    std::function<void()> OnAbout;

  protected:
    void hideEvent(QHideEvent* event) override;

  private:
    void LayOut();
    void Connect();
    /// At the right of the program's window, as wide as a text reads well.
    void PlaceBesideTyping();
    void Find();
    void TellLinkAway(const QString& address);

    QWidget& program_;
    Dialogs& boxes_;
    GuideView* text_ = nullptr;
    QLineEdit* search_ = nullptr;
    QPushButton* find_ = nullptr;
    QPushButton* about_ = nullptr;
    QPushButton* close_ = nullptr;
    QLabel* note_ = nullptr;
    bool placed_ = false;
};

} // namespace tarn
