#pragma once

#include "app/Screen.h"

#include <QWidget>

#include <memory>

class QStackedLayout;

namespace tarn {

/// The program's one window. It shows the top of a pile of screens, so that one screen takes over
/// from another without the desktop showing in between; the screens below the top stay loaded,
/// hidden and disabled.
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

  protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    void Add(std::unique_ptr<Screen> screen);
    void Unload(Screen& screen);
    void ShowFront();

    QStackedLayout* screens_ = nullptr;
};

} // namespace tarn
