#include "files/Svg.h"

#include "files/SvgElements.h"

namespace tarn {

namespace {

std::string BoxElement(const DrawingStep& step) {
    const std::string open = "<rect" + SvgAttribute("x", SvgNumber(step.X1)) +
                             SvgAttribute("y", SvgNumber(step.Y1)) +
                             SvgAttribute("width", SvgNumber(step.X2 - step.X1)) +
                             SvgAttribute("height", SvgNumber(step.Y2 - step.Y1)) +
                             SvgAttribute("stroke", ColorText(step.Color));
    if (step.Tip.empty()) {
        return open + "/>\n";
    }
    return open + "><title>" + SvgEscaped(step.Tip) + "</title></rect>\n";
}

/// The text keeps its width where the viewer has to take a wider face, so that a size stays inside
/// its piece.
std::string TextElement(const DrawingStep& step) {
    return "<text" + SvgAttribute("x", SvgNumber(step.X1)) +
           SvgAttribute("y", SvgNumber(step.Y1 + AscentOfLine(step.FontSize))) +
           SvgAttribute("font-size", SvgNumber(LetterHeight(step.FontSize))) +
           SvgAttribute("textLength", SvgNumber(step.X2 - step.X1)) +
           " lengthAdjust=\"spacingAndGlyphs\"" + SvgAttribute("fill", ColorText(step.Color)) +
           ">" + SvgEscaped(step.Text) + "</text>\n";
}

} // namespace

std::string SvgDocument(const Drawing& drawing, const std::string& title) {
    const Double width = drawing.FarthestX() + DrawingMargin;
    const Double height = drawing.FarthestY() + DrawingMargin;
    std::string svg = SvgHead(width, height, title);
    svg += "<g fill=\"none\"" + SvgAttribute("stroke-width", SvgNumber(DrawnLineWidth)) +
           " font-family=\"Arial, Liberation Sans, Helvetica, sans-serif\""
           " xml:space=\"preserve\" pointer-events=\"all\">\n";
    for (const DrawingStep& step : drawing.Steps()) {
        svg += step.What == DrawingStep::Kind::Box ? BoxElement(step) : TextElement(step);
    }
    svg += "</g>\n" + std::string(SvgTail);
    return svg;
}

} // namespace tarn
