#pragma once

#include "app/Lengths.h"
#include "app/Types.h"

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
constexpr Single SingMax(Single a, Single b) {
    return a >= b ? a : b;
}
/// The smaller of two; a tie gives `a`.
constexpr Single SingMin(Single a, Single b) {
    return a <= b ? a : b;
}

/// Whether a point lies strictly inside a box; a point on an edge or a corner is outside.
constexpr bool PTInbox(Single px, Single py, const Box& box) {
    return box.X1 < px && px < box.X2 && box.Y1 < py && py < box.Y2;
}

/// Whether the boxes that two segments span overlap by a positive amount on both axes. So two
/// parallel segments never intersect, and boxes that only touch do not.
bool ISLineInsect(const Segment& a, const Segment& b);

/// As ISLineInsect, but boxes that touch intersect too. No part of the program needs it.
bool ISLineInsect2(const Segment& a, const Segment& b);

/// Whether a segment crosses an edge of a box, or spans the box exactly from side to side between
/// its other two sides.
bool ISLinePass(const Segment& segment, const Box& box);

/// Whether any of the four edges of `a` passes `b`. A box wholly inside another, without an edge
/// that meets, is not found: pieces are tried with Overlaps, and no part of the program needs this.
bool ISInsect(const Box& a, const Box& b);

/// The side of the common box of `a` and `b` across and along (inches, rounded to Single);
/// negative where they are apart.
constexpr Single CommonWidth(const Box& a, const Box& b) {
    return SingMin(a.X2, b.X2) - SingMax(a.X1, b.X1);
}
constexpr Single CommonLength(const Box& a, const Box& b) {
    return SingMin(a.Y2, b.Y2) - SingMax(a.Y1, b.Y1);
}

/// Whether two placed pieces (inches) share an area: the box common to both is at least the length
/// tolerance wide and long, and its centre lies inside both. Pieces flush against each other do not
/// overlap, and crossing pieces with no corner inside one another do.
constexpr bool Overlaps(const Box& a, const Box& b) {
    if (IsWithinTolerance(CommonWidth(a, b)) || IsWithinTolerance(CommonLength(a, b))) {
        return false;
    }
    const Single centreX = (SingMax(a.X1, b.X1) + SingMin(a.X2, b.X2)) / 2;
    const Single centreY = (SingMax(a.Y1, b.Y1) + SingMin(a.Y2, b.Y2)) / 2;
    return PTInbox(centreX, centreY, a) && PTInbox(centreX, centreY, b);
}

} // namespace tarn
