#include "files/SvgElements.h"

#include "base/Format.h"
#include "base/Text.h"
#include "files/QtText.h"

namespace tarn {

namespace {

constexpr Double TwipsPerPixel = 15;

/// Control characters are not allowed whatever their spelling.
QString Allowed(std::string_view text) {
    constexpr char16_t FirstNonCharacter = 0xFFFE;
    QString allowed = ToQt(OneLine(text));
    for (QChar& c : allowed) {
        if (c.unicode() >= FirstNonCharacter) {
            c = QChar::ReplacementCharacter;
        }
    }
    return allowed;
}

} // namespace

std::string SvgEscaped(std::string_view text) {
    return FromQt(Allowed(text).toHtmlEscaped());
}

std::string SvgNumber(Double value) {
    return Format(value, "0.00");
}

std::string SvgAttribute(std::string_view name, std::string_view value) {
    return " " + std::string(name) + "=\"" + std::string(value) + "\"";
}

std::string SvgHead(Double width, Double height, std::string_view title) {
    std::string svg = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                      "<svg xmlns=\"http://www.w3.org/2000/svg\"" +
                      SvgAttribute("width", SvgNumber(width / TwipsPerPixel)) +
                      SvgAttribute("height", SvgNumber(height / TwipsPerPixel)) +
                      SvgAttribute("viewBox", "0 0 " + SvgNumber(width) + " " + SvgNumber(height)) +
                      ">\n";
    svg += "<title>" + SvgEscaped(title) + "</title>\n";
    svg += "<rect width=\"100%\" height=\"100%\" fill=\"#FFFFFF\"/>\n";
    return svg;
}

} // namespace tarn
