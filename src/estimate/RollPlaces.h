// The roll as an estimate reckons with it: the cuts one behind the other, then the fills.

#pragma once

#include "estimate/Estimate.h"

#include <vector>

namespace tarn {

/// Where things begin along the roll, inches from its start.
struct RollPlaces {
    std::vector<Double> Cuts;
    Double Fills = 0;
    Double Length = 0; ///< of the roll: as it is totalled, and never less than the layout takes
};

/// The places of an estimate. With a match pattern every cut and the fills begin on a repeat, as
/// the match pattern's total has it. Raises "Overflow" when a length does not fit.
RollPlaces PlacesOnRoll(const Estimate& estimate);

} // namespace tarn
