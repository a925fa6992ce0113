// The tints by which the whole view of a roll tells rooms apart, also for eyes that see fewer
// colours. Letters and hatches carry the meaning without them.

#pragma once

#include "screens/roll/RollChart.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace tarn {

/// How many rooms have tints of their own.
inline constexpr std::size_t TintCount = 8;

/// 0xRRGGBB for light and for dark surroundings.
struct Tint {
    std::uint32_t Light;
    std::uint32_t Dark;
};
const std::array<Tint, TintCount>& Tints();

/// Give each piece the tint of its room; `rooms` are the rooms of the pieces, by their places in
/// the project. The tints take turns in the order of the rooms, however these lie: so a room keeps
/// its tint on every roll that it can be cut from, and rooms have tints of their own while there
/// are enough.
void GiveTints(std::vector<ChartPiece>& pieces, const std::vector<std::size_t>& rooms);

} // namespace tarn
