#include "engine/FreeCorners.h"

#include "base/Numbers.h"

#include <algorithm>

namespace tarn {

namespace {

FreeCorner MakeCorner(Single x, Single y) {
    return {x, y, CornerKey(x, y), false, {}};
}

bool Before(const FreeCorner& a, const FreeCorner& b) {
    return a.Key < b.Key;
}

} // namespace

Single CornerKey(Single x, Single y) {
    return CSng(static_cast<Double>(y) + static_cast<Double>(x) / 1000);
}

void FreeCorners::Reset() {
    corners_.assign(1, MakeCorner(0, 0));
}

void FreeCorners::Replace(std::size_t k, Single x, Single y) {
    const FreeCorner corner = MakeCorner(x, y);
    const auto at = corners_.begin() + static_cast<std::ptrdiff_t>(k);
    auto place = at;
    // A stable sort takes it behind equal keys on the way forward, before them on the way back.
    if (Before(corner, *at)) {
        place = std::upper_bound(corners_.begin(), at, corner, Before);
        std::move_backward(place, at, at + 1);
    } else if (Before(*at, corner)) {
        place = std::lower_bound(at + 1, corners_.end(), corner, Before) - 1;
        std::move(at + 1, place + 1, at);
    }
    *place = corner;
    DropRepeats(static_cast<std::size_t>(place - corners_.begin()));
}

void FreeCorners::Append(Single x, Single y) {
    const FreeCorner corner = MakeCorner(x, y);
    const auto place = std::upper_bound(corners_.begin(), corners_.end(), corner, Before);
    const auto k = static_cast<std::size_t>(place - corners_.begin());
    corners_.insert(place, corner);
    DropRepeats(k);
}

void FreeCorners::Erase(std::size_t first, std::size_t last) {
    corners_.erase(corners_.begin() + static_cast<std::ptrdiff_t>(first),
                   corners_.begin() + static_cast<std::ptrdiff_t>(last));
}

void FreeCorners::DropRepeats(std::size_t k) {
    const FreeCorner corner = corners_[k];
    // Equal corners have equal keys, so they stand in one run.
    std::size_t first = k;
    while (first > 0 && corners_[first - 1].Key == corner.Key) {
        --first;
    }
    bool seen = false;
    for (std::size_t i = first; i < corners_.size() && corners_[i].Key == corner.Key;) {
        const bool equal = corners_[i].X == corner.X && corners_[i].Y == corner.Y;
        if (equal && seen) {
            Erase(i, i + 1);
            continue;
        }
        seen = seen || equal;
        ++i;
    }
}

} // namespace tarn
