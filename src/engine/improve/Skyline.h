#pragma once

#include "app/Types.h"

#include <cstdint>
#include <vector>

namespace tarn {

/// Higher than any wall: beside the roll's edge.
inline constexpr Long NoWall = 1 << 30;

/// The free place that is filled next: the lowest segment of the skyline, of equals the leftmost.
struct Gap {
    std::size_t Segment;
    Long X;
    Long Y;
    Long Width;
    Long Left;  ///< height of the wall to its left above Y; NoWall at the roll's edge
    Long Right; ///< of the wall to its right
};

/// How far a roll is filled, by segments (x, y, width) from left to right. Neighbours differ in
/// their y.
class Skyline {
  public:
    /// An empty roll.
    void Reset(Long width);

    Gap Lowest() const;
    /// Put a piece of `width` (at most the gap's) and `length` at the left or the right side of the
    /// gap. Returns its left edge.
    Long Place(const Gap& gap, bool atLeft, Long width, Long length);
    /// Fill the gap up by `height`, at most to its lower neighbour.
    void Raise(const Gap& gap, Long height);

    std::size_t Count() const { return y_.size(); }

  private:
    void JoinWithNeighbours(std::size_t segment);
    void Erase(std::size_t segment);

    std::vector<Long> x_;
    std::vector<Long> y_;
    std::vector<Long> width_;
};

} // namespace tarn
