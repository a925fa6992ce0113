#pragma once

#include "engine/Geometry.h"

#include <optional>
#include <vector>

namespace tarn {

/// The placed pieces (inches), found by their position along the roll: the questions that the rule
/// of placement asks about all of them are answered by looking at those near the place asked about.
///
/// The roll is divided into bands of equal length. A piece is listed in every band that it reaches,
/// its end included, so whatever covers, begins at or ends at a position is listed in that
/// position's band. Nothing is allocated once the bands have grown.
class PlacedIndex {
  public:
    void Clear();
    void Add(const Box& piece);

    /// A placed piece that `piece` would overlap (see Overlaps), if there is one. Pieces that touch
    /// do not overlap.
    std::optional<Box> FindOverlap(const Box& piece) const;

    /// Whether a placed piece stands to the right of a corner at (x, y): its rectangle meets the
    /// row from the corner to the usable edge (see Crosses), or it starts on the very same row
    /// further right.
    bool IsAnyToTheRight(Single x, Single y, Single usableWidth) const;

    /// Where a point that moves left from (px, py) is stopped: the rightmost right edge, not right
    /// of px, of a placed piece that covers the row py; the roll's left edge, 0, without one. A
    /// piece that ends exactly at py does not cover it.
    Single NearestEdgeToTheLeft(Single px, Single py) const;

    /// Where a point that moves up the roll from (px, py) is stopped: the furthest end, not beyond
    /// py, of a placed piece that covers the column px; the roll's start, 0, without one.
    Single NearestEndUpTheRoll(Single px, Single py) const;

  private:
    using Band = std::vector<Box>;

    /// The number of the band that holds position `y`; positions before the roll are in the first.
    static std::size_t BandOf(Single y);
    /// The pieces listed at position `y`.
    const Band& At(Single y) const;

    std::vector<Band> bands_;
    std::size_t used_ = 0; ///< bands from here on are empty
};

} // namespace tarn
