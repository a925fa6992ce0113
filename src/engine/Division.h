#pragma once

#include "base/Types.h"

namespace tarn {

/// How a piece is divided along the roll: into equal parts, one behind the other. Each is the share
/// of the piece's length, rounded up to whole units unless its fraction is below 0.1, and not below
/// the minimum cut; so the last may run past the piece's end. One part is the piece, bit for bit.
class EqualParts {
  public:
    /// `parts` (1 and up) parts of a piece from `top` to `bottom`; all in coordinate units.
    EqualParts(Single top, Single bottom, Integer parts, Integer minCut);

    /// Part p lies between edges p and p + 1 (0 .. parts). Raises "Overflow" when it is not finite.
    Single Edge(Integer number) const;

  private:
    Single top_;
    Single bottom_;
    Integer parts_;
    Double partLength_;
};

} // namespace tarn
