#pragma once

#include <string>
#include <vector>

namespace tarn {

/// What one placement of so many parts costs.
struct CostPoint {
    int Parts;
    double Seconds;
};

/// A plot of the points on logarithmic axes as an SVG document, beside lines that rise with the
/// given exponent and with the square.
std::string CostPlot(const std::vector<CostPoint>& costs, double exponent);

} // namespace tarn
