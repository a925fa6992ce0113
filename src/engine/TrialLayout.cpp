#include "engine/TrialLayout.h"

#include "app/Lengths.h"
#include "app/Numbers.h"
#include "engine/Placement.h"

#include <algorithm>

namespace tarn {

namespace {

/// Up to here coordinates are fine enough that a larger box overlaps whatever a smaller one does;
/// beyond, the centre of a common box may round onto its edge.
constexpr Single FineLimit = 32768;

} // namespace

Long TrialLayout::Length(const std::vector<PieceSize>& pieces, Single usableWidth, Long bound) {
    usable_ = usableWidth;
    Reset(pieces);
    Long whole = 0;
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        const std::size_t k = FreeCorner(pieces[i], least_[i]);
        const Single end = Place(k, pieces[i]);
        if (end > length_) {
            length_ = end;
            whole = CLng(static_cast<Double>(length_));
            if (whole >= bound) {
                return whole;
            }
        }
    }
    return whole;
}

TrialLayout::Corner TrialLayout::MakeCorner(Single x, Single y) {
    return {x, y, CornerKey(x, y), false, {}};
}

void TrialLayout::Reset(const std::vector<PieceSize>& pieces) {
    length_ = 0;
    placed_.Clear();
    corners_.assign(1, MakeCorner(0, 0));
    least_.assign(pieces.begin(), pieces.end());
    for (std::size_t i = least_.size(); i > 1; --i) {
        least_[i - 2].Width = SingMin(least_[i - 2].Width, least_[i - 1].Width);
        least_[i - 2].Length = SingMin(least_[i - 2].Length, least_[i - 1].Length);
    }
}

bool TrialLayout::IsUseless(const Corner& corner, PieceSize least) const {
    const Box box{corner.X, corner.Y, corner.X + least.Width, corner.Y + least.Length};
    if (!IsWithinTolerance(box.X2 - usable_)) {
        return true;
    }
    return corner.Blocked && box.X2 <= FineLimit && box.Y2 <= FineLimit &&
           Overlaps(box, corner.Blocker);
}

std::size_t TrialLayout::FreeCorner(PieceSize piece, PieceSize least) {
    std::size_t kept = 0;
    std::size_t k = 0;
    for (; k < corners_.size(); ++k) {
        Corner& corner = corners_[k];
        const Box box{corner.X, corner.Y, corner.X + piece.Width, corner.Y + piece.Length};
        if (IsWithinTolerance(box.X2 - usable_)) {
            if (!corner.Blocked || !Overlaps(box, corner.Blocker)) {
                const auto blocker = placed_.Overlapping(box);
                if (!blocker) {
                    break;
                }
                corner.Blocked = true;
                corner.Blocker = *blocker;
            }
        }
        if (IsUseless(corner, least)) {
            continue;
        }
        if (kept != k) {
            corners_[kept] = corner;
        }
        ++kept;
    }
    corners_.erase(corners_.begin() + static_cast<std::ptrdiff_t>(kept),
                   corners_.begin() + static_cast<std::ptrdiff_t>(k));
    return kept;
}

Single TrialLayout::AcrossPosition(const Corner& corner, PieceSize piece) const {
    if (corner.X == 0 || placed_.IsAnyRight(corner.X, corner.Y, usable_)) {
        return corner.X;
    }
    const Single pushed = SingMax(corner.X, usable_ - piece.Width);
    const Box box{pushed, corner.Y, pushed + piece.Width, corner.Y + piece.Length};
    return placed_.Overlapping(box) ? corner.X : pushed;
}

Single TrialLayout::Place(std::size_t k, PieceSize piece) {
    if (k == corners_.size()) {
        const Single end = length_ + piece.Length;
        placed_.Add({0, length_, piece.Width, end});
        AppendCorner(0, end);
        return end;
    }
    const Single x = AcrossPosition(corners_[k], piece);
    const Single y = corners_[k].Y;
    const Box box{x, y, x + piece.Width, y + piece.Length};
    const Single up = placed_.ScanUp(box.X2, y);
    const Single left = placed_.ScanLeft(x, box.Y2);
    placed_.Add(box);
    ReplaceCorner(k, box.X2, up);
    AppendCorner(left, box.Y2);
    return box.Y2;
}

void TrialLayout::ReplaceCorner(std::size_t k, Single x, Single y) {
    const Corner corner = MakeCorner(x, y);
    const auto at = corners_.begin() + static_cast<std::ptrdiff_t>(k);
    const auto before = [](const Corner& a, const Corner& b) { return a.Key < b.Key; };
    // As a stable sort would move it: behind equal keys on the way up, before them on the way down.
    auto place = at;
    if (corner.Key < at->Key) {
        place = std::upper_bound(corners_.begin(), at, corner, before);
        std::move_backward(place, at, at + 1);
    } else if (corner.Key > at->Key) {
        place = std::lower_bound(at + 1, corners_.end(), corner, before) - 1;
        std::move(at + 1, place + 1, at);
    }
    *place = corner;
    DropEqual(static_cast<std::size_t>(place - corners_.begin()));
}

void TrialLayout::AppendCorner(Single x, Single y) {
    const Corner corner = MakeCorner(x, y);
    const auto before = [](const Corner& a, const Corner& b) { return a.Key < b.Key; };
    const auto place = std::upper_bound(corners_.begin(), corners_.end(), corner, before);
    const auto number = static_cast<std::size_t>(place - corners_.begin());
    corners_.insert(place, corner);
    DropEqual(number);
}

void TrialLayout::DropEqual(std::size_t at) {
    const Single key = corners_[at].Key;
    std::size_t first = at;
    while (first > 0 && corners_[first - 1].Key == key) {
        --first;
    }
    bool seen = false;
    const Corner corner = corners_[at];
    for (std::size_t k = first; k < corners_.size() && corners_[k].Key == key;) {
        const bool equal = corners_[k].X == corner.X && corners_[k].Y == corner.Y;
        if (equal && seen) {
            corners_.erase(corners_.begin() + static_cast<std::ptrdiff_t>(k));
            continue;
        }
        seen = seen || equal;
        ++k;
    }
}

} // namespace tarn
