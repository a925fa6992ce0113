#include "bench/FirstComparison.h"

#include "base/Format.h"
#include "bench/OrderJobs.h"

#include <chrono>
#include <iostream>
#include <sys/resource.h>

namespace tarn {

namespace {

using Clock = std::chrono::steady_clock;

/// Notes when the first complete comparison was there, and stops a little later.
class FirstTable : public OrderObserver {
  public:
    bool Progress(const Order& soFar, bool /*changed*/) override {
        bool all = true;
        for (const OrderCandidate& row : soFar.Candidates) {
            all = all && (row.Figures || !row.Refused.IsEmpty());
        }
        if (all) {
            Seconds = std::chrono::duration<Double>(Clock::now() - begin_).count();
        }
        return !all;
    }

    Double Seconds = 0;

  private:
    Clock::time_point begin_ = Clock::now();
};

double SecondsToFirstTable(int rooms, const PatternChoice& pattern) {
    std::mt19937 random(static_cast<unsigned>(rooms));
    const Project project = RandomRooms(random, rooms);
    OrderRequest request = FourWidths();
    request.Pattern = pattern;
    request.MostParts = 4;
    OrderLimits limits;
    limits.Seconds = 60;
    FirstTable first;
    MakeOrder(project, 0, request, limits, first);
    return first.Seconds;
}

long MegabytesSoFar() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss / 1024;
}

} // namespace

std::string FirstComparisonTable() {
    std::string table =
        "| rooms | without a pattern, s | 18 x 24 half drop, s | most memory, MB |\n"
        "|---:|---:|---:|---:|\n";
    for (const int rooms : {10, 30, 100, 270, 500}) {
        const double plain = SecondsToFirstTable(rooms, {});
        const double patterned = SecondsToFirstTable(rooms, {18, 24, true});
        const std::string line = "| " + std::to_string(rooms) + " | " + Format(plain, "0.000") +
                                 " | " + Format(patterned, "0.000") + " | " +
                                 std::to_string(MegabytesSoFar()) + " |\n";
        std::cout << line << std::flush;
        table += line;
    }
    return table;
}

} // namespace tarn
