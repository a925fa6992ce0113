#pragma once

#include "app/SharedState.h"
#include "engine/EngineArrays.h"
#include "estimate/CarpetEstimate.h"

#include <string>

namespace tarn {

/// An estimate as a JSON document (UTF-8, ends with a line feed). Coordinates x1 .. y2 are
/// hundredths of an inch, posX .. posL and all lengths inches, `base` is in the rooms' small unit.
/// `improved` is there when the layout was improved: what it was and is, and the bound, inches.
std::string EstimateJson(const SharedState& state, const EngineArrays& engine,
                         const CarpetEstimate& estimate);

} // namespace tarn
