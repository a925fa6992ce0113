#include "engine/improve/Searches.h"

#include <algorithm>

namespace tarn {

std::vector<PlanStart> RankedStarts(ImproveRun& run, Plan& plan) {
    std::vector<PlanStart> starts;
    for (std::size_t order = 0; order < plan.Orders(); ++order) {
        for (std::size_t rule = 0; rule < PlacingRule::Count; ++rule) {
            if (run.Stopped()) {
                break;
            }
            const PlacingRule placing = PlacingRule::Number(rule);
            plan.Begin(order, placing);
            const Area64 length = plan.Length(LongestRoll);
            starts.push_back({order, placing, length});
            if (length <= run.Best().Length) {
                run.Offer(plan.Layout());
            }
            run.Spend();
        }
    }
    std::stable_sort(starts.begin(), starts.end(),
                     [](const PlanStart& a, const PlanStart& b) { return a.Length < b.Length; });
    return starts;
}

bool PackBelow(ImproveRun& run, Plan& plan, const PlanStart& start, Long roof, std::int64_t steps,
               RandomSteps& random) {
    plan.Begin(start.Order, start.Rule);
    Area64 unpacked = plan.Unpacked(roof, NoLimit);
    bool goOn = run.Spend();
    for (std::int64_t step = 0; unpacked > 0 && goOn && step < steps; ++step) {
        plan.Change(random, true);
        const Area64 changed = plan.Unpacked(roof, unpacked);
        if (changed <= unpacked) {
            unpacked = changed;
        } else {
            plan.Undo();
        }
        goOn = run.Spend();
    }
    if (unpacked > 0) {
        return false;
    }
    run.Offer(plan.Layout());
    return true;
}

void Shorten(ImproveRun& run, Plan& plan, const PlanStart& start, std::int64_t steps,
             RandomSteps& random) {
    plan.Begin(start.Order, start.Rule);
    Area64 length = plan.Length(LongestRoll);
    bool goOn = run.Spend() && length <= LongestRoll;
    for (std::int64_t step = 0; goOn && !run.IsLeast() && step < steps; ++step) {
        plan.Change(random, false);
        const Area64 changed = plan.Length(length);
        if (changed <= length) {
            length = changed;
            if (length < run.Best().Length) {
                run.Offer(plan.Layout());
            }
        } else {
            plan.Undo();
        }
        goOn = run.Spend();
    }
}

void Polish(ImproveRun& run, Plan& plan, Long roof, std::int64_t steps, RandomSteps& random) {
    if (plan.Unpacked(roof, 0) > 0) {
        return;
    }
    LayoutMerit merit = run.Offer(plan.Layout());
    bool goOn = run.Spend();
    for (std::int64_t step = 0; goOn && step < steps; ++step) {
        plan.Change(random, true);
        bool kept = plan.Unpacked(roof, 0) == 0;
        if (kept) {
            const LayoutMerit changed = run.Offer(plan.Layout());
            kept = !merit.BetterThan(changed);
            step = changed.BetterThan(merit) ? 0 : step;
            merit = kept ? changed : merit;
        }
        if (!kept) {
            plan.Undo();
        }
        goOn = run.Spend();
    }
}

} // namespace tarn
