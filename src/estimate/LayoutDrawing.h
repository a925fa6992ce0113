// The drawing of an estimate: the roll with its pieces, and the cut list beside it.

#pragma once

#include "drawing/Drawing.h"
#include "estimate/Estimate.h"

namespace tarn {

/// Whether a drawing shows each piece's size below its label, where there is room for it.
enum class PieceSizes { Hidden, Shown };

/// Clear `drawing` and draw the roll with its pieces to scale, X across the roll, Y along it from
/// the start at the top; without a piece as DrawNoFills. Leaves font size and colour as they were
/// and makes the drawing visible. Raises "Division by zero" for a roll width of 0 with pieces
/// present, and for a reported length of 0 (fills shorter than an inch), with the way out.
void DrawLayout(Drawing& drawing, const Estimate& estimate, PieceSizes sizes = PieceSizes::Hidden);

/// Clear `drawing` and say that there is nothing to draw: "NO FILLS TO DISPLAY".
void DrawNoFills(Drawing& drawing);

/// Write the cut list with its top left at (x, y), twips, over what is drawn there. Every line
/// starts at x. Leaves font size and colour as they were.
void DrawCutList(Drawing& drawing, const Estimate& estimate, Double x, Double y);

/// Where the cut list stands when an estimate is done, twips.
inline constexpr Double CutListX = 100;
inline constexpr Double CutListY = 100;

} // namespace tarn
