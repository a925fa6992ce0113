#pragma once

#include "engine/EngineArrays.h"

namespace tarn {

/// Verify the layout: as many placed pieces as pieces, each inside the usable width unless it is
/// too wide for it, no two sharing an area. Raises "Internal error" otherwise: a wrong cut list
/// must not leave the engine.
void CheckFill(const EngineArrays& engine);

/// Join parts of one piece that came to lie end to end: one strip, one seam less. The pieces must
/// be in placing order. Takes the joined rows out of all arrays; the counts drop by one each.
void CombinePiece(EngineArrays& engine, Double dimScale);

/// Move every piece that touches nothing to the left, against the nearest piece beside it or the
/// roll's edge. One pass in ascending rows, each judged where the others stand at that moment.
void ShiftLeft(EngineArrays& engine);

} // namespace tarn
