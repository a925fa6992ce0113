#pragma once

#include "app/Screens.h"
#include "app/SharedState.h"
#include "rooms/OpenProject.h"

#include <string>

namespace tarn {

/// What the menu shows after its load, beside the shared state and OpenProject.
struct MenuLoad {
    bool Unsaved = false; ///< the rooms in memory are not saved
    std::string Message;  ///< to be shown once; empty for none
};

/// Load the project CurProjName for the menu: its sheet number, its sheet and its rooms, whether
/// ESTIMATE is offered, and whether the project can be used. Unsaved rooms that another screen
/// comes back with stay as they are, and the database is not read. In every case MetricFlag
/// becomes 0. Raises nothing of its own: the cause of a failure is the message.
MenuLoad LoadMenu(SharedState& state, OpenProject& project, MenuEntry entry);

/// Set CurTabIndex and NewSheetFlag for the room entry: the project's sheet number, or, while it
/// has none, the one allocated when the menu was loaded. Unsaved rooms keep both, without reading
/// the database. Raises DatabaseError and as FindProjTabIndex.
void TakeSheetNumber(SharedState& state, const OpenProject& project);

/// Whether one of the rooms is a carpet. Loads nothing, in spite of its name.
bool LoadData(const SharedState& state);

} // namespace tarn
