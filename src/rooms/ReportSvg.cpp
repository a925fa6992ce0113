#include "rooms/ReportSvg.h"

#include "app/SvgElements.h"
#include "app/Text.h"
#include "rooms/Report.h"
#include "rooms/ReportType.h"

#include <algorithm>
#include <vector>

namespace tarn {

namespace {

// All in twips.
constexpr Double Advance = CourierAdvance * ReportTypeSize;
constexpr Double LineHeight = CourierLineHeight * ReportTypeSize;
constexpr Double Ascent = CourierAscent * ReportTypeSize;
constexpr Double Margin = 360;

Double WidthOf(std::string_view line) {
    return static_cast<Double>(Len(line)) * Advance;
}

/// A line keeps its width where the viewer has to take wider letters, so that it stays on the
/// paper.
std::string TextElement(std::string_view line, Double top) {
    std::string element = "<text xml:space=\"preserve\"" + SvgAttribute("x", SvgNumber(Margin)) +
                          SvgAttribute("y", SvgNumber(top + Ascent));
    if (!line.empty()) {
        element += SvgAttribute("textLength", SvgNumber(WidthOf(line))) +
                   " lengthAdjust=\"spacingAndGlyphs\"";
    }
    return element + ">" + SvgEscaped(line) + "</text>\n";
}

} // namespace

std::string ReportSvg(std::string_view text) {
    const std::vector<std::string_view> lines = ReportLines(text);
    Double width = 0;
    for (const std::string_view line : lines) {
        width = std::max(width, WidthOf(line));
    }
    std::string svg =
        SvgHead(width + 2 * Margin, static_cast<Double>(lines.size()) * LineHeight + 2 * Margin,
                ReportTitle);
    svg += "<g" + SvgAttribute("font-size", SvgNumber(ReportTypeSize)) +
           " font-family=\"Courier New, Liberation Mono, Courier, monospace\""
           " fill=\"#000000\">\n";
    Double top = Margin;
    for (const std::string_view line : lines) {
        svg += TextElement(line, top);
        top += LineHeight;
    }
    return svg + "</g>\n" + std::string(SvgTail);
}

} // namespace tarn
