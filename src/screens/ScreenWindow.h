#pragma once

#include "screens/Screen.h"

#include <QMargins>
#include <QWidget>

#include <functional>
#include <memory>
#include <string>
#include <string_view>

class QLabel;
class QStackedLayout;

namespace tarn {

/// The program's one window. It shows the top of a pile of screens, so that one screen takes over
/// from another without the desktop showing in between; the screens below the top stay loaded,
/// hidden and disabled. Whenever a screen is loaded the window is fitted to the display, its frame
/// included.
class ScreenWindow : public QWidget {
  public:
    ScreenWindow();
    ~ScreenWindow() override;

    /// Show `screen` in place of the top one, which is unloaded.
    void Replace(std::unique_ptr<Screen> screen);
    /// Show `screen` above the top one.
    void Cover(std::unique_ptr<Screen> screen);
    /// Unload the top screen and show the one below it, if there is one.
    void Uncover();

    /// The screen in front; none before the first.
    Screen* Front() const;
    /// Number of screens loaded.
    int Loaded() const;

    /// Have it stand at the top right, beside the button of the guide, above all screens and out of
    /// the way of the mouse, what goes on meanwhile; nothing when it is over.
    void SetWork(std::string_view work);
    /// The same of a note, until another screen is in front; it waits behind what goes on.
    void ShowNote(const std::string& note);

    /// Call `action` once, after the window has been painted for the first time.
    void AfterFirstPaint(std::function<void()> action);

  protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void Fit();
    void FitAgainToANewFrame();
    void Add(std::unique_ptr<Screen> screen);
    void Unload(Screen& screen);
    void ShowFront();
    void ShowLine();
    void PlaceLine();

    QStackedLayout* screens_ = nullptr;
    QLabel* line_ = nullptr;
    std::string work_;
    std::string note_;
    QMargins frame_;     ///< for which the window was fitted last
    int refitsLeft_ = 0; ///< so that no window manager is argued with for ever
    std::function<void()> afterFirstPaint_;
};

} // namespace tarn
