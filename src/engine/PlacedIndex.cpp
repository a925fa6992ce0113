#include "engine/PlacedIndex.h"

#include <algorithm>

namespace tarn {

namespace {

/// Length of a band, inches. A power of two, so that dividing by it rounds nothing.
constexpr Single BandLength = 32;
/// The last band holds everything behind its beginning, well beyond the longest roll.
constexpr std::size_t LastBand = 2047;

} // namespace

std::size_t PlacedIndex::BandOf(Single y) {
    if (!(y > 0)) {
        return 0;
    }
    const Single band = y / BandLength;
    return band < static_cast<Single>(LastBand) ? static_cast<std::size_t>(band) : LastBand;
}

const PlacedIndex::Band& PlacedIndex::At(Single y) const {
    static const Band Nothing;
    const std::size_t band = BandOf(y);
    return band < used_ ? bands_[band] : Nothing;
}

void PlacedIndex::Clear() {
    for (std::size_t band = 0; band < used_; ++band) {
        bands_[band].clear();
    }
    used_ = 0;
}

void PlacedIndex::Add(const Box& piece) {
    const std::size_t first = BandOf(Smaller(piece.Y1, piece.Y2));
    const std::size_t last = BandOf(Larger(piece.Y1, piece.Y2));
    if (last >= bands_.size()) {
        bands_.resize(last + 1);
    }
    used_ = std::max(used_, last + 1);
    for (std::size_t band = first; band <= last; ++band) {
        bands_[band].push_back(piece);
    }
}

std::optional<Box> PlacedIndex::FindOverlap(const Box& piece) const {
    const std::size_t end = std::min(BandOf(piece.Y2) + 1, used_);
    for (std::size_t band = BandOf(piece.Y1); band < end; ++band) {
        for (const Box& placed : bands_[band]) {
            if (Overlaps(piece, placed)) {
                return placed;
            }
        }
    }
    return std::nullopt;
}

bool PlacedIndex::IsAnyToTheRight(Single x, Single y, Single usableWidth) const {
    const Segment row{x, y, usableWidth, y};
    const Band& near = At(y);
    return std::any_of(near.begin(), near.end(), [&](const Box& placed) {
        return Crosses(row, placed) || (placed.Y1 == y && placed.X1 > x);
    });
}

Single PlacedIndex::NearestEdgeToTheLeft(Single px, Single py) const {
    Single limit = 0;
    for (const Box& placed : At(py)) {
        if (placed.X2 >= limit && placed.X2 <= px && placed.Y1 <= py && py < placed.Y2) {
            limit = placed.X2;
        }
    }
    return limit;
}

Single PlacedIndex::NearestEndUpTheRoll(Single px, Single py) const {
    Single limit = 0;
    for (std::size_t band = std::min(BandOf(py) + 1, used_); band > 0; --band) {
        for (const Box& placed : bands_[band - 1]) {
            if (placed.Y2 >= limit && placed.Y2 <= py && placed.X1 <= px && px < placed.X2) {
                limit = placed.Y2;
            }
        }
        // Pieces that are not listed from this band on end before it.
        if (limit >= static_cast<Single>(band - 1) * BandLength) {
            break;
        }
    }
    return limit;
}

} // namespace tarn
