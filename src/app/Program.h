#pragma once

#include "app/Dialogs.h"
#include "app/Printer.h"
#include "app/ProgramScreens.h"
#include "app/Session.h"

#include <QLocale>

#include <filesystem>
#include <functional>
#include <vector>

namespace tarn {

/// The program between its start and its end: the shared state, the window and its screens.
class Program {
  public:
    Program(Dialogs& boxes, Printer& printer);

    /// Main: refuse a display that is too small, prepare the shared state, show the project
    /// selection and, once it is painted, read the printer's page. `today` answers the day whenever
    /// a screen asks for it. False, after a message, when the program cannot run: the display is
    /// too small, there is no usable configuration file, or the start fails otherwise.
    bool Main(const std::vector<std::filesystem::path>& configurationDirectories,
              QSize displayPixels, const std::function<QDate()>& today, const QLocale& locale);

    ScreenWindow& Window() { return window_; }
    const SharedState& State() const { return state_; }

  private:
    bool Start(const std::vector<std::filesystem::path>& configurationDirectories,
               QSize displayPixels, const QLocale& locale);

    SharedState state_;
    EngineArrays engine_;
    OpenProject project_;
    Dialogs& boxes_;
    Printer& printer_;
    ProgramScreens screens_{window_};
    Session session_{state_, engine_, project_, boxes_, printer_, screens_};
    ScreenWindow window_; // the last one: its screens are unloaded before the session goes
};

} // namespace tarn
