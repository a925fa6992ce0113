#pragma once

#include "engine/EngineArrays.h"

namespace tarn {

/// The width that pieces may use, inches: the whole roll when FillFlag is 1, else two inches less.
Single UsableWidth(const EngineArrays& engine);

/// The roll length in use, inches: the largest PosY + PosL over the placed pieces, 0 without any.
Single GetPCLen(const EngineArrays& engine);

/// Sort the pieces 0 .. CutCount - 1 by size with the given power (see QuickSortPiece), number them
/// in that order (PCOrder) and place them one by one on the empty roll (see
/// RollLayout::FillOnePieceNew). Raises as those do.
void ReorderPiece(EngineArrays& engine, Integer power, Double dimScale);

} // namespace tarn
