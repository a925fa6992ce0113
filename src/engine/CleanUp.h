#pragma once

#include "engine/Piece.h"

#include <vector>

// The check of a layout and its clean-up. The pieces of a layout lie along Y, in the order in which
// they were placed; `rollWidth` is the usable width, inches.
namespace tarn {

/// Verify a layout: each piece inside the usable width unless it is too wide for it, no two sharing
/// an area. Raises "Internal error" otherwise: a wrong cut list must not leave the engine.
void CheckLayout(const std::vector<Placed>& layout, Single rollWidth);

/// Join parts of one piece that came to lie end to end: one strip, one seam less. A joined part is
/// taken out of the layout.
void JoinParts(std::vector<Placed>& layout);

/// Move every piece that touches nothing to the left, against the nearest piece beside it or the
/// roll's edge. One pass in their order, each judged where the others stand at that moment.
void ShiftLooseLeft(std::vector<Placed>& layout, Single rollWidth);

} // namespace tarn
