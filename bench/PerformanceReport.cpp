// Measures the search beside the plain reference search of the tests, and the cost of a placement
// by the number of parts, and how soon an order's first comparison stands; writes
// docs/performance.md and its plot.

#include "base/Format.h"
#include "bench/CostPlot.h"
#include "bench/FirstComparison.h"
#include "bench/ReportPage.h"
#include "engine/PiecePlacer.h"
#include "engine/Search.h"
#include "engine/reference/JobOfPlain.h"
#include "engine/reference/RandomJobs.h"
#include "engine/reference/StoredJobs.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <iostream>
#include <limits>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

namespace tarn {

namespace {

constexpr std::uint32_t Seed = 20260;

/// Seconds that `action` takes: the least of several runs for a short one, of one for a long one.
template <typename Action>
double Seconds(Action&& action) {
    using Clock = std::chrono::steady_clock;
    constexpr double Enough = 0.5;
    double least = std::numeric_limits<double>::max();
    double total = 0;
    while (total < Enough) {
        const auto begin = Clock::now();
        action();
        const double seconds = std::chrono::duration<double>(Clock::now() - begin).count();
        least = std::min(least, seconds);
        total += seconds;
    }
    return least;
}

/// Fills as a down lay on a 12 ft roll leaves them, 2 to 12 feet long.
reference::PlainJob Fills(int count, int pieces) {
    reference::RandomSource random(Seed);
    std::vector<reference::Extent> extents;
    extents.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        extents.push_back({random.Whole(1, 143), random.Whole(24, 144)});
    }
    return reference::DownLayJob(144, pieces, extents);
}

std::string Milliseconds(double seconds) {
    return Format(seconds * 1000, "#,##0.00");
}

std::string RatioTable() {
    std::string table = "| fills | pieces per fill | plain, ms | tarn, ms | ratio |\n"
                        "|---:|---:|---:|---:|---:|\n";
    for (const int fills : {10, 30, 100, 270, 500}) {
        for (const int pieces : {1, 2, 5, 6}) {
            const reference::PlainJob plainJob = Fills(fills, pieces);
            const SearchJob job = reference::JobOfPlain(plainJob);
            SearchObserver nobody;
            Long length = 0;
            long plainLength = 0;
            const double own = Seconds([&] { length = Search(job, nobody).BestLength; });
            const double plain =
                Seconds([&] { plainLength = reference::RunPlainSearch(plainJob).bestLength; });
            if (length != plainLength) {
                throw std::runtime_error("the two searches disagree");
            }
            table += "| " + std::to_string(fills) + " | " + std::to_string(pieces) + " | " +
                     Milliseconds(plain) + " | " + Milliseconds(own) + " | " +
                     Format(plain / own, "0.0") + " |\n";
            std::cout << table.substr(table.rfind('\n', table.size() - 2) + 1) << std::flush;
        }
    }
    return table;
}

/// Seconds for one placement of `count` parts, 1 to 143 by 1 to 18 inches, largest first.
double PlacementSeconds(int count) {
    std::mt19937 random(Seed);
    std::vector<PieceSize> parts;
    parts.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        parts.push_back(
            {static_cast<Single>(1 + random() % 143), static_cast<Single>(1 + random() % 18)});
    }
    std::sort(parts.begin(), parts.end(), [](const PieceSize& a, const PieceSize& b) {
        return a.Width * a.Length > b.Width * b.Length;
    });
    PiecePlacer placer;
    return Seconds([&] { placer.PlaceAll(parts, 144, std::numeric_limits<Long>::max()); });
}

std::string CostTable(const std::vector<CostPoint>& costs) {
    std::string table =
        "| parts | one placement, µs | per part, µs | exponent from the line above |\n"
        "|---:|---:|---:|---:|\n";
    for (std::size_t i = 0; i < costs.size(); ++i) {
        const double parts = costs[i].Parts;
        std::string exponent;
        if (i > 0) {
            exponent = Format(std::log(costs[i].Seconds / costs[i - 1].Seconds) /
                                  std::log(parts / costs[i - 1].Parts),
                              "0.00");
        }
        table += "| " + std::to_string(costs[i].Parts) + " | " +
                 Format(costs[i].Seconds * 1e6, "#,##0.0") + " | " +
                 Format(costs[i].Seconds * 1e6 / parts, "0.00") + " | " + exponent + " |\n";
    }
    return table;
}

/// The exponent of the straight line through all points, by least squares on the logarithms.
double Exponent(const std::vector<CostPoint>& costs) {
    double x = 0;
    double y = 0;
    double xx = 0;
    double xy = 0;
    for (const CostPoint& cost : costs) {
        const double a = std::log(cost.Parts);
        const double b = std::log(cost.Seconds);
        x += a;
        y += b;
        xx += a * a;
        xy += a * b;
    }
    const auto n = static_cast<double>(costs.size());
    return (n * xy - x * y) / (n * xx - x * x);
}

void Report(const std::string& docs) {
    const std::string orders = FirstComparisonTable();
    const std::string ratios = RatioTable();
    std::vector<CostPoint> costs;
    for (const int parts : {50, 100, 200, 400, 800, 1600, 3000}) {
        costs.push_back({parts, PlacementSeconds(parts)});
    }
    const double exponent = Exponent(costs);
    WritePage(docs, "performance",
              {{"@ORDERS@\n", orders},
               {"@RATIOS@\n", ratios},
               {"@COSTS@\n", CostTable(costs)},
               {"@EXPONENT@", Format(exponent, "0.00")}});
    WriteFile(docs + "/images/placement-cost.svg", CostPlot(costs, exponent));
    std::cout << CostTable(costs) << "Exponent over all: " << Format(exponent, "0.00") << '\n';
}

} // namespace

} // namespace tarn

int main(int argc, char* argv[]) {
    try {
        if (argc != 2) {
            throw std::runtime_error("usage: tarn_performance_report DOCS-FOLDER");
        }
        tarn::Report(argv[1]);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "tarn_performance_report: " << error.what() << '\n';
        return 1;
    }
}
