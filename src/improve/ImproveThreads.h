#pragma once

#include "improve/ImproveRun.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tarn {

/// What an improving search came to.
struct ImproveOutcome {
    LayoutMerit Best;
    std::vector<ImprovePart> Parts; ///< the best layout; empty while that is the start
    Long RulesBound = 0;            ///< as ImproveRun's
    std::int64_t Steps = 0;         ///< of all threads

    Long Bound() const { return std::min(RulesBound, Best.Length); }
};

/// How many threads a search with those limits takes: as many as they say, at most MostThreads.
/// When they say 0, as many as there are cores; but one when they count steps, so that these give
/// the same layout on every computer.
std::size_t ThreadsFor(const ImproveLimits& limits);
inline constexpr std::size_t MostThreads = 8;

/// Improve a job from a start of merit `start`, as Improve does, on the calling thread and more,
/// each with a seed of its own. The report is called on the calling thread alone.
///
/// Within a time the threads tell each other the best layout and the bound at once. When steps are
/// counted each of them takes its share and knows nothing of the others until the end, so that
/// seed, steps and number of threads give the same layout, to the last bit.
///
/// Raises what the report raises.
ImproveOutcome ImproveOnThreads(const ImproveJob& job, const LayoutMerit& start,
                                const ImproveLimits& limits, const ImproveReport& report);

} // namespace tarn
