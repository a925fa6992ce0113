#include "improve/Searches.h"

#include <algorithm>

namespace tarn {

namespace {

constexpr std::int64_t PatiencePerFill = 8; ///< steps without a gain
constexpr int KickChanges = 2;

} // namespace

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
    Area64 least = unpacked;
    const std::unique_ptr<Plan> best = plan.Copy();
    const std::int64_t patience =
        PatiencePerFill * static_cast<std::int64_t>(run.Job().Fills.size());
    std::int64_t sinceGain = 0;
    const bool wasOpen = IsOpen(run, roof);
    bool goOn = run.Spend();
    for (std::int64_t step = 0; unpacked > 0 && goOn && step < steps; ++step) {
        const bool kick = ++sinceGain > patience;
        if (kick) {
            if (unpacked <= least) {
                least = unpacked;
                best->TakeFrom(plan);
            } else {
                plan.TakeFrom(*best);
            }
            for (int change = 0; change < KickChanges; ++change) {
                plan.Change(random, true);
            }
        } else {
            plan.Change(random, true);
        }
        const Area64 changed = plan.Unpacked(roof, kick ? NoLimit : unpacked);
        if (kick || changed <= unpacked) {
            sinceGain = kick || changed < unpacked ? 0 : sinceGain;
            unpacked = changed;
        } else {
            plan.Undo();
        }
        goOn = run.Spend() && IsOpen(run, roof) == wasOpen;
    }
    if (unpacked > 0) {
        return false;
    }
    run.Offer(plan.Layout());
    return run.Best().Length <= roof;
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
            if (length <= run.Best().Length) {
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
