// How a roll is folded on pages: how many strips beside each other, at which scale.

#pragma once

#include "order/Order.h"
#include "order/RollFold.h"
#include "order/SheetLabels.h"
#include "project/Project.h"

#include <string>
#include <vector>

namespace tarn {

/// A strip of the folded roll, placed on its page.
struct RollStrip {
    RollStretch Stretch;
    std::string Head;                ///< which stretch it is
    SheetArea Roll;                  ///< the whole width of the roll, twips
    std::vector<std::size_t> Pieces; ///< those that it shows
    std::vector<LabelledBox> Boxes;  ///< for each of them
    StretchLabels Labels;
};

/// A page with strips side by side, and at its foot what is said of pieces that are too small for
/// their label.
struct RollPage {
    std::vector<RollStrip> Strips;
    std::vector<std::string> Notes;
    std::size_t NoteColumns = 1; ///< side by side
    std::size_t NoteLines = 0;   ///< for which there is room; notes may be left over
};

/// A roll on its pages.
struct RollPlan {
    Double Scale = 0; ///< twips in a whole unit
    std::vector<RollPage> Pages;
};

/// The type size of the notes, points, and the room above them, twips.
inline constexpr Double NoteSize = 9;
inline constexpr Double NoteGap = 240;

/// The type size of the strips' heads, points, and the room over each strip, twips, and at its
/// left.
inline constexpr Double StripHeadSize = 9;
inline constexpr Double StripHeadHeight = 560;
inline constexpr Double RulerWidth = 860;
/// Room below each strip, for half a line of the ruler.
inline constexpr Double StripFoot = 100;

/// The fold that is read with the least trouble: each page counts as much as a few labels that are
/// not on their piece.
RollPlan PlanRoll(const Project& project, const Order& order, const OrderCandidate& candidate,
                  const SheetPaper& paper);

} // namespace tarn
