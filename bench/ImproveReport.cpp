// Measures the improving search on public strip-packing sets and on random flooring jobs; writes
// docs/improve.md and its plot.

#include "base/Format.h"
#include "bench/ImproveMeasure.h"
#include "bench/ImprovePlot.h"
#include "bench/ReportPage.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <map>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace tarn {

namespace {

constexpr double Seconds = 1;
constexpr std::uint64_t Seeds = 3;

std::string Percent(double value) {
    return Format(value, "0.00") + "%";
}

/// A mean over jobs for each seed: what the seeds make of it is the noise.
class SeedMeans {
  public:
    void Add(std::uint64_t seed, double value) {
        sums_[seed].first += value;
        ++sums_[seed].second;
    }
    int Count() const {
        int count = 0;
        for (const auto& [seed, sum] : sums_) {
            count += sum.second;
        }
        return count;
    }
    /// "0.45% (0.43 to 0.47)": the mean, and the least and the largest of the seeds'.
    std::string Text() const {
        double sum = 0;
        double least = HUGE_VAL;
        double most = 0;
        for (const auto& [seed, own] : sums_) {
            const double mean = own.first / own.second;
            sum += own.first;
            least = std::min(least, mean);
            most = std::max(most, mean);
        }
        return Count() == 0 ? ""
                            : Percent(sum / Count()) + " (" + Format(least, "0.00") + " to " +
                                  Format(most, "0.00") + ")";
    }

  private:
    std::map<std::uint64_t, std::pair<double, int>> sums_;
};

/// The gaps to the optimum of some runs, and in how many of them it was found.
struct PackingGap {
    SeedMeans Gap;
    int Optimal = 0;

    void Add(const PackingInstance& instance, std::uint64_t seed, Long best) {
        Gap.Add(seed, 100.0 * (best - instance.Best) / instance.Best);
        Optimal += best == instance.Best ? 1 : 0;
    }
    std::string Cells() const { return Gap.Text() + " | " + std::to_string(Optimal) + " |"; }
};

using PackingGaps = std::map<std::string, PackingGap>;

/// Run every instance with every seed, and add what comes of it to the gap of its group.
template <typename GroupOf>
PackingGaps MeasurePacking(const std::vector<PackingInstance>& instances, double seconds,
                           GroupOf groupOf) {
    PackingGaps gaps;
    for (const PackingInstance& instance : instances) {
        for (std::uint64_t seed = 1; seed <= Seeds; ++seed) {
            const Long best = BestAfter(instance, seconds, seed);
            for (const std::string& group : groupOf(instance)) {
                gaps[group].Add(instance, seed, best);
            }
            std::cout << instance.Set << ' ' << instance.Name << " seed " << seed << ", "
                      << Format(seconds, "0") << " s: " << best << " of " << instance.Best
                      << std::endl;
        }
    }
    return gaps;
}

/// The number of pieces of the instances of a set that has some of each; they differ by one at
/// most.
std::string PiecesOf(const PackingInstance& instance) {
    const std::string number = std::to_string(instance.Job.Fills.size());
    return std::string(3 - std::min<std::size_t>(3, number.size()), ' ') + number;
}

constexpr const char* SetBySize = "NT";

struct PackingTables {
    std::string Sets;
    std::string Sizes;
};

PackingTables MeasureSets(const std::vector<PackingInstance>& instances, double moreSeconds) {
    const PackingGaps gaps =
        MeasurePacking(instances, Seconds, [](const PackingInstance& instance) {
            std::vector<std::string> groups{instance.Set};
            if (instance.Set == SetBySize) {
                groups.push_back(PiecesOf(instance));
            }
            return groups;
        });
    std::vector<PackingInstance> more;
    std::copy_if(instances.begin(), instances.end(), std::back_inserter(more),
                 [](const PackingInstance& instance) { return instance.Set != SetBySize; });
    PackingGaps later;
    if (moreSeconds > Seconds) {
        later = MeasurePacking(more, moreSeconds, [](const PackingInstance& instance) {
            return std::vector<std::string>{instance.Set};
        });
    }
    PackingTables tables;
    tables.Sets = "| set | runs | gap after " + Format(Seconds, "0") + " s | optimal | gap after " +
                  Format(moreSeconds, "0") + " s | optimal |\n|---|---:|---:|---:|---:|---:|\n";
    tables.Sizes = "| pieces | runs | gap after " + Format(Seconds, "0") +
                   " s | optimal |\n|---:|---:|---:|---:|\n";
    for (const auto& [group, gap] : gaps) {
        const bool isSize = group.front() == ' ' || std::isdigit(group.front()) != 0;
        std::string& table = isSize ? tables.Sizes : tables.Sets;
        table += "| " + group + " | " + std::to_string(gap.Gap.Count()) + " | " + gap.Cells();
        if (!isSize) {
            table += later.count(group) > 0 ? " " + later.at(group).Cells() : " | |";
        }
        table += "\n";
    }
    return tables;
}

/// A range of rooms, and how many jobs are drawn from it.
struct RoomGroup {
    int Least;
    int Most;
    int Jobs;
};
constexpr RoomGroup Groups[] = {{5, 5, 40}, {6, 12, 92}, {13, 30, 40}, {31, 60, 28}};

/// A job's result with one of the seeds.
struct FlooringRun {
    std::uint64_t Seed = 0;
    const RoomGroup* Rooms = nullptr;
    FlooringResult Result;
};

std::vector<FlooringRun> MeasureJobs() {
    std::vector<FlooringRun> runs;
    for (const RoomGroup& group : Groups) {
        for (int i = 0; i < group.Jobs; ++i) {
            // 5 has no divisor in common with the spreads, so all numbers of rooms take turns.
            const int rooms = group.Least + i * 5 % (group.Most - group.Least + 1);
            const FlooringJob job =
                RandomFlooringJob(rooms, static_cast<std::uint32_t>(1000 * group.Least) +
                                             static_cast<std::uint32_t>(i));
            for (std::uint64_t seed = 1; seed <= Seeds; ++seed) {
                runs.push_back({seed, &group, MeasureFlooring(job, Seconds, seed)});
                const FlooringResult& result = runs.back().Result;
                std::cout << rooms << " rooms, job " << i << " seed " << seed << ": "
                          << result.Fills << " fills, " << result.MaxPieces
                          << " pieces: " << Format(result.Improved, "0.00") << ", bound "
                          << Format(result.Bound, "0.00") << std::endl;
            }
        }
    }
    return runs;
}

/// Over runs: jobs times seeds.
struct FlooringSums {
    SeedMeans Searched;
    SeedMeans Improved;
    SeedMeans Least; ///< 100 where the least possible was reached
    int Below = 0;
    int Before = 0;
    int After = 0;

    void Add(const FlooringRun& run) {
        const FlooringResult& result = run.Result;
        Below += result.StartBelowRules ? 1 : 0;
        Before += result.PiecesBefore;
        After += result.Pieces;
        if (result.Counts()) {
            Searched.Add(run.Seed, 100 * (result.Searched / result.Bound - 1));
            Improved.Add(run.Seed, 100 * (result.Improved / result.Bound - 1));
            Least.Add(run.Seed, result.IsLeast() ? 100 : 0);
        }
    }
};

std::string FlooringTable(
    const std::vector<FlooringRun>& runs, const std::string& head,
    const std::vector<std::pair<std::string, std::function<bool(const FlooringRun&)>>>& rows) {
    std::string table = "| " + head +
                        " | runs | search, over the bound | improved, over the bound | least "
                        "possible reached | below the rules | parts, search | parts, improved |\n"
                        "|---:|---:|---:|---:|---:|---:|---:|---:|\n";
    for (const auto& [name, isIn] : rows) {
        FlooringSums sums;
        for (const FlooringRun& run : runs) {
            if (isIn(run)) {
                sums.Add(run);
            }
        }
        table += "| " + name + " | " + std::to_string(sums.Improved.Count()) + " | " +
                 sums.Searched.Text() + " | " + sums.Improved.Text() + " | " + sums.Least.Text() +
                 " | " + std::to_string(sums.Below) + " | " + std::to_string(sums.Before) + " | " +
                 std::to_string(sums.After) + " |\n";
    }
    return table;
}

std::string ByRooms(const std::vector<FlooringRun>& runs) {
    std::vector<std::pair<std::string, std::function<bool(const FlooringRun&)>>> rows;
    for (const RoomGroup& group : Groups) {
        std::string name = std::to_string(group.Least);
        if (group.Most > group.Least) {
            name += " to " + std::to_string(group.Most);
        }
        rows.emplace_back(name, [&group](const FlooringRun& run) { return run.Rooms == &group; });
    }
    rows.emplace_back("all", [](const FlooringRun&) { return true; });
    return FlooringTable(runs, "rooms", rows);
}

std::string ByFills(const std::vector<FlooringRun>& runs) {
    const auto between = [](std::size_t least, std::size_t most) {
        return [least, most](const FlooringRun& run) {
            return run.Result.Fills >= least && run.Result.Fills <= most;
        };
    };
    constexpr std::size_t Few = 15;
    constexpr std::size_t Some = 30;
    return FlooringTable(
        runs, "fills",
        {{"up to 15", between(1, Few)},
         {"16 to 30", between(Few + 1, Some)},
         {"more", between(Some + 1, 1000)},
         {"none divided", [](const FlooringRun& run) { return run.Result.MaxPieces == 1; }}});
}

std::vector<FlooringResult> ResultsOf(const std::vector<FlooringRun>& runs) {
    std::vector<FlooringResult> results;
    results.reserve(runs.size());
    for (const FlooringRun& run : runs) {
        results.push_back(run.Result);
    }
    return results;
}

void Report(const std::string& docs, const char* packingFolder, double moreSeconds) {
    const std::vector<FlooringRun> runs = MeasureJobs();
    const std::string rooms = ByRooms(runs);
    const std::string fills = ByFills(runs);
    std::cout << rooms << fills;
    if (packingFolder == nullptr) {
        std::cout << "TARN_STRIP_PACKING names no folder with the strip-packing sets: they are not "
                     "measured, and "
                  << docs << "/improve.md stays as it is.\n";
        return;
    }
    const PackingTables packing = MeasureSets(ReadPackingInstances(packingFolder), moreSeconds);
    std::cout << packing.Sets << packing.Sizes;
    WritePage(docs, "improve",
              {{"@PACKING@\n", packing.Sets},
               {"@SIZES@\n", packing.Sizes},
               {"@ROOMS@\n", rooms},
               {"@FILLS@\n", fills}});
    WriteFile(docs + "/images/improve.svg", ImprovePlot(ResultsOf(runs)));
}

} // namespace

} // namespace tarn

int main(int argc, char* argv[]) {
    try {
        if (argc < 2 || argc > 4) {
            throw std::runtime_error("usage: tarn_improve_report DOCS-FOLDER "
                                     "[STRIP-PACKING-FOLDER [MORE-SECONDS]]");
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
