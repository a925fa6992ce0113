// How well a part fits a gap: what a plan chooses by.

#pragma once

#include "improve/Skyline.h"

#include <algorithm>

namespace tarn {

/// The walls beside a gap, not counted higher than the roof.
struct Walls {
    Long Tall;
    Long Short;
    bool TallIsLeft; ///< of equals the left one

    /// Of a gap with `room` up to the roof.
    Walls(const Gap& gap, Long room)
        : Tall(std::min(std::max(gap.Left, gap.Right), room))
        , Short(std::min(std::min(gap.Left, gap.Right), room))
        , TallIsLeft(gap.Left >= gap.Right) {}
};

/// How well a part fits a gap, best first. The first class with a part in it is taken from; in a
/// class the earliest part in the order of the plan.
enum class FitClass {
    FillsLevelTall,  ///< as wide as the gap, as long as the taller wall
    FillsLevelShort, ///< as long as the shorter wall
    FillsBelow,      ///< shorter than both
    FillsBetween,    ///< between the two
    FillsAbove,      ///< longer than both
    LevelTall,       ///< narrower than the gap, as long as the taller wall
    LevelShort,      ///< as long as the shorter wall
    Fits,            ///< narrower, of any other length
    None
};

inline FitClass ClassOf(bool fills, Long length, const Walls& walls) {
    if (length == walls.Tall) {
        return fills ? FitClass::FillsLevelTall : FitClass::LevelTall;
    }
    if (length == walls.Short) {
        return fills ? FitClass::FillsLevelShort : FitClass::LevelShort;
    }
    if (!fills) {
        return FitClass::Fits;
    }
    if (length < walls.Short) {
        return FitClass::FillsBelow;
    }
    return length < walls.Tall ? FitClass::FillsBetween : FitClass::FillsAbove;
}

/// A part stands flush beside the wall that it is as long as, else beside the taller.
inline bool StandsLeft(FitClass fit, const Walls& walls) {
    const bool besideShort = fit == FitClass::FillsLevelShort || fit == FitClass::LevelShort;
    return walls.TallIsLeft != besideShort;
}

} // namespace tarn
