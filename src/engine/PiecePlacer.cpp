#include "engine/PiecePlacer.h"

#include "base/Lengths.h"
#include "base/Numbers.h"

namespace tarn {

namespace {

/// Up to here coordinates are fine enough that a larger box overlaps whatever a smaller one does;
/// beyond, the centre of a common box may round onto its edge.
constexpr Single FineLimit = 32768;

Box BoxAt(Single x, Single y, PieceSize size) {
    return {x, y, x + size.Width, y + size.Length};
}

Box BoxAt(const FreeCorner& corner, PieceSize size) {
    return BoxAt(corner.X, corner.Y, size);
}

} // namespace

void PiecePlacer::Clear(Single usableWidth) {
    usableWidth_ = usableWidth;
    length_ = 0;
    index_.Clear();
    corners_.Reset();
    placed_.clear();
}

void PiecePlacer::Place(PieceSize piece, PieceSize least) {
    const std::size_t k = FindCorner(piece, least);
    if (k == corners_.Count()) {
        const Box behind = BoxAt(0, length_, piece);
        Record(behind);
        corners_.Append(0, behind.Y2);
        return;
    }
    const Box box = BoxAt(AcrossPosition(corners_[k], piece), corners_[k].Y, piece);
    const Single up = index_.NearestEndUpTheRoll(box.X2, box.Y1);
    const Single left = index_.NearestEdgeToTheLeft(box.X1, box.Y2);
    Record(box);
    corners_.Replace(k, box.X2, up);
    corners_.Append(left, box.Y2);
}

Long PiecePlacer::PlaceAll(const std::vector<PieceSize>& pieces, Single usableWidth, Long bound) {
    Clear(usableWidth);
    least_ = pieces;
    for (std::size_t i = least_.size(); i > 1; --i) {
        PieceSize& least = least_[i - 2];
        least.Width = Smaller(least.Width, least_[i - 1].Width);
        least.Length = Smaller(least.Length, least_[i - 1].Length);
    }
    Long whole = 0;
    for (std::size_t i = 0; i < pieces.size() && whole < bound; ++i) {
        const Single before = length_;
        Place(pieces[i], least_[i]);
        if (length_ > before) {
            whole = CLng(static_cast<Double>(length_));
        }
    }
    return whole;
}

bool PiecePlacer::IsFree(FreeCorner& corner, PieceSize piece) const {
    const Box box = BoxAt(corner, piece);
    if (!IsWithinTolerance(box.X2 - usableWidth_) ||
        (corner.Blocked && Overlaps(box, corner.Blocker))) {
        return false;
    }
    const auto blocker = index_.FindOverlap(box);
    if (blocker) {
        corner.Blocked = true;
        corner.Blocker = *blocker;
    }
    return !blocker;
}

bool PiecePlacer::IsUseless(const FreeCorner& corner, PieceSize least) const {
    const Box box = BoxAt(corner, least);
    return !IsWithinTolerance(box.X2 - usableWidth_) ||
           (corner.Blocked && box.X2 <= FineLimit && box.Y2 <= FineLimit &&
            Overlaps(box, corner.Blocker));
}

std::size_t PiecePlacer::FindCorner(PieceSize piece, PieceSize least) {
    std::size_t kept = 0;
    std::size_t k = 0;
    for (; k < corners_.Count() && !IsFree(corners_[k], piece); ++k) {
        if (!IsUseless(corners_[k], least)) {
            corners_[kept] = corners_[k];
            ++kept;
        }
    }
    corners_.Erase(kept, k);
    return kept;
}

Single PiecePlacer::AcrossPosition(const FreeCorner& corner, PieceSize piece) const {
    const Single x = corner.X;
    if (x == 0 || index_.IsAnyToTheRight(x, corner.Y, usableWidth_)) {
        return x;
    }
    // The push leaves the free area in one block, but pieces that begin lower down may be in the
    // way where the row itself is free.
    const Single pushed = Larger(x, usableWidth_ - piece.Width);
    return index_.FindOverlap(BoxAt(pushed, corner.Y, piece)) ? x : pushed;
}

void PiecePlacer::Record(const Box& piece) {
    index_.Add(piece);
    placed_.push_back(piece);
    length_ = piece.Y2 > length_ ? piece.Y2 : length_;
}

} // namespace tarn
