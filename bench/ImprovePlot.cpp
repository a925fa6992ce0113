#include "bench/ImprovePlot.h"

#include "base/Format.h"
#include "estimate/EstimateRequest.h"

#include <algorithm>
#include <cmath>

namespace tarn {

namespace {

constexpr double Width = 720;
constexpr double Height = 400;
constexpr double Left = 70;
constexpr double Right = 700;
constexpr double Bottom = 330;
constexpr double Top = 40;
constexpr double BarWidth = 36;

std::string Number(double value) {
    return Format(value, "0.0");
}

std::string Text(double x, double y, const std::string& anchor, const std::string& text) {
    return "<text x=\"" + Number(x) + "\" y=\"" + Number(y) + "\" text-anchor=\"" + anchor + "\">" +
           text + "</text>\n";
}

std::string Bar(double x, double height, const std::string& color, double percent) {
    return "<rect x=\"" + Number(x) + "\" y=\"" + Number(Bottom - height) + "\" width=\"" +
           Number(BarWidth) + "\" height=\"" + Number(height) + "\" fill=\"" + color + "\"/>\n" +
           Text(x + BarWidth / 2, Bottom - height - 5, "middle", Format(percent, "0.0"));
}

std::string Key(double x, const std::string& color, const std::string& name) {
    return "<rect x=\"" + Number(x) + "\" y=\"12\" width=\"13\" height=\"13\" fill=\"" + color +
           "\"/>\n" + Text(x + 19, 23, "start", name);
}

} // namespace

AverageGaps GapsOf(const std::vector<FlooringResult>& results) {
    AverageGaps gaps;
    for (const FlooringResult& result : results) {
        if (result.Counts()) {
            gaps.Searched += 100 * (result.Searched / result.Bound - 1);
            gaps.Improved += 100 * (result.Improved / result.Bound - 1);
            ++gaps.Jobs;
        }
    }
    gaps.Searched /= static_cast<double>(std::max<std::size_t>(1, gaps.Jobs));
    gaps.Improved /= static_cast<double>(std::max<std::size_t>(1, gaps.Jobs));
    return gaps;
}

std::string ImprovePlot(const std::vector<FlooringResult>& results) {
    std::vector<AverageGaps> groups;
    double highest = 1;
    for (int pieces = 1; pieces <= MostPiecesPerFill; ++pieces) {
        std::vector<FlooringResult> group;
        std::copy_if(results.begin(), results.end(), std::back_inserter(group),
                     [&](const FlooringResult& result) { return result.MaxPieces == pieces; });
        groups.push_back(GapsOf(group));
        highest = std::max(highest, std::ceil(groups.back().Searched));
    }
    const double scale = (Bottom - Top - 20) / highest;
    std::string svg = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + Number(Width) +
                      "\" height=\"" + Number(Height) +
                      "\" font-family=\"Arial, Liberation Sans, sans-serif\" font-size=\"13\">\n"
                      "<rect width=\"100%\" height=\"100%\" fill=\"#FFFFFF\"/>\n";
    const int spacing = highest > 8 ? 2 : 1;
    for (int percent = 0; percent <= highest; percent += spacing) {
        const double y = Bottom - percent * scale;
        svg += "<line x1=\"" + Number(Left) + "\" y1=\"" + Number(y) + "\" x2=\"" + Number(Right) +
               "\" y2=\"" + Number(y) + "\" stroke=\"#DDDDDD\"/>\n" +
               Text(Left - 8, y + 4, "end", std::to_string(percent) + "%");
    }
    const double step = (Right - Left) / MostPiecesPerFill;
    for (std::size_t i = 0; i < groups.size(); ++i) {
        const double middle = Left + step * (static_cast<double>(i) + 0.5);
        svg +=
            Bar(middle - BarWidth - 2, groups[i].Searched * scale, "#AAAAAA", groups[i].Searched);
        svg += Bar(middle + 2, groups[i].Improved * scale, "#008000", groups[i].Improved);
        svg += Text(middle, Bottom + 20, "middle", std::to_string(i + 1));
    }
    return svg + Text((Left + Right) / 2, Bottom + 44, "middle", "most pieces per fill") +
           Key(Left, "#AAAAAA", "the search, length over the bound") +
           Key(Left + 300, "#008000", "improved") + "</svg>\n";
}

} // namespace tarn
