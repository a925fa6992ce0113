#include "engine/MultiEstimate.h"

#include <benchmark/benchmark.h>

#include <random>

namespace {

constexpr unsigned Seed = 20260;

/// Fills as a down lay on a 12 ft roll leaves them: 1 to 143 inches wide, 2 to 12 feet long, so
/// that 500 of them stay within the longest roll.
tarn::EngineArrays Fills(int count) {
    std::mt19937 random(Seed);
    tarn::EngineArrays engine;
    engine.RollWidth = 144;
    engine.FillFlag = 1;
    for (tarn::Integer i = 0; i < count; ++i) {
        engine.PCX2[i] = static_cast<tarn::Single>(100 * (1 + random() % 143));
        engine.PCY2[i] = static_cast<tarn::Single>(100 * (24 + random() % 121));
        engine.OrgPC[i] = i;
        engine.PCDivide[i] = 1;
    }
    engine.PieceCount = static_cast<tarn::Integer>(count);
    engine.OrgCount = engine.PieceCount;
    return engine;
}

/// The whole search; arguments: fills, pieces per fill.
void WholeSearch(benchmark::State& bench) {
    tarn::SharedState state;
    state.EstOption = static_cast<tarn::Integer>(bench.range(1) - 1);
    const tarn::EngineArrays fills = Fills(static_cast<int>(bench.range(0)));
    tarn::EngineArrays engine;
    tarn::SearchObserver nobody;
    for ([[maybe_unused]] const auto _ : bench) {
        bench.PauseTiming();
        engine = fills;
        bench.ResumeTiming();
        tarn::MultiEstimate(state, engine, nobody);
    }
    bench.counters["parts"] = engine.PieceCount;
    bench.counters["inches"] = static_cast<double>(engine.BestLen);
}

} // namespace

BENCHMARK(WholeSearch)
    ->ArgNames({"fills", "pieces"})
    ->ArgsProduct({{10, 30, 100, 270, 500}, {1, 2, 3, 4, 5, 6}})
    ->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
