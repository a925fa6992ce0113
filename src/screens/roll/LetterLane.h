// The lane beside a row of the roll: there stand the letters of pieces that are too small for them,
// each with a line to its piece.

#pragma once

#include <cstddef>
#include <vector>

namespace tarn {

/// A letter of the lane, along it.
struct LaneLetter {
    std::size_t Piece = 0;
    double At = 0;     ///< where its piece has its middle
    double Extent = 0; ///< that the letter takes
    double Begin = 0;  ///< where it stands: what PlaceInLane finds
};

/// Place letters beside each other between `from` and `to`, in the order of their pieces and each
/// as near to its own as the others let it. Those that find no room are left out, the last ones
/// first.
std::vector<LaneLetter> PlaceInLane(std::vector<LaneLetter> letters, double from, double to);

} // namespace tarn
