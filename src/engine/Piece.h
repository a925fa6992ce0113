#pragma once

#include "base/Types.h"

namespace tarn {

/// A strip to be cut from the roll. Edges are coordinates in its room, in coordinate units
/// (hundredths of an inch with the usual scale), in metric projects too.
struct Piece {
    Single X1 = 0;
    Single X2 = 0;
    Single Y1 = 0;
    Single Y2 = 0;
    Integer Number = 0;      ///< at its creation; parts keep that of their piece
    bool IsDivisible = true; ///< the search may divide it along the roll
    Integer Room = 0;        ///< of which it is, as Number; the search does not look at it

    bool operator==(const Piece&) const = default;
};

/// A piece and where it lies on the roll, inches.
struct Placed {
    Piece Part;
    Single X = 0;      ///< left edge; 0 = the roll's left edge
    Single Y = 0;      ///< begin along the roll; 0 = the roll's start
    Single Width = 0;  ///< extent across
    Single Length = 0; ///< extent along

    bool operator==(const Placed&) const = default;
};

} // namespace tarn
