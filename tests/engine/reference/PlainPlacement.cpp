#include "engine/reference/PlainPlacement.h"

#include "engine/reference/PlainNumbers.h"

#include <algorithm>

namespace tarn::reference {

namespace {

// True when the ranges a1 .. a2 and b1 .. b2 have more than the tolerance in common.
bool Share(float a1, float a2, float b1, float b2) {
    return !NotBeyond(std::min(a2, b2), std::max(a1, b1));
}

bool IsInside(float px, float py, const PlainPlaced& box) {
    return box.x < px && px < Right(box) && box.y < py && py < End(box);
}

struct Segment {
    float x1, y1, x2, y2;
};

bool Intersect(const Segment& a, const Segment& b) {
    return std::max(a.x1, a.x2) > std::min(b.x1, b.x2) &&
           std::min(a.x1, a.x2) < std::max(b.x1, b.x2) &&
           std::max(a.y1, a.y2) > std::min(b.y1, b.y2) &&
           std::min(a.y1, a.y2) < std::max(b.y1, b.y2);
}

bool Crosses(const Segment& s, const PlainPlaced& box) {
    const float rx1 = box.x;
    const float ry1 = box.y;
    const float rx2 = Right(box);
    const float ry2 = End(box);
    if (Intersect(s, {rx1, ry1, rx2, ry1}) || Intersect(s, {rx2, ry1, rx2, ry2}) ||
        Intersect(s, {rx1, ry2, rx2, ry2}) || Intersect(s, {rx1, ry1, rx1, ry2})) {
        return true;
    }
    if (s.x1 == rx1 && s.x2 == rx2 && ry1 < s.y1 && s.y1 < ry2) {
        return true;
    }
    return s.y1 == ry1 && s.y2 == ry2 && rx1 < s.x1 && s.x1 < rx2;
}

bool SameCorner(const PlainCorner& a, const PlainCorner& b) {
    return a.x == b.x && a.y == b.y;
}

float CornerKey(const PlainCorner& c) {
    return ToSingle(static_cast<double>(c.y) + static_cast<double>(c.x) / 1000.0);
}

} // namespace

float Right(const PlainPlaced& p) {
    return Plus(p.x, p.w);
}

float End(const PlainPlaced& p) {
    return Plus(p.y, p.l);
}

bool ShareAlong(const PlainPlaced& a, const PlainPlaced& b) {
    return Share(a.y, End(a), b.y, End(b));
}

bool ShareAcross(const PlainPlaced& a, const PlainPlaced& b) {
    return Share(a.x, Right(a), b.x, Right(b));
}

bool ShareAnArea(const PlainPlaced& a, const PlainPlaced& b) {
    if (!ShareAcross(a, b) || !ShareAlong(a, b)) {
        return false;
    }
    const float centreX = Plus(std::max(a.x, b.x), std::min(Right(a), Right(b))) / 2.0F;
    const float centreY = Plus(std::max(a.y, b.y), std::min(End(a), End(b))) / 2.0F;
    return IsInside(centreX, centreY, a) && IsInside(centreX, centreY, b);
}

float LengthInUse(const std::vector<PlainPlaced>& placed) {
    float length = 0;
    for (const PlainPlaced& p : placed) {
        length = std::max(length, End(p));
    }
    return length;
}

void PlainRoll::Place(float w, float l) {
    std::size_t k = 0;
    if (!FindCorner(w, l, k)) {
        const PlainPlaced behind = {0, LengthInUse(placed), w, l};
        corners.push_back({0, End(behind)});
        placed.push_back(behind);
        TidyCorners();
        return;
    }
    const PlainCorner corner = corners[k];
    PlainPlaced piece = {corner.x, corner.y, w, l};
    if (!IsAnyToTheRight(corner) && corner.x != 0) {
        PlainPlaced pushed = piece;
        pushed.x = std::max(corner.x, Minus(usable, w));
        if (!OverlapsPlaced(pushed)) {
            piece = pushed;
        }
    }
    corners[k] = {Right(piece), ScanUp(Right(piece), piece.y)};
    corners.push_back({ScanLeft(piece.x, End(piece)), End(piece)});
    placed.push_back(piece);
    TidyCorners();
}

bool PlainRoll::FindCorner(float w, float l, std::size_t& k) const {
    for (k = 0; k < corners.size(); ++k) {
        if (k > 0 && SameCorner(corners[k], corners[k - 1])) {
            continue;
        }
        const PlainPlaced piece = {corners[k].x, corners[k].y, w, l};
        if (NotBeyond(Right(piece), usable) && !OverlapsPlaced(piece)) {
            return true;
        }
    }
    return false;
}

bool PlainRoll::OverlapsPlaced(const PlainPlaced& piece) const {
    return std::any_of(placed.begin(), placed.end(),
                       [&piece](const PlainPlaced& p) { return ShareAnArea(piece, p); });
}

bool PlainRoll::IsAnyToTheRight(const PlainCorner& corner) const {
    bool answer = false;
    for (const PlainPlaced& p : placed) {
        if (Crosses({corner.x, corner.y, usable, corner.y}, p) ||
            (p.y == corner.y && p.x > corner.x)) {
            answer = true;
        }
    }
    return answer;
}

float PlainRoll::ScanLeft(float px, float py) const {
    float limit = 0;
    for (std::size_t i = placed.size(); i-- > 0;) {
        const float r = Right(placed[i]);
        if (r >= limit && r <= px && placed[i].y <= py && py < End(placed[i])) {
            limit = r;
        }
    }
    return limit;
}

float PlainRoll::ScanUp(float px, float py) const {
    float limit = 0;
    for (std::size_t i = placed.size(); i-- > 0;) {
        const float b = End(placed[i]);
        if (b >= limit && b <= py && placed[i].x <= px && px < Right(placed[i])) {
            limit = b;
        }
    }
    return limit;
}

void PlainRoll::TidyCorners() {
    std::stable_sort(
        corners.begin(), corners.end(),
        [](const PlainCorner& a, const PlainCorner& b) { return CornerKey(a) < CornerKey(b); });
    for (std::size_t i = 0; i < corners.size(); ++i) {
        for (std::size_t j = i + 1; j < corners.size();) {
            if (SameCorner(corners[i], corners[j])) {
                corners.erase(corners.begin() + static_cast<std::ptrdiff_t>(j));
            } else {
                ++j;
            }
        }
    }
}

} // namespace tarn::reference
