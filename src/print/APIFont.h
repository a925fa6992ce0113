#pragma once

#include "app/Types.h"
#include "print/LogicalFont.h"
#include "print/TextSurface.h"

#include <string>
#include <string_view>

namespace tarn {

/// Writes text on any surface: turned, aligned, coloured and clipped. Set the properties, call
/// SelectFont on a surface, write with FontOut or CharPlace, then call SelectOrg on the same
/// surface. Properties take effect at the next SelectFont. Positions are in the surface's units.
/// Nothing fails but a position that is no Long ("Overflow"): what cannot be drawn is not drawn,
/// and for a face that is not there the system takes another.
class APIFont {
  public:
    Long Height() const { return record_.Height; }
    void Height(Long value) { record_.Height = value; }
    Long Width() const { return record_.Width; }
    void Width(Long value) { record_.Width = value; }
    Long Escapement() const { return record_.Escapement; }
    void Escapement(Long value) { record_.Escapement = value; }
    Long Weight() const { return record_.Weight; }
    void Weight(Long value) { record_.Weight = value; }
    Byte Italic() const { return record_.Italic; }
    void Italic(Byte value) { record_.Italic = value; }
    Byte UnderLine() const { return record_.UnderLine; }
    void UnderLine(Byte value) { record_.UnderLine = value; }
    Byte StrikeOut() const { return record_.StrikeOut; }
    void StrikeOut(Byte value) { record_.StrikeOut = value; }
    /// All 50 characters of the field, UTF-8: "Verdana", a NUL and blanks at first.
    std::string FaceName() const { return record_.FaceName; }
    /// Puts the name into the field (FaceField).
    void FaceName(std::string_view value);

    /// Clip the surface to the rectangle at (x, y) that is twice as wide and high as `txt` in the
    /// surface's own font, and write there. The clip stays in force on the surface.
    void CharPlace(TextSurface& o, std::string_view txt, Double x, Double y);
    /// Where texts lie at their position from now on: top left unless an argument is True (-1, no
    /// other value). Of several that are True the last in its direction wins.
    void SetAlign(TextSurface& o, Integer Top, Integer BaseLine, Integer Bottom, Integer Left,
                  Integer Center, Integer Right);
    /// The colour of texts from now on: red + 256 × green + 65536 × blue.
    void setcolor(TextSurface& o, Long Cvalue);
    /// Give the surface back the font that it had, and free this object's own. Without a selected
    /// font nothing happens.
    void SelectOrg(TextSurface& o);
    /// Make a font from the properties, laid out as a LogicalFont, and select it into the surface.
    /// A face is found by its name in ANSI; the texts that it writes are Unicode. A second call
    /// keeps the font that was saved first.
    void SelectFont(TextSurface& o);
    /// Write `text` at (XX, YY).
    void FontOut(std::string_view text, TextSurface& o, Double XX, Double YY);

  private:
    FontRecord record_;
    FontHandle font_;     ///< made by this object, while it is selected
    FontHandle original_; ///< selected in the surface before
};

} // namespace tarn
