#pragma once

#include "paper/Printer.h"
#include "screens/Dialogs.h"
#include "screens/Preferences.h"
#include "screens/ProgramScreens.h"
#include "screens/RoomSource.h"
#include "screens/Session.h"
#include "store/DataFolder.h"

#include <QLocale>

#include <filesystem>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace tarn {

/// The program between its start and its end: the open project, the store, the window and its
/// screens.
class Program {
  public:
    Program(Dialogs& boxes, Printer& printer);
    /// What is unsaved is kept in its draft, what is being printed is printed.
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    /// Offer, once the first screen is there, to make a project of these rooms. To be called before
    /// Start.
    void OfferRooms(RoomSource rooms) { rooms_ = std::move(rooms); }

    /// Refuse a display that is too small, find the data folder, open the store, show the project
    /// selection in the directory of the month and, once it is painted, read the printer's page.
    /// `today` answers the day whenever a screen asks for it. A store that cannot be opened is told
    /// when a screen first needs it. False, after a message, when the program cannot run: the
    /// display is too small, there is no usable configuration file and the offer to make a data
    /// folder is not taken, or the start fails otherwise.
    bool Start(const std::vector<std::filesystem::path>& configurationDirectories,
               QSize displayPixels, const std::function<QDate()>& today, const QLocale& locale);

    ScreenWindow& Window() { return window_; }
    const OpenProject& Project() const { return project_; }
    PageTwips Page() const { return page_; }

  private:
    bool CanRun(const std::vector<std::filesystem::path>& configurationDirectories,
                QSize displayPixels);
    /// Where nothing is configured: offer to make a data folder. Answers whether it was made.
    bool IsFirstStartMade(const std::vector<std::filesystem::path>& directories);
    void Show(const QLocale& locale);
    /// Make the backup that goes before the first change of a run. A message says when it cannot be
    /// made.
    void BackUp();

    std::optional<RoomSource> rooms_; ///< to make a project of
    OpenProject project_;
    ProjectStore store_;
    DataFolder folder_;
    PageTwips page_;
    Dialogs& boxes_;
    PrintQueue printing_;
    ProgramScreens screens_{window_};
    DraftKeeper drafts_{project_};
    Preferences preferences_{UserPreferencesFile()};
    RoomHistory history_{project_};
    Session session_{project_, store_,  page_,        boxes_,  printing_,
                     screens_, drafts_, preferences_, history_};
    ScreenWindow window_; // the last one: its screens are unloaded before the session goes
};

} // namespace tarn
