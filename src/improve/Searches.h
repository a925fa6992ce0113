// The two searches that a run alternates, each of them changing a plan step by step.

#pragma once

#include "improve/ImproveRun.h"
#include "improve/Plan.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tarn {

/// Something that a search can start from.
struct PlanStart {
    std::size_t Order;
    PlacingRule Rule;
    Area64 Length; ///< that it gives by itself
};

/// Lay out every start of a plan and rank them, shortest first; equal ones keep their order. Offers
/// each layout to the run.
std::vector<PlanStart> RankedStarts(ImproveRun& run, Plan& plan);

/// Whether nothing is known about layouts below `roof` yet. Another search may have found out.
inline bool IsOpen(const ImproveRun& run, Long roof) {
    return run.Bound() <= roof && roof < run.Best().Length;
}

/// Decision search: change the plan, and keep what leaves no more unpacked below `roof`, until all
/// is packed, or after `steps`, or when another search has decided about the roof. When that gains
/// nothing for a while, a few changes are made whatever they do, to go on from there; what comes of
/// it is dropped if it stays worse. What was packed is offered. True when the best layout ends
/// below `roof` then: all may be packed in more parts than a layout may have.
bool PackBelow(ImproveRun& run, Plan& plan, const PlanStart& start, Long roof, std::int64_t steps,
               RandomSteps& random);

/// Length search: change the plan, and keep what is not longer, for `steps`. Offers what is
/// as short as the best.
void Shorten(ImproveRun& run, Plan& plan, const PlanStart& start, std::int64_t steps,
             RandomSteps& random);

/// Change a plan that packs all below `roof`, and keep what does so with no less merit, for
/// `steps` after the last gain: fewer joins, then a larger free end.
void Polish(ImproveRun& run, Plan& plan, Long roof, std::int64_t steps, RandomSteps& random);

} // namespace tarn
