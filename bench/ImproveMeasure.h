// What the report on the improving search measures: runs on strip-packing instances and on flooring
// jobs, in computing time.

#pragma once

#include "bench/FlooringJobs.h"
#include "bench/StripPacking.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace tarn {

/// Seconds that the calling thread has been computing: what other programs take does not count.
double ComputingSeconds();

/// Do `action` for 0 .. `count` - 1, on as many threads as there are processors.
void ForEach(std::size_t count, const std::function<void(std::size_t)>& action);

/// The best lengths of one run on an instance after each of `seconds` (ascending) of computing.
std::vector<Long> BestAfter(const PackingInstance& instance, const std::vector<double>& seconds,
                            std::uint64_t seed);

/// What became of a flooring job. Lengths are inches along the roll.
struct FlooringResult {
    int Rooms = 0;
    int MaxPieces = 0;
    bool Metric = false;
    double Searched = 0; ///< by the search alone
    double Improved = 0;
    double Bound = 0;             ///< 0 = not known
    bool StartBelowRules = false; ///< the search's layout is shorter than any that keeps the rules
    int PiecesBefore = 0;
    int Pieces = 0;
};

/// Estimate a job, then improve it for so many seconds of computing. A job without fills gives
/// lengths of 0.
FlooringResult MeasureFlooring(const FlooringJob& job, double seconds);

} // namespace tarn
