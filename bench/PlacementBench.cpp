#include "engine/PieceOrder.h"
#include "engine/PiecePlacer.h"

#include <benchmark/benchmark.h>

#include <limits>
#include <random>
#include <vector>

namespace {

constexpr unsigned Seed = 20261;

/// `count` parts of 1 to 143 by 1 to 18 inches, so that 3000 of them stay within the longest roll,
/// in the order of their areas.
std::vector<tarn::PieceSize> Parts(int count) {
    std::mt19937 random(Seed);
    std::vector<tarn::PieceSize> sizes;
    for (int i = 0; i < count; ++i) {
        const auto width = static_cast<tarn::Single>(1 + random() % 143);
        sizes.push_back({width, static_cast<tarn::Single>(1 + random() % 18)});
    }
    tarn::PieceOrder order;
    std::vector<tarn::PieceSize> ordered;
    for (const std::size_t i : order.LargestFirst(sizes, 1)) {
        ordered.push_back(sizes[i]);
    }
    return ordered;
}

/// One placement of all parts.
void PlaceAll(benchmark::State& bench) {
    const std::vector<tarn::PieceSize> sizes = Parts(static_cast<int>(bench.range(0)));
    tarn::PiecePlacer placer;
    for ([[maybe_unused]] const auto _ : bench) {
        benchmark::DoNotOptimize(
            placer.PlaceAll(sizes, 144, std::numeric_limits<tarn::Long>::max()));
    }
    bench.SetComplexityN(bench.range(0));
}

} // namespace

BENCHMARK(PlaceAll)
    ->ArgName("parts")
    ->Arg(50)
    ->Arg(100)
    ->Arg(200)
    ->Arg(400)
    ->Arg(800)
    ->Arg(1600)
    ->Arg(3000)
    ->Unit(benchmark::kMicrosecond)
    ->Complexity();

BENCHMARK_MAIN();
