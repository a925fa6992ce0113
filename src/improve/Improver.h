#pragma once

#include "improve/ImproveRun.h"

#include <cstdint>

namespace tarn {

/// Search for layouts of the run's job that are better than its best, until one is the least
/// possible or the run ends the search. Raises what the run's report raises; the run holds the best
/// layout so far in every case.
void Improve(ImproveRun& run, std::uint64_t seed);

} // namespace tarn
