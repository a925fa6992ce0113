#include "engine/Geometry.h"

namespace tarn {

namespace {

/// The box that a segment spans, whichever way it runs.
Box Spanned(const Segment& s) {
    return {Smaller(s.X1, s.X2), Smaller(s.Y1, s.Y2), Larger(s.X1, s.X2), Larger(s.Y1, s.Y2)};
}

} // namespace

bool Intersect(const Segment& a, const Segment& b) {
    const Box boxA = Spanned(a);
    const Box boxB = Spanned(b);
    return boxA.X2 > boxB.X1 && boxA.X1 < boxB.X2 && boxA.Y2 > boxB.Y1 && boxA.Y1 < boxB.Y2;
}

bool Crosses(const Segment& segment, const Box& box) {
    const Segment top{box.X1, box.Y1, box.X2, box.Y1};
    const Segment right{box.X2, box.Y1, box.X2, box.Y2};
    const Segment bottom{box.X1, box.Y2, box.X2, box.Y2};
    const Segment left{box.X1, box.Y1, box.X1, box.Y2};
    if (Intersect(segment, top) || Intersect(segment, right) || Intersect(segment, bottom) ||
        Intersect(segment, left)) {
        return true;
    }
    const bool spansAcross =
        segment.X1 == box.X1 && segment.X2 == box.X2 && box.Y1 < segment.Y1 && segment.Y1 < box.Y2;
    const bool spansAlong =
        segment.Y1 == box.Y1 && segment.Y2 == box.Y2 && box.X1 < segment.X1 && segment.X1 < box.X2;
    return spansAcross || spansAlong;
}

} // namespace tarn
