// What the report on the improving search measures: runs on strip-packing instances and on flooring
// jobs, as long as the program would run them and on as many cores.

#pragma once

#include "bench/FlooringJobs.h"
#include "bench/StripPacking.h"

#include <cstddef>
#include <cstdint>

namespace tarn {

/// The best length of a run of so many seconds on an instance.
Long BestAfter(const PackingInstance& instance, double seconds, std::uint64_t seed);

/// What became of a flooring job. Lengths are inches along the roll.
struct FlooringResult {
    std::size_t Fills = 0;
    int MaxPieces = 0;
    double Searched = 0; ///< by the search alone
    double Improved = 0;
    double Bound = 0;             ///< 0 = not known
    bool StartBelowRules = false; ///< the search's layout is shorter than any that keeps the rules
    int PiecesBefore = 0;
    int Pieces = 0;

    /// Whether the bound says anything about the layout.
    bool Counts() const { return Bound > 0 && !StartBelowRules; }
    bool IsLeast() const { return Counts() && Improved - Bound < 0.005; }
};

/// Estimate a job, then improve it for so many seconds. A job without fills gives lengths of 0.
FlooringResult MeasureFlooring(const FlooringJob& job, double seconds, std::uint64_t seed);

} // namespace tarn
