// How a roll is folded on pages: how many strips beside each other, at which scale.

#pragma once

#include "order/Order.h"
#include "order/RollFold.h"
#include "order/SheetLabels.h"
#include "project/Project.h"

#include <vector>

namespace tarn {

/// A strip of the folded roll, placed on its page.
struct RollStrip {
    RollStretch Stretch;
    std::size_t Page = 0; ///< from 0
    SheetArea Roll;       ///< the whole width of the roll, twips
    Double Lane = 0;      ///< width of the room for notes at its right, twips
    std::vector<std::size_t> Pieces; ///< those that it shows
    std::vector<LabelledBox> Boxes;  ///< for each of them
    StretchLabels Labels;
};

/// A roll on its pages.
struct RollPlan {
    Double Scale = 0; ///< twips in a whole unit
    std::vector<RollStrip> Strips;

    std::size_t Pages() const { return Strips.empty() ? 0 : Strips.back().Page + 1; }
};

/// Room for what stands over each strip, twips, and at its left.
inline constexpr Double StripHeadHeight = 560;
inline constexpr Double RulerWidth = 860;

/// The fold with the fewest pages of those that have the fewest notes beside the roll, or hardly
/// more, and of these the one at the largest scale.
RollPlan PlanRoll(const Project& project, const Order& order, const OrderCandidate& candidate,
                  const SheetPaper& paper);

} // namespace tarn
