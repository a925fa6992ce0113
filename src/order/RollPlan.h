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
    std::size_t Page = 0;            ///< from 0
    SheetArea Roll;                  ///< the whole width of the roll, twips
    std::vector<std::size_t> Pieces; ///< those that it shows
    std::vector<LabelledBox> Boxes;  ///< for each of them
    StretchLabels Labels;
};

/// What is said at the foot of a page of a piece that is too small for its label.
struct RollNote {
    std::string Text;
    std::size_t Page = 0; ///< from 0
};

/// A roll on its pages.
struct RollPlan {
    Double Scale = 0; ///< twips in a whole unit
    std::vector<RollStrip> Strips;
    std::vector<RollNote> Notes; ///< by page
    std::size_t NoteColumns = 1; ///< side by side at a page's foot
    std::size_t NoteLines = 0;   ///< below each other, at most, at a page's foot

    std::size_t Pages() const { return Strips.empty() ? 0 : Strips.back().Page + 1; }
};

/// The type size of the notes, points, and the room above them, twips.
inline constexpr Double NoteSize = 9;
inline constexpr Double NoteGap = 240;

/// Room for what stands over each strip, twips, and at its left.
inline constexpr Double StripHeadHeight = 560;
inline constexpr Double RulerWidth = 860;
/// Room below each strip for the mark of a piece that is broken there, and as much above.
inline constexpr Double BreakRoom = 30;

/// The fold that is read with the least trouble: each page counts as much as a few labels that are
/// not on their piece.
RollPlan PlanRoll(const Project& project, const Order& order, const OrderCandidate& candidate,
                  const SheetPaper& paper);

} // namespace tarn
