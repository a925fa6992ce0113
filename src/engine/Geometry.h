// Boxes and segments on the roll: which cross, which overlap, which lie inside.

#pragma once

#include "base/Lengths.h"
#include "base/Types.h"

namespace tarn {

/// An axis-parallel segment from (X1, Y1) to (X2, Y2).
struct Segment {
    Single X1, Y1, X2, Y2;
};

/// An axis-parallel rectangle with X1 <= X2 and Y1 <= Y2. X runs across the roll, Y along it.
struct Box {
    Single X1, Y1, X2, Y2;
};

/// The larger of two; a tie gives `a`.
constexpr Single Larger(Single a, Single b) {
    return a >= b ? a : b;
}
/// The smaller of two; a tie gives `a`.
constexpr Single Smaller(Single a, Single b) {
    return a <= b ? a : b;
}

/// Whether a point lies strictly inside a box; a point on an edge or a corner is outside.
constexpr bool IsInside(Single px, Single py, const Box& box) {
    return box.X1 < px && px < box.X2 && box.Y1 < py && py < box.Y2;
}

/// Whether the boxes that two segments span overlap by a positive amount on both axes. So two
/// parallel segments never intersect, and boxes that only touch do not.
bool Intersect(const Segment& a, const Segment& b);

/// Whether a segment crosses an edge of a box, or spans the box exactly from side to side between
/// its other two sides.
bool Crosses(const Segment& segment, const Box& box);

/// The side of the common box of `a` and `b` across and along (inches, rounded to Single);
/// negative where they are apart.
constexpr Single CommonWidth(const Box& a, const Box& b) {
    return Smaller(a.X2, b.X2) - Larger(a.X1, b.X1);
}
constexpr Single CommonLength(const Box& a, const Box& b) {
    return Smaller(a.Y2, b.Y2) - Larger(a.Y1, b.Y1);
}

/// Whether two placed pieces (inches) share an area: the box common to both is at least the length
/// tolerance wide and long, and its centre lies inside both. Pieces flush against each other do not
/// overlap, and crossing pieces with no corner inside one another do.
constexpr bool Overlaps(const Box& a, const Box& b) {
    if (IsWithinTolerance(CommonWidth(a, b)) || IsWithinTolerance(CommonLength(a, b))) {
        return false;
    }
    const Single centreX = (Larger(a.X1, b.X1) + Smaller(a.X2, b.X2)) / 2;
    const Single centreY = (Larger(a.Y1, b.Y1) + Smaller(a.Y2, b.Y2)) / 2;
    return IsInside(centreX, centreY, a) && IsInside(centreX, centreY, b);
}

} // namespace tarn
