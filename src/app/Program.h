#pragma once

#include "app/Dialogs.h"
#include "app/Printer.h"
#include "app/ProgramScreens.h"
#include "app/Session.h"

#include <QLocale>

#include <filesystem>
#include <memory>
#include <vector>

namespace tarn {

/// The program between its start and its end: the shared state, the window and its screens.
class Program {
  public:
    Program(Dialogs& boxes, Printer& printer);

    /// Main: refuse a display that is too small, prepare the shared state, show the project
    /// selection and, once it stands, read the printer's page. False, after a message, when the
    /// program cannot run: the display is too small, or there is no usable configuration file.
    bool Main(const std::vector<std::filesystem::path>& configurationDirectories,
              QSize displayPixels, const QDate& today, const QLocale& locale);

    ScreenWindow& Window() { return window_; }
    const SharedState& State() const { return state_; }

  private:
    SharedState state_;
    EngineArrays engine_;
    OpenProject project_;
    Dialogs& boxes_;
    Printer& printer_;
    ScreenWindow window_;
    ProgramScreens screens_{window_};
    Session session_{state_, engine_, project_, boxes_, printer_, screens_};
};

} // namespace tarn
