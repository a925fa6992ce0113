#pragma once

#include "engine/FreeCorners.h"
#include "engine/PieceGeometry.h"
#include "engine/PlacedIndex.h"

#include <vector>

namespace tarn {

/// The rule by which a piece gets its place: one roll on which pieces are placed, one after the
/// other, at the first free corner.
///
/// A piece is taken to the first corner, in their order, at which it stays inside the usable width
/// and overlaps no placed piece. What would be looked at again and again is remembered:
///  - placed pieces are found by their position along the roll (PlacedIndex);
///  - a corner remembers the piece that was in the way last, which mostly still is;
///  - a corner where not even the least width and length still to come would fit is dropped: what
///    overlaps at a corner overlaps there for every larger piece, and pieces are never taken away.
/// None of this changes where a piece goes.
class PiecePlacer {
  public:
    /// Begin with an empty roll.
    void Clear(Single usableWidth);

    /// Place a piece at the first free corner or, when it fits at none, at the left edge behind
    /// everything placed so far. A piece that would stand alone on its row is pushed against the
    /// far edge of the usable width where that is free. `least` is the least width and the least
    /// length among this piece and those still to come; corners too small for it are dropped.
    /// Raises "Overflow" when a position is not finite.
    void Place(PieceSize piece, PieceSize least);

    /// Clear the roll and place all pieces in their order, until the length, rounded to whole
    /// inches, halves to even, is not below `bound`. Returns that rounded length; the pieces are
    /// all placed when it is below the bound. Raises as Place, and for a length beyond a Long.
    Long PlaceAll(const std::vector<PieceSize>& pieces, Single usableWidth, Long bound);

    /// The placed pieces in the order in which they were placed.
    const std::vector<Box>& Boxes() const { return placed_; }
    /// The free corners that are still kept.
    const FreeCorners& Corners() const { return corners_; }

  private:
    /// Whether the piece stays inside the usable width and is free at the corner. Remembers a piece
    /// in the way.
    bool IsFree(FreeCorner& corner, PieceSize piece) const;
    bool IsUseless(const FreeCorner& corner, PieceSize least) const;
    /// The first free corner; the number of corners when there is none. Drops useless corners on
    /// the way.
    std::size_t FindCorner(PieceSize piece, PieceSize least);
    Single AcrossPosition(const FreeCorner& corner, PieceSize piece) const;
    void Record(const Box& piece);

    Single usableWidth_ = 0;
    Single length_ = 0; ///< the farthest end so far
    PlacedIndex index_;
    FreeCorners corners_;
    std::vector<Box> placed_;
    std::vector<PieceSize> least_; ///< of PlaceAll, by piece
};

} // namespace tarn
