#include "bench/CostPlot.h"

#include "base/Format.h"

#include <cmath>

namespace tarn {

namespace {

constexpr double Width = 720;
constexpr double Height = 440;
constexpr double Left = 80;
constexpr double Bottom = 380;
constexpr double AcrossDecade = 260; ///< pixels for a factor of ten
constexpr double UpDecade = 80;
constexpr double LeastParts = 30;
constexpr double LeastSeconds = 1e-6;

double X(double parts) {
    return Left + AcrossDecade * std::log10(parts / LeastParts);
}
double Y(double seconds) {
    return Bottom - UpDecade * std::log10(seconds / LeastSeconds);
}

std::string Number(double value) {
    return Format(value, "0.0");
}

std::string Line(double x1, double y1, double x2, double y2, const std::string& style) {
    return "<line x1=\"" + Number(x1) + "\" y1=\"" + Number(y1) + "\" x2=\"" + Number(x2) +
           "\" y2=\"" + Number(y2) + "\" " + style + "/>\n";
}

std::string Text(double x, double y, const std::string& anchor, const std::string& text) {
    return "<text x=\"" + Number(x) + "\" y=\"" + Number(y) + "\" text-anchor=\"" + anchor + "\">" +
           text + "</text>\n";
}

std::string Grid() {
    std::string grid;
    const std::string style = "stroke=\"#DDDDDD\"";
    for (const int parts : {50, 100, 200, 500, 1000, 2000}) {
        grid += Line(X(parts), Bottom, X(parts), Y(0.1), style);
        grid += Text(X(parts), Bottom + 18, "middle", std::to_string(parts));
    }
    const std::string names[] = {"1 µs", "10 µs", "100 µs", "1 ms", "10 ms"};
    double seconds = LeastSeconds;
    for (const std::string& name : names) {
        grid += Line(Left, Y(seconds), Width - 20, Y(seconds), style);
        grid += Text(Left - 8, Y(seconds) + 4, "end", name);
        seconds *= 10;
    }
    return grid + Text(Width / 2, Height - 16, "middle", "parts") +
           Text(Left, 30, "start", "time of one placement");
}

/// The line through the first point that rises with `exponent`.
std::string Rise(const std::vector<CostPoint>& costs, double exponent, const std::string& style,
                 const std::string& name) {
    const CostPoint& first = costs.front();
    const CostPoint& last = costs.back();
    const double end =
        first.Seconds * std::pow(static_cast<double>(last.Parts) / first.Parts, exponent);
    return Line(X(first.Parts), Y(first.Seconds), X(last.Parts), Y(end), style) +
           Text(X(last.Parts) + 6, Y(end) + 4, "start", name);
}

} // namespace

std::string CostPlot(const std::vector<CostPoint>& costs, double exponent) {
    std::string svg = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + Number(Width) +
                      "\" height=\"" + Number(Height) +
                      "\" font-family=\"Arial, Liberation Sans, sans-serif\" font-size=\"13\">\n"
                      "<rect width=\"100%\" height=\"100%\" fill=\"#FFFFFF\"/>\n" +
                      Grid();
    svg += Rise(costs, 2, "stroke=\"#AAAAAA\" stroke-dasharray=\"5 4\"", "n²");
    svg += Rise(costs, exponent, "stroke=\"#008000\"", "n^" + Format(exponent, "0.00"));
    for (const CostPoint& cost : costs) {
        svg += "<circle cx=\"" + Number(X(cost.Parts)) + "\" cy=\"" + Number(Y(cost.Seconds)) +
               "\" r=\"4\" fill=\"#CC0000\"/>\n";
    }
    return svg + "</svg>\n";
}

} // namespace tarn
