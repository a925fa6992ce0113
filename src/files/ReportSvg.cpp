#include "files/ReportSvg.h"

#include "base/Text.h"
#include "files/SvgElements.h"
#include "project/Report.h"
#include "project/ReportType.h"

#include <algorithm>

namespace tarn {

namespace {

// All in twips.
constexpr Double Advance = CourierAdvance * ReportTypeSize;
constexpr Double LineHeight = CourierLineHeight * ReportTypeSize;
constexpr Double Ascent = CourierAscent * ReportTypeSize;
constexpr Double Margin = 360;

Double LineWidth(std::string_view line) {
    return static_cast<Double>(Len(line)) * Advance;
}

/// A line keeps its width where the viewer has to take wider letters, so that it stays on the
/// paper.
std::string TextElement(std::string_view line, Double top) {
    std::string element = "<text xml:space=\"preserve\"" + SvgAttribute("x", SvgNumber(Margin)) +
                          SvgAttribute("y", SvgNumber(top + Ascent));
    if (!line.empty()) {
        element += SvgAttribute("textLength", SvgNumber(LineWidth(line))) +
                   " lengthAdjust=\"spacingAndGlyphs\"";
    }
    return element + ">" + SvgEscaped(line) + "</text>\n";
}

} // namespace

std::string ReportSvg(const EnteredDataReport& report) {
    Double width = 0;
    for (const ReportLine& line : report.Lines) {
        width = std::max(width, LineWidth(line.Text));
    }
    std::string svg =
        SvgHead(width + 2 * Margin,
                static_cast<Double>(report.Lines.size()) * LineHeight + 2 * Margin, ReportTitle);
    svg += "<g" + SvgAttribute("font-size", SvgNumber(ReportTypeSize)) +
           " font-family=\"Courier New, Liberation Mono, Courier, monospace\""
           " fill=\"#000000\">\n";
    Double top = Margin;
    for (const ReportLine& line : report.Lines) {
        svg += TextElement(line.Text, top);
        top += LineHeight;
    }
    return svg + "</g>\n" + std::string(SvgTail);
}

} // namespace tarn
