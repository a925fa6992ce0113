// Rooms from outside that are to become a project.

#pragma once

#include "base/Units.h"
#include "project/Room.h"

#include <functional>
#include <string>
#include <vector>

namespace tarn {

/// Where rooms come from, without any knowledge of how they are read.
struct RoomSource {
    std::string Name;    ///< as the user knows it: the name of a file
    std::string Project; ///< what the project may be called; put forward, not more
    /// The rooms, whose sizes are in those units. Raises std::runtime_error, which says what is
    /// wrong with them, line by line.
    std::function<std::vector<Room>(Units)> Read;
};

} // namespace tarn
