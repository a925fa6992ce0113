// Measures the improving search on public strip-packing sets and on random flooring jobs; writes
// docs/improve.md and its plot.

#include "base/Format.h"
#include "bench/ImproveMeasure.h"
#include "bench/ImprovePlot.h"
#include "bench/ReportPage.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <map>
#include <mutex>
#include <stdexcept>
#include <string>
#include <vector>

namespace tarn {

namespace {

constexpr double FlooringSeconds = 2;
constexpr std::uint64_t Seeds = 3;

std::string Percent(double value) {
    return Format(value, "0.00") + "%";
}

/// The gaps to the optimum of a set's runs, and in how many of them the optimum was found, after
/// each of the times.
struct PackingGap {
    std::vector<double> Sum;
    std::vector<int> Optimal;
    int Runs = 0;
};

/// The gaps by set over several runs on every instance, one with each seed.
std::map<std::string, PackingGap> MeasurePacking(const std::vector<PackingInstance>& instances,
                                                 const std::vector<double>& seconds) {
    std::map<std::string, PackingGap> gaps;
    std::mutex taking;
    ForEach(instances.size() * Seeds, [&](std::size_t i) {
        const PackingInstance& instance = instances[i / Seeds];
        const std::vector<Long> best = BestAfter(instance, seconds, i % Seeds + 1);
        const std::lock_guard<std::mutex> lock(taking);
        PackingGap& gap = gaps[instance.Set];
        gap.Sum.resize(seconds.size());
        gap.Optimal.resize(seconds.size());
        ++gap.Runs;
        std::cout << instance.Name << " seed " << i % Seeds + 1 << ':';
        for (std::size_t k = 0; k < seconds.size(); ++k) {
            gap.Sum[k] += 100.0 * (best[k] - instance.Best) / instance.Best;
            gap.Optimal[k] += best[k] == instance.Best ? 1 : 0;
            std::cout << ' ' << best[k];
        }
        std::cout << " of " << instance.Best << std::endl;
    });
    return gaps;
}

std::string PackingTable(const std::map<std::string, PackingGap>& gaps,
                         const std::vector<double>& seconds) {
    std::string table = "| set | runs |";
    std::string rule = "|---|---:|";
    for (const double time : seconds) {
        table += " gap after " + Format(time, "0") + " s | optimal |";
        rule += "---:|---:|";
    }
    table += "\n" + rule + "\n";
    for (const auto& [set, gap] : gaps) {
        table += "| " + set + " | " + std::to_string(gap.Runs) + " |";
        for (std::size_t k = 0; k < seconds.size(); ++k) {
            table += " " + Percent(gap.Sum[k] / gap.Runs) + " | " + std::to_string(gap.Optimal[k]) +
                     " |";
        }
        table += "\n";
    }
    return table;
}

/// A range of rooms, and how many jobs are drawn from it.
struct RoomGroup {
    int Least;
    int Most;
    int Jobs;
};
constexpr RoomGroup Groups[] = {{5, 5, 18}, {6, 12, 42}, {13, 30, 18}, {31, 60, 12}};

std::vector<FlooringResult> MeasureGroup(const RoomGroup& group) {
    std::vector<FlooringResult> results(static_cast<std::size_t>(group.Jobs));
    ForEach(results.size(), [&](std::size_t i) {
        const int spread = group.Most - group.Least + 1;
        // 5 has no divisor in common with the spreads, so all numbers of rooms take turns.
        const int rooms = group.Least + static_cast<int>(i) * 5 % spread;
        const auto number =
            static_cast<std::uint32_t>(1000 * group.Least) + static_cast<std::uint32_t>(i);
        results[i] = MeasureFlooring(RandomFlooringJob(rooms, number), FlooringSeconds);
    });
    return results;
}

double MedianShorter(const std::vector<FlooringResult>& results) {
    std::vector<double> shorter;
    for (const FlooringResult& result : results) {
        if (result.Searched > 0) {
            shorter.push_back(100 * (1 - result.Improved / result.Searched));
        }
    }
    std::sort(shorter.begin(), shorter.end());
    return shorter.empty() ? 0 : shorter[shorter.size() / 2];
}

std::string FlooringTable(std::vector<FlooringResult>& all) {
    std::string table =
        "| rooms | jobs | search, over the bound | improved, over the bound | least possible "
        "reached | below the rules | median job shorter by | parts, search | parts, improved |\n"
        "|---:|---:|---:|---:|---:|---:|---:|---:|---:|\n";
    for (const RoomGroup& group : Groups) {
        const std::vector<FlooringResult> results = MeasureGroup(group);
        const AverageGaps gaps = GapsOf(results);
        int least = 0;
        int below = 0;
        int before = 0;
        int after = 0;
        for (const FlooringResult& result : results) {
            const bool isLeast = result.Bound > 0 && result.Improved - result.Bound < 0.005;
            least += isLeast && !result.StartBelowRules ? 1 : 0;
            below += result.StartBelowRules ? 1 : 0;
            before += result.PiecesBefore;
            after += result.Pieces;
        }
        const std::string rooms = std::to_string(group.Least);
        table += "| " +
                 (group.Least == group.Most ? rooms : rooms + " to " + std::to_string(group.Most)) +
                 " | " + std::to_string(gaps.Jobs) + " | " + Percent(gaps.Searched) + " | " +
                 Percent(gaps.Improved) + " | " + std::to_string(least) + " | " +
                 std::to_string(below) + " | " + Percent(MedianShorter(results)) + " | " +
                 std::to_string(before) + " | " + std::to_string(after) + " |\n";
        all.insert(all.end(), results.begin(), results.end());
        std::cout << table.substr(table.rfind('\n', table.size() - 2) + 1) << std::flush;
    }
    return table;
}

void Report(const std::string& docs, const char* packingFolder, double mostSeconds) {
    std::vector<FlooringResult> all;
    const std::string flooring = FlooringTable(all);
    if (packingFolder == nullptr) {
        std::cout << "TARN_STRIP_PACKING names no folder with the strip-packing sets: they are not "
                     "measured, and "
                  << docs << "/improve.md stays as it is.\n";
        return;
    }
    std::vector<double> seconds{1};
    if (mostSeconds > seconds.front()) {
        seconds.push_back(mostSeconds);
    }
    const std::string packing =
        PackingTable(MeasurePacking(ReadPackingInstances(packingFolder), seconds), seconds);
    std::cout << packing;
    WritePage(docs, "improve", {{"@PACKING@\n", packing}, {"@FLOORING@\n", flooring}});
    WriteFile(docs + "/images/improve.svg", ImprovePlot(all));
}

} // namespace

} // namespace tarn

int main(int argc, char* argv[]) {
    try {
        if (argc < 2 || argc > 4) {
            throw std::runtime_error("usage: tarn_improve_report DOCS-FOLDER "
                                     "[STRIP-PACKING-FOLDER [MOST-SECONDS]]");
        }
        constexpr double UsualSeconds = 10;
        tarn::Report(argv[1], argc > 2 ? argv[2] : std::getenv("TARN_STRIP_PACKING"),
                     argc > 3 ? std::stod(argv[3]) : UsualSeconds);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "tarn_improve_report: " << error.what() << '\n';
        return 1;
    }
}
