#include "engine/PlacedIndex.h"

#include "engine/Placement.h"

#include <algorithm>

namespace tarn {

namespace {

/// Length of a band, inches. A power of two, so that dividing by it rounds nothing.
constexpr Single BandLength = 32;

} // namespace

std::size_t PlacedIndex::BandOf(Single y) {
    return y > 0 ? static_cast<std::size_t>(y / BandLength) : 0;
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
    const std::size_t first = BandOf(SingMin(piece.Y1, piece.Y2));
    const std::size_t last = BandOf(SingMax(piece.Y1, piece.Y2));
    if (last >= bands_.size()) {
        bands_.resize(last + 1);
    }
    used_ = std::max(used_, last + 1);
    for (std::size_t band = first; band <= last; ++band) {
        bands_[band].push_back(piece);
    }
}

std::optional<Box> PlacedIndex::Overlapping(const Box& piece) const {
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

Single PlacedIndex::ScanLeft(Single px, Single py) const {
    Single edge = 0;
    for (const Box& placed : At(py)) {
        if (StopsLeft(placed, px, py, edge)) {
            edge = placed.X2;
        }
    }
    return edge;
}

Single PlacedIndex::ScanUp(Single px, Single py) const {
    Single end = 0;
    for (std::size_t band = std::min(BandOf(py) + 1, used_); band > 0; --band) {
        for (const Box& placed : bands_[band - 1]) {
            if (StopsUp(placed, px, py, end)) {
                end = placed.Y2;
            }
        }
        // Pieces that are not listed from this band on end before it.
        if (end >= static_cast<Single>(band - 1) * BandLength) {
            break;
        }
    }
    return end;
}

bool PlacedIndex::IsAnyRight(Single x, Single y, Single usable) const {
    const Band& placed = At(y);
    return std::any_of(placed.begin(), placed.end(),
                       [&](const Box& piece) { return StandsRight(piece, x, y, usable); });
}

} // namespace tarn
