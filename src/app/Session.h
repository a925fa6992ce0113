#pragma once

#include "app/Dialogs.h"
#include "app/Printer.h"
#include "app/Screens.h"
#include "app/SharedState.h"
#include "engine/EngineArrays.h"
#include "rooms/OpenProject.h"

#include <QDate>

#include <functional>

namespace tarn {

/// What a screen works on and through. One exists in the program; a test makes its own, with
/// recorders for the boxes, the printer and the other screens.
struct Session {
    SharedState& State;
    EngineArrays& Engine;
    OpenProject& Project;
    Dialogs& Boxes;
    Printer& Paper;
    Screens& Go;
    std::function<QDate()> Today = &QDate::currentDate;
};

} // namespace tarn
