#pragma once

// What the tests of the improving search on searched jobs share.

#include "engine/EngineTesting.h"
#include "improve/ImproveFills.h"
#include "improve/ImproveTesting.h"

namespace tarn::testing {

/// The rules of a divided piece of at least 6 inches.
inline constexpr ImproveRules SixInches{Units::Imperial, 6};

inline ImproveResult Improved(const SearchJob& job, const SearchResult& start,
                              const ImproveRules& rules = SixInches, std::int64_t steps = 500) {
    ImproveObserver nobody;
    return ImproveFills(job, start, rules, InSteps(steps), nobody);
}

/// The layout of one fill of that length, which begins `begin` inches behind the roll's start.
struct OneFill {
    SearchJob Job;
    SearchResult Result;

    OneFill(double length, Single begin)
        : Job(Divisible(MakeJob(144, {{100, length}}), 2))
        , Result(Searched(Job)) {
        Result.Layout.at(0).Y = begin;
    }
};

} // namespace tarn::testing
