// The letters of the entered-data report, for whoever sets it: on paper, in files, on the screen.

#pragma once

#include "base/Twips.h"

namespace tarn {

/// The size of the report's letters on paper and in files, twips.
inline constexpr Double ReportTypeSize = 12 * TwipsPerPoint;

/// The width of every letter of "Courier New", of its size; its line height and ascent likewise.
inline constexpr Double CourierAdvance = 0.6;
inline constexpr Double CourierLineHeight = 1.1328;
inline constexpr Double CourierAscent = 0.8333;

} // namespace tarn
