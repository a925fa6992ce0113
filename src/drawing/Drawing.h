// Drawings as lists of steps, and how their lines and letters are made.

#pragma once

#include "base/Types.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// The colours of a drawing.
enum class DrawingColor { Black, Green, Red, Gray };
/// The same as "#RRGGBB".
std::string_view ColorText(DrawingColor color);

/// How a drawing's lines and letters are made, twips; of type sizes in points.
inline constexpr Double DrawnLineWidth = 15;
/// Beyond the farthest point drawn, on paper and in files.
inline constexpr Double DrawingMargin = 100;
Double LetterHeight(Double fontSize); ///< the size itself
Double HeightOfLine(Double fontSize); ///< from a line's top to the next line's
Double AscentOfLine(Double fontSize); ///< from a line's top to what its letters stand on
/// The width of a text (UTF-8), by the face's own letter widths.
Double WidthOfText(std::string_view utf8, Double fontSize);

/// One step of a drawing. Positions and sizes are twips (1/1440 inch), type sizes points.
struct DrawingStep {
    enum class Kind { Box, Text, Line };

    Kind What = Kind::Box;
    DrawingColor Color = DrawingColor::Black;
    Double X1 = 0; ///< box: left; text: left of its first letter; line: where it begins
    Double Y1 = 0; ///< box: top; text: top of its line
    Double X2 = 0; ///< right; of a text by the face's own letter widths; line: where it ends
    Double Y2 = 0; ///< bottom of a box; of an upward text its end, by the letter widths
    Double LineWidth = DrawnLineWidth; ///< of a line
    Double FontSize = 0;
    /// Text: its letters run upwards, from (X1, Y1) to (X1, Y2), their tops to the left at X1.
    bool IsUpward = false;
    /// Text: its ends are the most that it takes: where its letters are narrower than they were
    /// taken to be, they are not drawn out.
    bool IsLoose = false;
    std::string Text;
    std::string Tip; ///< box: what it stands for, for viewers that show it on request

    bool operator==(const DrawingStep&) const = default;
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
    /// Draw a line.
    void AddLine(Double x1, Double y1, Double x2, Double y2,
                 DrawingColor color = DrawingColor::Black, Double width = DrawnLineWidth);
    /// Write a text with the left end of its line's top at (x, y), in Color, and leave the pen. Its
    /// letters are not drawn out.
    void AddText(Double x, Double y, std::string_view text, Double fontSize);
    /// The same upwards, from (x, y) on, the tops of its letters at x.
    void AddUpwardText(Double x, Double y, std::string_view text, Double fontSize);
    /// Draw all of another drawing, moved by (dx, dy).
    void Append(const Drawing& other, Double dx, Double dy);

    /// The height of a line in FontSize, twips.
    Double LineHeight() const;
    /// The width of a text in FontSize, twips, by the face's own letter widths.
    Double TextWidth(std::string_view utf8) const;

    const std::vector<DrawingStep>& Steps() const { return steps_; }
    /// The farthest point drawn to the right and down, twips; 0 when nothing is drawn.
    Double FarthestX() const { return farthestX_; }
    Double FarthestY() const { return farthestY_; }

    bool operator==(const Drawing&) const = default;

  private:
    void Reach(Double x, Double y);

    std::vector<DrawingStep> steps_;
    Double farthestX_ = 0;
    Double farthestY_ = 0;
};

} // namespace tarn
