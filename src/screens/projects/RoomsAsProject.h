#pragma once

#include "screens/RoomSource.h"
#include "screens/Session.h"

namespace tarn {

/// Make a project of rooms from outside: asks for the units of their sizes and for a name, stores
/// the project in the directory in force, and goes on to its menu. Where the rooms cannot be read,
/// there are none, the store fails, or the user gives up, a message says so (but for the last) and
/// everything is as it was.
void MakeProjectOf(const RoomSource& source, Session& session);

} // namespace tarn
