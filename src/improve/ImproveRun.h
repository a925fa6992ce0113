#pragma once

#include "improve/ImproveLayout.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

namespace tarn {

/// How long an improving search goes on. It always ends when the best is the least possible.
struct ImproveLimits {
    Double Seconds = 0;      ///< 0 = no limit
    std::int64_t Steps = 0;  ///< layouts that are tried; 0 = no limit
    std::uint64_t Seed = 1;  ///< same seed, steps and threads: same result, to the last bit
    std::size_t Threads = 0; ///< see ThreadsFor; one search alone takes one
};

/// What a running search is asked now and then: the best length and the bound so far, in the job's
/// units. The bound is that of RulesBound. False stops the search.
using ImproveReport = std::function<bool(Long best, Long bound)>;

/// What the parts of one improving search share: the best layout and the bound so far, and whether
/// to go on.
class ImproveRun {
  public:
    /// `start` is the merit of the layout to be beaten. The report may raise; the run can then be
    /// asked for nothing but its best layout.
    ImproveRun(const ImproveJob& job, const LayoutMerit& start, const ImproveLimits& limits,
               ImproveReport report);

    const ImproveJob& Job() const { return job_; }

    /// Count one step. False when the search has to end.
    bool Spend();
    /// Look at the time and ask the caller without counting a step. False when the search has to
    /// end.
    bool Ask();
    const ImproveLimits& Limits() const { return limits_; }
    /// Seconds since the run began.
    Double Passed() const { return std::chrono::duration<Double>(Clock::now() - begin_).count(); }
    bool Stopped() const { return stopped_; }
    /// Whether it was the report that stopped it.
    bool Refused() const { return refused_; }
    std::int64_t Steps() const { return steps_; }

    /// Take a whole layout if it is better than the best. Returns its merit.
    LayoutMerit Offer(std::vector<ImprovePart> parts);
    void RaiseBound(Long bound);
    /// Take over what another search for the same job and start knows, where it is better; the
    /// report is not called for it.
    void Learn(const LayoutMerit& best, const std::vector<ImprovePart>& parts, Long bound);

    const LayoutMerit& Best() const { return best_; }
    /// The best layout; empty while that is the start.
    const std::vector<ImprovePart>& BestParts() const { return bestParts_; }
    /// No layout of the job's rules is shorter. Above the best length when the start, which may
    /// keep other rules, is shorter than all of them.
    Long RulesBound() const { return bound_; }
    /// The same, but never above the best length.
    Long Bound() const { return std::min(bound_, best_.Length); }
    bool IsLeast() const { return best_.Length <= bound_; }

  private:
    using Clock = std::chrono::steady_clock;

    /// Stop when the time is over. Returns the seconds that passed.
    Double LookAtTime();
    void Tell();

    const ImproveJob& job_;
    ImproveLimits limits_;
    ImproveReport report_;
    Clock::time_point begin_ = Clock::now();
    std::int64_t steps_ = 0;
    bool stopped_ = false;
    bool refused_ = false; ///< stopped by the caller, who is not asked again
    Double told_ = 0;      ///< seconds when the caller was last asked
    Long bound_ = 0;
    LayoutMerit best_;
    std::vector<ImprovePart> bestParts_;
};

} // namespace tarn
