#include "improve/ImproveRun.h"

#include <algorithm>
#include <utility>

namespace tarn {

namespace {

constexpr std::int64_t AskEvery = 16; ///< steps
constexpr Double AskAfter = 0.02;     ///< seconds

} // namespace

ImproveRun::ImproveRun(const ImproveJob& job, const LayoutMerit& start, const ImproveLimits& limits,
                       ImproveReport report)
    : job_(job)
    , limits_(limits)
    , report_(std::move(report))
    , best_(start) {}

bool ImproveRun::Spend() {
    ++steps_;
    if (limits_.Steps > 0 && steps_ >= limits_.Steps) {
        stopped_ = true;
    }
    const Double passed = LookAtTime();
    const bool due = steps_ % AskEvery == 0 || passed - told_ >= AskAfter;
    return due ? Ask() : !stopped_;
}

Double ImproveRun::LookAtTime() {
    const Double passed = Passed();
    if (limits_.Seconds > 0 && passed >= limits_.Seconds) {
        stopped_ = true;
    }
    return passed;
}

bool ImproveRun::Ask() {
    LookAtTime();
    if (!stopped_) {
        Tell();
    }
    return !stopped_;
}

/// A gain that the last step of a limit brings is told too.
void ImproveRun::Tell() {
    if (!refused_ && !report_(best_.Length, bound_)) {
        refused_ = stopped_ = true;
    }
    told_ = Passed();
}

LayoutMerit ImproveRun::Offer(std::vector<ImprovePart> parts) {
    JoinAndOrder(parts, HasPattern(job_));
    const LayoutMerit merit = MeritOf(job_, parts);
    if (merit.Parts <= job_.MostPieces && merit.BetterThan(best_)) {
        best_ = merit;
        bestParts_ = std::move(parts);
        Tell();
    }
    return merit;
}

void ImproveRun::Learn(const LayoutMerit& best, const std::vector<ImprovePart>& parts, Long bound) {
    if (best.BetterThan(best_)) {
        best_ = best;
        bestParts_ = parts;
    }
    bound_ = std::max(bound_, bound);
}

void ImproveRun::RaiseBound(Long bound) {
    if (bound > bound_) {
        bound_ = bound;
        Tell();
    }
}

} // namespace tarn
