#pragma once

#include "engine/reference/PlainSearch.h"

#include <cstddef>
#include <vector>

/// Placing pieces on the roll one by one. All values are inches.
namespace tarn::reference {

float Right(const PlainPlaced& p);
float End(const PlainPlaced& p);
/// True when the two share more than the tolerance of the roll's length, or of its width.
bool ShareAlong(const PlainPlaced& a, const PlainPlaced& b);
bool ShareAcross(const PlainPlaced& a, const PlainPlaced& b);
bool ShareAnArea(const PlainPlaced& a, const PlainPlaced& b);
/// The greatest end of a placed piece, 0 without one.
float LengthInUse(const std::vector<PlainPlaced>& placed);

/// A point where the next piece may be tried.
struct PlainCorner {
    float x, y;
};

struct PlainRoll {
    float usable; ///< usable width
    std::vector<PlainPlaced> placed{};
    std::vector<PlainCorner> corners{{0, 0}};

    /// Places a piece at the first corner, in corner order, where it fits and overlaps nothing;
    /// where there is none, at the left edge behind everything.
    void Place(float w, float l);

  private:
    bool FindCorner(float w, float l, std::size_t& k) const;
    bool OverlapsPlaced(const PlainPlaced& piece) const;
    bool IsAnyToTheRight(const PlainCorner& corner) const;
    float ScanLeft(float px, float py) const;
    float ScanUp(float px, float py) const;
    void TidyCorners();
};

} // namespace tarn::reference
