// Drawings as lists of steps, and how their lines and letters are made.

#pragma once

#include "base/Types.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// The colours of a drawing.
enum class DrawingColor { Black, Green, Red };
/// The same as "#RRGGBB".
std::string_view ColorText(DrawingColor color);

/// How a drawing's lines and letters are made, twips; of type sizes in points.
inline constexpr Double DrawnLineWidth = 15;
/// Beyond the farthest point drawn, on paper and in files.
inline constexpr Double DrawingMargin = 100;
Double LetterHeight(Double fontSize); ///< the size itself
Double HeightOfLine(Double fontSize); ///< from a line's top to the next line's
Double AscentOfLine(Double fontSize); ///< from a line's top to what its letters stand on

/// One step of a drawing. Positions and sizes are twips (1/1440 inch), type sizes points.
struct DrawingStep {
    enum class Kind { Box, Text };

    Kind What = Kind::Box;
    DrawingColor Color = DrawingColor::Black;
    Double X1 = 0; ///< box: left; text: left of its first letter
    Double Y1 = 0; ///< box: top; text: top of its line
    Double X2 = 0; ///< right; of a text by the face's own letter widths
    Double Y2 = 0; ///< box: bottom
    Double FontSize = 0;
    std::string Text;
    std::string Tip; ///< box: what it stands for, for viewers that show it on request
};

/// A drawing kept as a list of steps instead of pixels, so that it can be repainted at any size,
/// printed sharp and written to a file. Text is in the face "Arial".
class Drawing {
  public:
    /// Where WriteLine writes next, twips.
    Double PenX = 0;
    Double PenY = 0;
    Double FontSize = 9; ///< points
    DrawingColor Color = DrawingColor::Black;
    bool Visible = false; ///< whether who shows it should: set when something has been drawn

    /// Remove everything drawn and go to (0, 0).
    void Clear();
    /// Draw the outline of a rectangle.
    void AddBox(Double x1, Double y1, Double x2, Double y2, DrawingColor color,
                std::string tip = {});
    /// Write one line at the pen in FontSize and Color; then go to the left edge, one line height
    /// further down.
    void WriteLine(std::string_view text);

    /// The height of a line in FontSize, twips.
    Double LineHeight() const;
    /// The width of a text in FontSize, twips, by the face's own letter widths.
    Double TextWidth(std::string_view utf8) const;

    const std::vector<DrawingStep>& Steps() const { return steps_; }
    /// The farthest point drawn to the right and down, twips; 0 when nothing is drawn.
    Double FarthestX() const { return farthestX_; }
    Double FarthestY() const { return farthestY_; }

  private:
    void Reach(Double x, Double y);

    std::vector<DrawingStep> steps_;
    Double farthestX_ = 0;
    Double farthestY_ = 0;
};

} // namespace tarn
