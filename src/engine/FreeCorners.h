#pragma once

#include "engine/Geometry.h"

#include <vector>

namespace tarn {

/// A free corner: a point (inches) at which the next piece may be tried.
struct FreeCorner {
    Single X;     ///< across the roll
    Single Y;     ///< along the roll
    Single Key;   ///< see CornerKey
    bool Blocked; ///< a placed piece was in the way of a piece tried here
    Box Blocker;  ///< that piece
};

/// The key by which corners are ordered: y + x / 1000, computed in Double and rounded once to
/// Single. The position along the roll decides, the position across breaks near-ties. Raises
/// "Overflow" when it is not finite.
Single CornerKey(Single x, Single y);

/// The free corners in ascending order of their keys. They are held in order: a corner that comes
/// or changes goes where a stable sort of the whole list would put it. Equal corners are kept once,
/// the first of them.
class FreeCorners {
  public:
    FreeCorners() { Reset(); }
    /// One corner, at (0, 0).
    void Reset();

    std::size_t Count() const { return corners_.size(); }
    FreeCorner& operator[](std::size_t k) { return corners_[k]; }
    const FreeCorner& operator[](std::size_t k) const { return corners_[k]; }

    /// Corner `k` becomes (x, y). Raises as CornerKey.
    void Replace(std::size_t k, Single x, Single y);
    /// Add a corner (x, y) behind all others. Raises as CornerKey.
    void Append(Single x, Single y);
    /// Take corners first .. last - 1 away.
    void Erase(std::size_t first, std::size_t last);

  private:
    /// Of the corners that equal corner `k` exactly, keep the first.
    void DropRepeats(std::size_t k);

    std::vector<FreeCorner> corners_;
};

} // namespace tarn
