#pragma once

#include "base/Types.h"

#include <cstddef>
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
/// their y. All of it is inline: it is what placing spends most of its time on.
class Skyline {
  public:
    /// An empty roll.
    void Reset(Long width) {
        segments_.assign(1, {0, 0, width});
        lowest_ = 0;
    }

    Gap Lowest() const {
        const Segment* const first = segments_.data();
        const std::size_t count = segments_.size();
        std::size_t low = lowest_;
        if (low == NotKnown) {
            low = 0;
            for (std::size_t i = 1; i < count; ++i) {
                low = first[i].Y < first[low].Y ? i : low;
            }
        }
        const Segment& gap = first[low];
        return {low,
                gap.X,
                gap.Y,
                gap.Width,
                low > 0 ? first[low - 1].Y - gap.Y : NoWall,
                low + 1 < count ? first[low + 1].Y - gap.Y : NoWall};
    }

    /// Put a piece of `width` (at most the gap's) and `length` at the left or the right side of the
    /// gap, which is the lowest. Returns its left edge.
    Long Place(const Gap& gap, bool atLeft, Long width, Long length) {
        const std::size_t i = gap.Segment;
        const Long x = atLeft ? gap.X : gap.X + gap.Width - width;
        if (width == gap.Width) {
            segments_[i].Y += length;
            JoinWithNeighbours(i);
            return x;
        }
        lowest_ = i; // what is left of the gap
        const Segment piece{x, gap.Y + length, width};
        const Segment rest{atLeft ? gap.X + width : gap.X, gap.Y, gap.Width - width};
        // Beside the wall that it is level with the piece joins it; else it is a segment of its
        // own.
        if (atLeft && i > 0 && segments_[i - 1].Y == piece.Y) {
            segments_[i - 1].Width += width;
            segments_[i] = rest;
        } else if (!atLeft && i + 1 < segments_.size() && segments_[i + 1].Y == piece.Y) {
            segments_[i + 1].X = x;
            segments_[i + 1].Width += width;
            segments_[i] = rest;
        } else {
            segments_[i] = atLeft ? piece : rest;
            segments_.insert(At(i + 1), atLeft ? rest : piece);
            lowest_ = atLeft ? i + 1 : i;
        }
        return x;
    }

    /// Put a piece anywhere into the gap, up to a top above the gap's y. What is below it is
    /// closed.
    void Cover(const Gap& gap, Long x, Long width, Long top) {
        std::size_t i = gap.Segment;
        const Long right = gap.X + gap.Width - (x + width);
        segments_[i].Width = x - gap.X;
        if (x > gap.X) {
            segments_.insert(At(++i), {x, top, width});
        } else {
            segments_[i] = {x, top, width};
        }
        if (right > 0) {
            segments_.insert(At(i + 1), {x + width, gap.Y, right});
        }
        JoinWithNeighbours(i);
    }

    /// Fill the gap up by `height`, at most to its lower neighbour.
    void Raise(const Gap& gap, Long height) {
        segments_[gap.Segment].Y += height;
        JoinWithNeighbours(gap.Segment);
    }

    std::size_t Count() const { return segments_.size(); }

  private:
    struct Segment {
        Long X;
        Long Y;
        Long Width;
    };

    std::vector<Segment>::iterator At(std::size_t i) {
        return segments_.begin() + static_cast<std::ptrdiff_t>(i);
    }

    void JoinWithNeighbours(std::size_t i) {
        lowest_ = NotKnown;
        if (i + 1 < segments_.size() && segments_[i + 1].Y == segments_[i].Y) {
            segments_[i].Width += segments_[i + 1].Width;
            segments_.erase(At(i + 1));
        }
        if (i > 0 && segments_[i - 1].Y == segments_[i].Y) {
            segments_[i - 1].Width += segments_[i].Width;
            segments_.erase(At(i));
        }
    }

    static constexpr std::size_t NotKnown = static_cast<std::size_t>(-1);
    std::vector<Segment> segments_;
    std::size_t lowest_ = NotKnown; ///< segment, the leftmost of equals
};

} // namespace tarn
