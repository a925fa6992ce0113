#include "estimate/Svg.h"

#include "app/Format.h"

#include <QString>

#include <string_view>

namespace tarn {

namespace {

constexpr Double TwipsPerPixel = 15;

std::string Number(Double value) {
    return Format(value, "0.00");
}

/// A text as a document may hold it: blanks for control characters, which are not allowed whatever
/// their spelling, and the replacement character for bytes and code points that are no character.
QString Allowed(std::string_view text) {
    constexpr char16_t FirstNonCharacter = 0xFFFE;
    QString allowed = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    for (QChar& c : allowed) {
        if (c < QLatin1Char(' ')) {
            c = QLatin1Char(' ');
        } else if (c.unicode() >= FirstNonCharacter) {
            c = QChar::ReplacementCharacter;
        }
    }
    return allowed;
}

std::string Escaped(std::string_view text) {
    return Allowed(text).toHtmlEscaped().toStdString();
}

std::string Attribute(std::string_view name, std::string_view value) {
    return " " + std::string(name) + "=\"" + std::string(value) + "\"";
}

std::string BoxElement(const DrawingStep& step) {
    const std::string open =
        "<rect" + Attribute("x", Number(step.X1)) + Attribute("y", Number(step.Y1)) +
        Attribute("width", Number(step.X2 - step.X1)) +
        Attribute("height", Number(step.Y2 - step.Y1)) + Attribute("stroke", ColorText(step.Color));
    if (step.Tip.empty()) {
        return open + "/>\n";
    }
    return open + "><title>" + Escaped(step.Tip) + "</title></rect>\n";
}

/// The text keeps its width where the viewer has to take a wider face, so that a size stays inside
/// its piece.
std::string TextElement(const DrawingStep& step) {
    return "<text" + Attribute("x", Number(step.X1)) +
           Attribute("y", Number(step.Y1 + AscentOfLine(step.FontSize))) +
           Attribute("font-size", Number(LetterHeight(step.FontSize))) +
           Attribute("textLength", Number(step.X2 - step.X1)) +
           " lengthAdjust=\"spacingAndGlyphs\"" + Attribute("fill", ColorText(step.Color)) + ">" +
           Escaped(step.Text) + "</text>\n";
}

} // namespace

std::string SvgDocument(const Picture& picture, const std::string& title) {
    const Double width = picture.FarthestX() + DrawingMargin;
    const Double height = picture.FarthestY() + DrawingMargin;
    std::string svg = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                      "<svg xmlns=\"http://www.w3.org/2000/svg\"" +
                      Attribute("width", Number(width / TwipsPerPixel)) +
                      Attribute("height", Number(height / TwipsPerPixel)) +
                      Attribute("viewBox", "0 0 " + Number(width) + " " + Number(height)) + ">\n";
    svg += "<title>" + Escaped(title) + "</title>\n";
    svg += "<rect width=\"100%\" height=\"100%\" fill=\"#FFFFFF\"/>\n";
    svg += "<g fill=\"none\"" + Attribute("stroke-width", Number(DrawnLineWidth)) +
           " font-family=\"Arial, Liberation Sans, Helvetica, sans-serif\""
           " xml:space=\"preserve\" pointer-events=\"all\">\n";
    for (const DrawingStep& step : picture.Steps()) {
        svg += step.What == DrawingStep::Kind::Box ? BoxElement(step) : TextElement(step);
    }
    svg += "</g>\n</svg>\n";
    return svg;
}

} // namespace tarn
