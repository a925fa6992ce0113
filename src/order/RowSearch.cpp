#include "order/RowSearch.h"

#include "improve/Bounds.h"
#include "improve/Improver.h"
#include "improve/MakePlan.h"

#include <limits>

namespace tarn {

namespace {

/// A layout worse than any.
LayoutMerit WorstMerit() {
    return {std::numeric_limits<Long>::max(), std::numeric_limits<Long>::max(), 0};
}

std::vector<ImprovePart> PlainLayout(const ImproveJob& job) {
    const std::unique_ptr<Plan> plan = MakePlan(job);
    plan->Begin(0, PlacingRule{});
    plan->Length(LongestRoll);
    std::vector<ImprovePart> parts = plan->Layout();
    JoinAndOrder(parts, HasPattern(job));
    return parts;
}

} // namespace

void SearchRow(const RowLayout& row, const ImproveLimits& limits,
               const std::function<bool(const RowFinding*)>& tell) {
    const ImproveJob& job = row.Job();
    if (job.Fills.empty()) {
        const RowFinding all{{}, row.StackedLength()};
        tell(&all);
        return;
    }
    RowFinding finding{PlainLayout(job), row.StackedLength() + QuickBound(job)};
    if (!tell(&finding)) {
        return;
    }
    LayoutMerit told = MeritOf(job, finding.Parts);
    const ImproveRun* running = nullptr;
    const auto report = [&](Long /*best*/, Long bound) {
        const Long least = row.StackedLength() + std::min(bound, running->Best().Length);
        const bool better = running->Best().BetterThan(told);
        if (better) {
            told = running->Best();
            finding.Parts = running->BestParts();
        }
        const bool news = better || least > finding.Least;
        finding.Least = std::max(least, finding.Least);
        return tell(news ? &finding : nullptr);
    };
    ImproveRun run(job, WorstMerit(), limits, report);
    running = &run;
    run.Offer(finding.Parts);
    Improve(run, limits.Seed);
}

} // namespace tarn
