#include "improve/ImproveJob.h"

#include <algorithm>

namespace tarn {

Long PartsAllowed(const ImproveJob& job, const ImproveFill& fill) {
    return std::max(1, std::min(fill.Parts, fill.Length / std::max(1, job.MinPart)));
}

bool AnyDivisible(const ImproveJob& job) {
    return std::any_of(job.Fills.begin(), job.Fills.end(),
                       [&](const ImproveFill& fill) { return PartsAllowed(job, fill) > 1; });
}

bool HasPattern(const ImproveJob& job) {
    const bool repeats = job.Repeat.Across > 0 || job.Repeat.Along > 0;
    return repeats && std::any_of(job.Fills.begin(), job.Fills.end(),
                                  [](const ImproveFill& fill) { return fill.Room != NoRoom; });
}

Area64 TotalArea(const ImproveJob& job) {
    Area64 area = 0;
    for (const ImproveFill& fill : job.Fills) {
        area += static_cast<Area64>(fill.Width) * fill.Length;
    }
    return area;
}

Area64 StackedLength(const ImproveJob& job) {
    Area64 length = 0;
    for (const ImproveFill& fill : job.Fills) {
        length += fill.Length;
    }
    return length;
}

} // namespace tarn
