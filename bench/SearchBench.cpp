#include "engine/Search.h"

#include <benchmark/benchmark.h>

#include <random>

namespace {

constexpr unsigned Seed = 20260;

/// Fills as a down lay on a 12 ft roll leaves them: 1 to 143 inches wide, 2 to 12 feet long, so
/// that 500 of them stay within the longest roll.
tarn::SearchJob Fills(int count, int pieces) {
    std::mt19937 random(Seed);
    tarn::SearchJob job;
    job.RollWidth = 144;
    job.MostParts = static_cast<tarn::Integer>(pieces);
    job.MinCut = 300;
    for (int i = 0; i < count; ++i) {
        tarn::Piece piece;
        piece.X2 = static_cast<tarn::Single>(100 * (1 + random() % 143));
        piece.Y2 = static_cast<tarn::Single>(100 * (24 + random() % 121));
        piece.Number = static_cast<tarn::Integer>(i);
        job.Pieces.push_back(piece);
    }
    return job;
}

/// The whole search; arguments: fills, pieces per fill.
void WholeSearch(benchmark::State& bench) {
    const tarn::SearchJob job =
        Fills(static_cast<int>(bench.range(0)), static_cast<int>(bench.range(1)));
    tarn::SearchObserver nobody;
    tarn::SearchResult result;
    for ([[maybe_unused]] const auto _ : bench) {
        result = tarn::Search(job, nobody);
    }
    bench.counters["parts"] = static_cast<double>(result.Layout.size());
    bench.counters["inches"] = static_cast<double>(result.BestLength);
}

} // namespace

BENCHMARK(WholeSearch)
    ->ArgNames({"fills", "pieces"})
    ->ArgsProduct({{10, 30, 100, 270, 500}, {1, 2, 3, 4, 5, 6}})
    ->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
