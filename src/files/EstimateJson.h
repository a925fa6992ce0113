#pragma once

#include "estimate/Estimate.h"

#include <string>

namespace tarn {

/// An estimate as a JSON document (UTF-8, ends with a line feed). Coordinates x1 .. y2 are
/// coordinate units (hundredths of an inch), posX .. posL and all lengths inches, `base` is in the
/// rooms' small unit. `improved` is there when the layout was improved: what it was and is, and the
/// bound, inches.
std::string EstimateJson(const Estimate& estimate);

} // namespace tarn
