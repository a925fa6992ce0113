#pragma once

#include <optional>
#include <string>

namespace tarn {

struct Session;

/// Save the open project, and end its draft. When another program changed, renamed or deleted it
/// meanwhile, ask what to do before anything is stored. Answers what to say of rooms that it stored
/// without a size for the first time (see EmptyRoomsText); nothing when the user gave it up: then
/// nothing is stored, and the rooms stay in memory. Raises as ProjectStore::Save, with nothing
/// changed.
std::optional<std::string> SaveOrAsk(Session& session);

} // namespace tarn
