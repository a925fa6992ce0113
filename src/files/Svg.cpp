#include "files/Svg.h"

#include "files/SvgElements.h"

#include <algorithm>

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

std::string LineElement(const DrawingStep& step) {
    return "<line" + SvgAttribute("x1", SvgNumber(step.X1)) +
           SvgAttribute("y1", SvgNumber(step.Y1)) + SvgAttribute("x2", SvgNumber(step.X2)) +
           SvgAttribute("y2", SvgNumber(step.Y2)) + SvgAttribute("stroke", ColorText(step.Color)) +
           SvgAttribute("stroke-width", SvgNumber(step.LineWidth)) + "/>\n";
}

/// Whether the widths of all letters are known.
bool HasKnownLetters(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c <= '~'; });
}

/// The text keeps its width where the viewer has to take a wider face, so that a size stays inside
/// its piece. A loose one of letters whose widths are not known is left as it is, since letters
/// cannot be kept from being drawn out otherwise.
std::string TextElement(const DrawingStep& step) {
    const Double ascent = AscentOfLine(step.FontSize);
    const std::string x = SvgNumber(step.IsUpward ? step.X1 + ascent : step.X1);
    const std::string y = SvgNumber(step.IsUpward ? step.Y1 : step.Y1 + ascent);
    const Double length = step.IsUpward ? step.Y1 - step.Y2 : step.X2 - step.X1;
    std::string element = "<text" + SvgAttribute("x", x) + SvgAttribute("y", y) +
                          SvgAttribute("font-size", SvgNumber(LetterHeight(step.FontSize)));
    if (step.IsUpward) {
        element += SvgAttribute("transform", "rotate(-90 " + x + " " + y + ")");
    }
    if (!step.IsLoose || HasKnownLetters(step.Text)) {
        element +=
            SvgAttribute("textLength", SvgNumber(length)) + " lengthAdjust=\"spacingAndGlyphs\"";
    }
    return element + SvgAttribute("fill", ColorText(step.Color)) + ">" + SvgEscaped(step.Text) +
           "</text>\n";
}

std::string Element(const DrawingStep& step) {
    switch (step.What) {
    case DrawingStep::Kind::Box:
        return BoxElement(step);
    case DrawingStep::Kind::Line:
        return LineElement(step);
    case DrawingStep::Kind::Text:
        break;
    }
    return TextElement(step);
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
        svg += Element(step);
    }
    svg += "</g>\n" + std::string(SvgTail);
    return svg;
}

} // namespace tarn
