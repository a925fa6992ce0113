// What the menu does with the open project when it loads, without a screen.

#pragma once

#include "screens/OpenProject.h"
#include "screens/Screens.h"

#include <string>

namespace tarn {

class ProjectStore;

/// What the menu shows after its load, beside the open project.
struct MenuLoad {
    bool Unsaved = false; ///< what is in memory is not saved
    std::string Message;  ///< to be shown once; empty for none
};

/// Load the open project by its name for the menu: its sheet and its rooms, whether ESTIMATE is
/// offered, and whether the project can be used; its directory stays the one in force. Unsaved
/// rooms, and requests for orders, that another screen comes back with stay as they are, and the
/// store is not read. In every case feet and inches are in force. Raises nothing of its own: the
/// cause of a failure is the message.
MenuLoad LoadMenu(OpenProject& project, ProjectStore& store, MenuEntry entry);

/// Set the number under which the room entry stores the rooms: that of the project's sheet, or,
/// while it has none, the one set aside when the menu was loaded. With unsaved changes it stays,
/// without reading the store. Raises as ProjectStore::SheetOf.
void TakeSheetNumber(OpenProject& project, ProjectStore& store);

/// Whether one of the project's rooms is a carpet.
bool HasCarpetRoom(const Project& project);

/// Whether the project has rooms and every one is a tile: there is nothing to cut from a roll.
bool HasTilesOnly(const Project& project);

} // namespace tarn
