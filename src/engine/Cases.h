#pragma once

#include "app/SharedState.h"
#include "engine/EngineArrays.h"

namespace tarn {

/// Set MaxParts and MinCut from the estimate options.
///
/// MaxParts is the units digit of EstOption + 1. MinCut is MinCutUnits of the tens of EstOption.
/// Raises "Subscript out of range" for tens beyond MinCutLen, "Division by zero" for
/// a minimum cut of 0.
void DecodeOptions(const SharedState& state, EngineArrays& engine);

/// The number of cases of the first pass, also set as CaseCount; fills CaseRadix of the pieces
/// 0 .. PieceCount - 1. Only the first few pieces vary, so that there are about 80 cases whatever
/// the options. 0 when one of those that vary is shorter than the minimum cut.
Long GetTotalCase(EngineArrays& engine);

/// Set CaseDigit of the undivided pieces to case `number` (0 .. cases - 1) of the first pass: the
/// digits of the number, the radix of each being CaseRadix, the lowest digit first. Returns the
/// number of parts that makes in all.
Long DecodeCase(EngineArrays& engine, Long number);

/// Set CaseDigit of the undivided pieces to case `most` (0 .. MaxParts - 1) of the second pass: as
/// many cuts as the saved length of each holds minimum cuts, but at most `most`. Returns the number
/// of parts that makes in all.
Long DeriveCase(EngineArrays& engine, Integer most);

} // namespace tarn
