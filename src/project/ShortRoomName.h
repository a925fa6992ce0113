#pragma once

#include "project/Project.h"

#include <cstddef>
#include <string>

namespace tarn {

/// What the room at `place`, counted from 0, is called where there is little space, as on a piece
/// of a roll: by its number, or else its remark, or else its place ("room 3"). In one line.
std::string ShortRoomName(const Project& project, std::size_t place);

} // namespace tarn
