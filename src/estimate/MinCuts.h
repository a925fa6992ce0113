// The minimum cut lengths that are offered: their captions, and the lengths in force behind them.

#pragma once

#include "base/Types.h"
#include "base/Units.h"
#include "estimate/EstimateRequest.h"

#include <array>
#include <string>
#include <string_view>

namespace tarn {

/// The minimum cuts, longest first, with the captions under which they are offered.
///
/// Each means two lengths. The search counts a caption's feet as inches, and limits parts to 3
/// inches for "3 FT"; installers know its results, so that this stays, and the length in force is
/// told beside the caption. The improving search keeps to the length that the caption names.
inline constexpr std::array<MinCut, 3> AllMinCuts{MinCut::ThreeFeet, MinCut::FootAndAHalf,
                                                  MinCut::HalfFoot};

/// "3 FT" or "91 cm".
std::string_view MinCutCaption(MinCut minCut, Units units);

/// The minimum cut of the search, coordinate units of `scale` inches: the caption's feet taken as
/// inches, truncated; in metric projects times 2.54 once more and rounded, halves to even. Raises
/// "Overflow" when it does not fit.
Integer MinCutUnits(MinCut minCut, Units units, Double scale);

/// The minimum cut that the caption names, inches; in metric projects its whole centimetres.
Double MinCutOfCaption(MinCut minCut, Units units);

/// The length in force in the search behind a caption, which names another one: "3 inches", "0.5
/// inch", or "19.4 cm". Raises as MinCutUnits.
std::string MinCutInForce(MinCut minCut, Units units, Double scale);

} // namespace tarn
