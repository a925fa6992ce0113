// What the cut list, the drawing and other programs call a fill and a cut.

#pragma once

#include "estimate/Estimate.h"

#include <string>

namespace tarn {

/// The letters of fill number `number` of so many: A, B, .. while there are fewer than 27, else two
/// letters AA .. AZ, BA .. The parts of a fill share its letters.
std::string FillLabel(Integer number, std::size_t fills);
/// The letters of a placed piece of the estimate.
std::string LabelOf(const Estimate& estimate, const Piece& piece);

/// What the estimate's cut of that place is called: Cut1, Cut2, ..
std::string CutLabel(std::size_t cut);

} // namespace tarn
