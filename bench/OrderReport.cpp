// How far orders are above their bounds.
//
//   tarn_order_report [JOBS [SECONDS]]
//
// prints, for JOBS (200) random jobs of SECONDS (2) each, the average gap by the kind of pattern
// and the number of rooms.

#include "bench/OrderJobs.h"

#include <cstdlib>
#include <iomanip>
#include <iostream>
#include <map>
#include <random>
#include <string>

namespace {

using namespace tarn;

struct Kind {
    const char* Name;
    PatternChoice Pattern;
};
constexpr Kind Kinds[] = {{"none", {}},
                          {"18 x 24", {18, 24, false}},
                          {"18 x 24 half drop", {18, 24, true}},
                          {"0 x 25", {0, 25, false}},
                          {"9 x 36 half drop", {9, 36, true}}};

struct Gaps {
    int Rows = 0;
    int Least = 0;
    Double Percent = 0;

    void Add(const OrderFigures& figures) {
        ++Rows;
        Least += figures.LengthNeeded == figures.LeastLength ? 1 : 0;
        Percent += 100.0 * (figures.LengthNeeded - figures.LeastLength) / figures.LeastLength;
    }
};

void PrintGaps(const std::string& name, const Gaps& gaps) {
    std::cout << std::left << std::setw(40) << name << std::right << std::setw(6) << gaps.Rows
              << " rows  " << std::fixed << std::setprecision(2) << std::setw(6)
              << gaps.Percent / gaps.Rows << "%  least " << gaps.Least << std::endl;
}

void MeasureGaps(long jobs, Double seconds) {
    constexpr int Rooms[] = {3, 6, 12, 20, 30};
    std::map<std::string, Gaps> byKind;
    Gaps all;
    for (long job = 0; job < jobs; ++job) {
        std::mt19937 random(static_cast<unsigned>(1000 + job));
        const auto number = static_cast<std::size_t>(job);
        const int rooms = Rooms[number / std::size(Kinds) % std::size(Rooms)];
        const Kind& kind = Kinds[number % std::size(Kinds)];
        const Project project = RandomRooms(random, rooms);
        OrderRequest request = FourWidths();
        request.Pattern = kind.Pattern;
        request.TrimAlong = 3;
        request.TrimAcross = 1;
        request.MostParts = job % 3 == 0 ? 4 : 1;
        request.JoinRooms = job % 6 == 0;
        OrderLimits limits;
        limits.Seconds = seconds;
        OrderObserver nobody;
        const Order order = MakeOrder(project, 0, request, limits, nobody);
        for (const OrderCandidate& row : order.Candidates) {
            if (row.Figures) {
                std::string name = std::string(kind.Name) + ", " + std::to_string(rooms) + " rooms";
                byKind[name].Add(*row.Figures);
                byKind[std::string(kind.Name) + ", all"].Add(*row.Figures);
                byKind["parts " + std::to_string(request.MostParts)].Add(*row.Figures);
                byKind["roll " + std::to_string(row.RollWidth)].Add(*row.Figures);
                all.Add(*row.Figures);
            }
        }
    }
    for (const auto& [name, gaps] : byKind) {
        PrintGaps(name, gaps);
    }
    PrintGaps("all", all);
}

} // namespace

int main(int argc, char** argv) {
    constexpr int Decimal = 10;
    const long jobs = argc > 1 ? std::strtol(argv[1], nullptr, Decimal) : 200;
    const Double seconds = argc > 2 ? std::strtod(argv[2], nullptr) : 2;
    MeasureGaps(jobs, seconds);
    return 0;
}
