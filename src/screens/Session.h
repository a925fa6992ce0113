#pragma once

#include "paper/PrinterPage.h"
#include "screens/Dialogs.h"
#include "screens/DraftKeeper.h"
#include "screens/OpenProject.h"
#include "screens/Preferences.h"
#include "screens/PrintQueue.h"
#include "screens/RoomHistory.h"
#include "screens/Screens.h"
#include "store/ProjectStore.h"

#include <QDate>

#include <functional>
#include <string>

namespace tarn {

/// What a screen works on and through. One exists in the program; a test makes its own, with
/// recorders for the boxes, the printer and the other screens.
struct Session {
    OpenProject& Project;
    ProjectStore& Store;
    PageTwips& Page; ///< of the printer, as it was read last
    Dialogs& Boxes;
    PrintQueue& Printing;
    Screens& Go;
    DraftKeeper& Drafts;
    Preferences& Kept;
    RoomHistory& History; ///< of the open project's rooms
    std::function<QDate()> Today = &QDate::currentDate;
    /// Tell something that needs no answer in a line of the window, until another screen is in
    /// front.
    std::function<void(const std::string&)> Note = [](const std::string&) {};
};

} // namespace tarn
