#pragma once

#include "app/SharedState.h"
#include "engine/EngineArrays.h"
#include "engine/improve/ImproveLayout.h"

namespace tarn {

/// The undivided pieces of a searched layout as a job of the improving search, in whole units: a
/// thousandth of an inch, or of a centimetre in metric mode, or the largest multiple of that in
/// which all sizes are whole. So whole inches and whole centimetres stay exact.
///
/// The parts are cut at whole inches (centimetres), as the cut list shows them, and are at least as
/// long as the caption of the minimum cut says: 36, 18 or 6 inches, 91, 46 or 15 cm. (The search
/// before counts the figure as inches: see MinCutUnits.)
struct RollJob {
    ImproveJob Job;
    Double AcrossUnit = 0; ///< inches
    Double AlongUnit = 0;
    bool Possible = false; ///< false without a piece, or when one is too wide for the roll

    Single Across(Long units) const;
    Single Along(Long units) const;
};

/// The job that MultiEstimate left in `engine` (Undivided, OrgCount, MaxParts).
RollJob RollJobOf(const SharedState& state, const EngineArrays& engine);

/// The merit of the layout in `engine`. A length that is a whole number of units but for the
/// tolerance of equal lengths counts as the nearest one. Any other is raised to the next, with a
/// merit that no layout of that length surpasses, since all of them are longer.
LayoutMerit LayoutMeritOf(const RollJob& roll, const EngineArrays& engine);

/// Put a whole layout of the job into the arrays in place of the one that is there, as
/// MultiEstimate leaves one, BestMode and CaseCount apart, which stay the record of that search.
/// Raises as FinishLayout.
void TakeLayout(const RollJob& roll, const std::vector<ImprovePart>& parts, EngineArrays& engine,
                Double dimScale);

} // namespace tarn
