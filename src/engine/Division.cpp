#include "engine/Division.h"

#include "base/Numbers.h"

#include <algorithm>

namespace tarn {

namespace {

Double PartLength(Single length, Integer parts, Integer minCut) {
    constexpr Double RoundingUp = 0.9; // per part; shares below a tenth of a unit are dropped
    const Double share = Int((static_cast<Double>(length) + parts * RoundingUp) / parts);
    return std::max(share, static_cast<Double>(minCut));
}

} // namespace

EqualParts::EqualParts(Single top, Single bottom, Integer parts, Integer minCut)
    : top_(top)
    , bottom_(bottom)
    , parts_(parts)
    , partLength_(PartLength(bottom - top, parts, minCut)) {}

Single EqualParts::Edge(Integer number) const {
    if (parts_ == 1) {
        return number == 0 ? top_ : bottom_;
    }
    return CSng(number * partLength_ + static_cast<Double>(top_));
}

} // namespace tarn
