#include "improve/ImproveLayout.h"

#include <algorithm>
#include <tuple>

namespace tarn {

namespace {

bool Continues(const ImprovePart& a, const ImprovePart& b, bool pattern) {
    return a.Fill == b.Fill && a.X == b.X && a.Y + a.Length == b.Y &&
           (!pattern || a.From + a.Length == b.From);
}

/// How far the parts reach between two edges across the roll.
Long ReachBetween(const std::vector<PartEnd>& ends, Long left, Long right) {
    Long reach = 0;
    for (const PartEnd& part : ends) {
        if (part.X < right && part.X + part.Width > left) {
            reach = std::max(reach, part.End);
        }
    }
    return reach;
}

} // namespace

bool LayoutMerit::BetterThan(const LayoutMerit& other) const {
    return std::tie(Length, Parts, other.FreeEnd) < std::tie(other.Length, other.Parts, FreeEnd);
}

void JoinAndOrder(std::vector<ImprovePart>& parts, bool pattern) {
    std::sort(parts.begin(), parts.end(), [](const ImprovePart& a, const ImprovePart& b) {
        return std::tie(a.Fill, a.X, a.Y) < std::tie(b.Fill, b.X, b.Y);
    });
    std::vector<ImprovePart> joined;
    for (const ImprovePart& part : parts) {
        if (!joined.empty() && Continues(joined.back(), part, pattern)) {
            joined.back().Length += part.Length;
        } else {
            joined.push_back(part);
        }
    }
    std::sort(joined.begin(), joined.end(), [](const ImprovePart& a, const ImprovePart& b) {
        return std::tie(a.Y, a.X) < std::tie(b.Y, b.X);
    });
    parts = std::move(joined);
}

LayoutMerit MeritOf(const ImproveJob& job, const std::vector<ImprovePart>& parts) {
    LayoutMerit merit;
    std::vector<PartEnd> ends;
    for (const ImprovePart& part : parts) {
        ends.push_back({part.X, job.Fills[part.Fill].Width, part.Y + part.Length});
        merit.Length = std::max(merit.Length, part.Y + part.Length);
    }
    merit.Parts = static_cast<Long>(parts.size());
    merit.FreeEnd = LargestFreeEnd(ends, job.Width, merit.Length);
    return merit;
}

Area64 LargestFreeEnd(const std::vector<PartEnd>& ends, Long width, Long length) {
    std::vector<Long> edges{0, width};
    for (const PartEnd& part : ends) {
        edges.push_back(std::clamp(part.X, 0, width));
        edges.push_back(std::clamp(part.X + part.Width, 0, width));
    }
    std::sort(edges.begin(), edges.end());
    edges.erase(std::unique(edges.begin(), edges.end()), edges.end());
    std::vector<Long> reach;
    for (std::size_t i = 0; i + 1 < edges.size(); ++i) {
        reach.push_back(ReachBetween(ends, edges[i], edges[i + 1]));
    }
    Area64 largest = 0;
    for (std::size_t left = 0; left < reach.size(); ++left) {
        Long farthest = 0;
        for (std::size_t right = left; right < reach.size(); ++right) {
            farthest = std::max(farthest, reach[right]);
            const Area64 across = edges[right + 1] - edges[left];
            largest = std::max(largest, across * (length - farthest));
        }
    }
    return largest;
}

} // namespace tarn
