// Lengths below which no layout of a job with a pattern ends.

#pragma once

#include "improve/ImproveJob.h"

#include <functional>

namespace tarn {

/// Fills no two of which go beside each other lie one behind the other, each where it matches: what
/// the shortest row of them is, by trying every order. Only for so few of them that this is soon
/// done; 0 otherwise, and what has been proven so far when `goOn`, which is asked now and then,
/// says no. No bound above `known` is looked for.
Long PatternStackBound(const ImproveJob& job, Long known, const std::function<bool()>& goOn);

/// For a job of one room whose fill may be divided: parts of the fill that follow each other lose
/// what the height of the place between the drops leaves over a whole number of repeats, except
/// once. 0 for any other job. No bound above `known` is looked for.
Long OneRoomBound(const ImproveJob& job, Long known);

/// The larger of both.
Long PatternBound(const ImproveJob& job, Long known, const std::function<bool()>& goOn);

} // namespace tarn
