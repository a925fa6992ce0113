#pragma once

#include "engine/Geometry.h"

#include <optional>
#include <vector>

namespace tarn {

/// Placed pieces (inches), found by their position along the roll. Answers what the linear scans
/// over PosX .. PosL answer, to the bit, but looks only at the pieces near the place asked about.
///
/// The roll is divided into bands of equal length. A piece is listed in every band that it reaches,
/// its end included, so whatever covers, begins at or ends at a position is listed in that
/// position's band. Nothing is allocated once the bands have grown.
class PlacedIndex {
  public:
    void Clear();
    void Add(const Box& piece);

    /// A placed piece that overlaps `piece`, if there is one.
    std::optional<Box> Overlapping(const Box& piece) const;
    /// scanleftnew over all pieces, from the left edge of the roll.
    Single ScanLeft(Single px, Single py) const;
    /// scanupnew over all pieces, from the start of the roll.
    Single ScanUp(Single px, Single py) const;
    /// IsAnyRightSide for a corner at (x, y) and the given usable width.
    bool IsAnyRight(Single x, Single y, Single usable) const;

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
