#pragma once

#include "base/Types.h"

namespace tarn {

/// The unit of everything that is laid out: 1/1440 inch.
inline constexpr Double TwipsPerInch = 1440;
inline constexpr Double TwipsPerPoint = 20;

} // namespace tarn
