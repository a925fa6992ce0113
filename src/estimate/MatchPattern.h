#pragma once

#include "app/SharedState.h"
#include "engine/EngineArrays.h"
#include "estimate/CarpetEstimate.h"
#include "estimate/Totals.h"

#include <string>
#include <string_view>

namespace tarn {

/// Take a pattern repeat from its typed texts (width across, length along) and set MatchFlag: whole
/// inches, halves to even, in feet and inches; in metric mode whole centimetres, kept as typed and
/// also turned into the nearest whole inches. Raises "Overflow" when a number does not fit.
void SetMatchPattern(CarpetEstimate& estimate, std::string_view width, std::string_view length,
                     bool metric);

/// The repeat as the cut list shows it, in the unit in which it was typed.
std::string RepeatText(const CarpetEstimate& estimate, bool metric);

/// The roll needed when every cut and the fills begin on a repeat.
struct MatchTotals {
    Long Length = 0; ///< whole inches, or whole centimetres when metric
    Area Size;       ///< of that length at the roll's width
};

/// Every cut's length along the roll and ResultLen, each made whole inches (whole centimetres) as
/// on the cut list and then raised to the next whole multiple of the repeat's length; an exact
/// multiple stays, and so does everything for a repeat of 0 or less. Raises "Overflow" beyond a
/// Long.
MatchTotals TotalMatch(const SharedState& state, const EngineArrays& engine,
                       const CarpetEstimate& estimate);

} // namespace tarn
