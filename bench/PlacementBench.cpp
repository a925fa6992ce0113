#include "engine/Pieces.h"
#include "engine/Placement.h"
#include "engine/RollLayout.h"

#include <benchmark/benchmark.h>

#include <limits>
#include <random>

namespace {

constexpr unsigned Seed = 20261;

/// `count` parts of 1 to 143 by 1 to 18 inches, so that 3000 of them stay within the longest roll.
tarn::EngineArrays Parts(int count) {
    std::mt19937 random(Seed);
    tarn::EngineArrays engine;
    engine.RollWidth = 144;
    engine.FillFlag = 1;
    for (tarn::Integer i = 0; i < count; ++i) {
        engine.PCX2[i] = static_cast<tarn::Single>(100 * (1 + random() % 143));
        engine.PCY2[i] = static_cast<tarn::Single>(100 * (1 + random() % 18));
        engine.OrgPC[i] = i;
    }
    engine.PieceCount = static_cast<tarn::Integer>(count);
    engine.CutCount = engine.PieceCount;
    return engine;
}

/// One placement of all parts.
void PlaceAll(benchmark::State& bench) {
    tarn::EngineArrays engine = Parts(static_cast<int>(bench.range(0)));
    tarn::ReorderPiece(engine, 1, 0.01);
    std::vector<tarn::PieceSize> sizes;
    for (tarn::Integer i = 0; i < engine.PieceCount; ++i) {
        sizes.push_back({engine.PieceWid[i], engine.PieceLen[i]});
    }
    tarn::RollLayout layout;
    for ([[maybe_unused]] const auto _ : bench) {
        benchmark::DoNotOptimize(
            layout.PlaceAll(sizes, engine.RollWidth, std::numeric_limits<tarn::Long>::max()));
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
