#include "improve/Bounds.h"

#include <algorithm>
#include <limits>
#include <set>

namespace tarn {

namespace {

/// a / b rounded up, for a of 0 and more.
Area64 CeilOf(Area64 a, Area64 b) {
    return (a + b - 1) / b;
}

Long AsLong(Area64 length) {
    return static_cast<Long>(std::min<Area64>(length, std::numeric_limits<Long>::max()));
}

/// The bound of a function that counts `of(width)` for a fill and `whole` for the roll.
template <typename Of>
Area64 BoundBy(const ImproveJob& job, Area64 whole, Of of) {
    Area64 sum = 0;
    for (const ImproveFill& fill : job.Fills) {
        sum += of(static_cast<Area64>(fill.Width)) * fill.Length;
    }
    return CeilOf(sum, whole);
}

/// Widths are counted in steps of the roll's (k + 1)th part, rounded down; an exact multiple
/// keeps its own share.
Area64 StepBound(const ImproveJob& job, Area64 k) {
    const Area64 roll = job.Width;
    return BoundBy(job, k * roll, [&](Area64 width) {
        const Area64 scaled = (k + 1) * width;
        return scaled % roll == 0 ? k * width : scaled / roll * roll;
    });
}

/// Widths above the roll less `least` count as the roll, those below `least` not at all.
Area64 ThresholdBound(const ImproveJob& job, Area64 least) {
    const Area64 roll = job.Width;
    return BoundBy(job, roll, [&](Area64 width) {
        if (width > roll - least) {
            return roll;
        }
        return width < least ? 0 : width;
    });
}

} // namespace

Long AreaBound(const ImproveJob& job) {
    return AsLong(CeilOf(TotalArea(job), job.Width));
}

Long LongestBound(const ImproveJob& job) {
    Long longest = 0;
    for (const ImproveFill& fill : job.Fills) {
        const Long beside = std::min(PartsAllowed(job, fill), job.Width / fill.Width);
        longest = std::max(longest, AsLong(CeilOf(fill.Length, std::max(1, beside))));
    }
    return longest;
}

Long StackBound(const ImproveJob& job) {
    Area64 length = 0;
    for (const ImproveFill& fill : job.Fills) {
        if (2 * static_cast<Area64>(fill.Width) > job.Width) {
            length += fill.Length;
        }
    }
    return AsLong(length);
}

Long DualFeasibleBound(const ImproveJob& job) {
    constexpr Area64 MostSteps = 40;
    Area64 best = 0;
    for (Area64 k = 1; k <= MostSteps; ++k) {
        best = std::max(best, StepBound(job, k));
    }
    std::set<Long> thresholds;
    for (const ImproveFill& fill : job.Fills) {
        for (const Long threshold : {fill.Width, job.Width - fill.Width + 1}) {
            if (threshold > 0 && 2 * static_cast<Area64>(threshold) <= job.Width) {
                thresholds.insert(threshold);
            }
        }
    }
    for (const Long threshold : thresholds) {
        best = std::max(best, ThresholdBound(job, threshold));
    }
    return AsLong(best);
}

Long QuickBound(const ImproveJob& job) {
    return std::max({AreaBound(job), LongestBound(job), StackBound(job), DualFeasibleBound(job)});
}

} // namespace tarn
