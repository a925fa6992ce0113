#pragma once

#include "engine/EngineArrays.h"

namespace tarn {

/// Set the length that is reported to the user, ResultLen: the length in use raised to a multiple
/// of 3, by whole inches. Raises "Overflow" when it does not fit, with the way out.
void ShowResultPic(EngineArrays& engine);

/// What follows when every piece has its place: check the layout (CheckFill), clean it up, set
/// ResultLen, and hand the pieces back in the order of their creation and in the caller's
/// orientation. On entry the pieces lie along Y, with PCOrder numbering them in placing order.
/// Raises as CheckFill and ShowResultPic, and "Overflow" when a coordinate does not fit.
void FinishLayout(EngineArrays& engine, Double dimScale);

} // namespace tarn
