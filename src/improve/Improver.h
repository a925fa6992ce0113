#pragma once

#include "improve/ImproveRun.h"

#include <cstddef>
#include <cstdint>

namespace tarn {

/// Search for layouts of the run's job that are better than its best, until one is the least
/// possible or the run ends the search. Raises what the run's report raises; the run holds the best
/// layout so far in every case.
///
/// Of several searches for the same job that tell each other what they know `number` is the number,
/// from 0: what one of them computes for all the others leave to the first, and each begins at
/// another place.
void Improve(ImproveRun& run, std::uint64_t seed, std::size_t number = 0);

} // namespace tarn
