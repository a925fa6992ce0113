#pragma once

#include "bench/ImproveMeasure.h"

#include <string>
#include <vector>

namespace tarn {

/// A plot of the average length over the bound by the most pieces per fill, of the search alone and
/// improved, as an SVG document.
std::string ImprovePlot(const std::vector<FlooringResult>& results);

/// The average length over the bound of those jobs, percent: of the search alone and improved.
struct AverageGaps {
    double Searched = 0;
    double Improved = 0;
    std::size_t Jobs = 0;
};
AverageGaps GapsOf(const std::vector<FlooringResult>& results);

} // namespace tarn
