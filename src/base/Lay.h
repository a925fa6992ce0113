#pragma once

namespace tarn {

/// How a carpet lies in a room: with the roll's width along the room's width (down), or along its
/// length (cross). All rooms of an estimate are laid alike.
enum class Lay { Down, Cross };

} // namespace tarn
