// The ruler along a roll.

#pragma once

#include "base/Units.h"

#include <string>
#include <vector>

namespace tarn {

/// A mark of the ruler.
struct RulerTick {
    double At = 0;     ///< along the roll, in the chart's unit
    std::string Label; ///< "15'" or "4.5 m"; empty for a small mark
};

/// The marks from `from` to `to` where a unit of the chart is drawn `scale` long: labels at whole
/// steps that leave at least `leastApart` between them, small marks between them while those are at
/// least a tenth of that apart. Labels are feet or metres.
std::vector<RulerTick> RulerTicks(Units units, double from, double to, double scale,
                                  double leastApart);

} // namespace tarn
