#pragma once

#include "base/Types.h"
#include "text/LogicalFont.h"
#include "text/TextSurface.h"

#include <string_view>

namespace tarn {

/// Writes text on any surface: turned, aligned, coloured and clipped. Describe the font, call
/// SelectFont on a surface, write with Write or WriteClipped, then call RestoreFont on the same
/// surface. Positions are in the surface's units. Nothing fails but a position that is no Long
/// ("Overflow"): what cannot be drawn is not drawn, and for a face that is not there the system
/// takes another.
class TextWriter {
  public:
    FontRecord Font; ///< what is changed here takes effect at the next SelectFont

    /// Make a font from the description, laid out as a LogicalFont, and select it into the surface.
    /// A face is found by its name in ANSI; the texts that it writes are Unicode. A second call
    /// keeps the font that was saved first.
    void SelectFont(TextSurface& surface);
    /// Give the surface back the font that it had, and free this object's own. Without a selected
    /// font nothing happens.
    void RestoreFont(TextSurface& surface);

    /// Where texts lie at their position from now on: top left unless an argument is True (-1, no
    /// other value). Of several that are True the last in its direction wins.
    static void SetAlignment(TextSurface& surface, Integer top, Integer baseline, Integer bottom,
                             Integer left, Integer center, Integer right);
    /// The colour of texts from now on: red + 256 × green + 65536 × blue.
    static void SetColor(TextSurface& surface, Long color);

    static void Write(TextSurface& surface, std::string_view text, Double x, Double y);
    /// Clip the surface to the rectangle at (x, y) that is twice as wide and high as `text` in the
    /// surface's own font, and write there. The clip stays in force on the surface.
    static void WriteClipped(TextSurface& surface, std::string_view text, Double x, Double y);

  private:
    FontHandle font_;     ///< made by this object, while it is selected
    FontHandle original_; ///< selected in the surface before
};

} // namespace tarn
