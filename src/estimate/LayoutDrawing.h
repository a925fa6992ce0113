#pragma once

#include "app/SharedState.h"
#include "engine/EngineArrays.h"
#include "estimate/CarpetEstimate.h"
#include "estimate/Picture.h"

namespace tarn {

/// Whether a drawing shows each piece's size below its label, where there is room for it.
enum class PieceSizes { Hidden, Shown };

/// Clear `picture` and draw the roll with its pieces to scale, X across the roll, Y along it from
/// the start at the top; or, without a piece, "NO FILLS TO DISPLAY". Leaves font size and colour as
/// they were and makes the picture visible. Raises "Division by zero" for a RollWidth of 0 with
/// pieces present, and for a ResultLen of 0 (fills shorter than an inch), with the way out.
void RedrawPC(Picture& picture, const SharedState& state, const EngineArrays& engine,
              const CarpetEstimate& estimate, PieceSizes sizes = PieceSizes::Hidden);

/// Print the cut list with its top left at (x, y), twips, over what is drawn there. Every line
/// starts at x. Leaves font size and colour as they were.
void ShowECutsInfo(Picture& picture, const SharedState& state, const EngineArrays& engine,
                   const CarpetEstimate& estimate, Double x, Double y);

/// Where the cut list stands when an estimate is done, twips.
inline constexpr Double CutListX = 100;
inline constexpr Double CutListY = 100;

} // namespace tarn
