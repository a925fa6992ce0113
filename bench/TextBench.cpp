#include "base/Format.h"
#include "base/Numbers.h"

#include <benchmark/benchmark.h>

#include <string>

namespace {

void ReadNumber(benchmark::State& bench, const std::string& text) {
    for ([[maybe_unused]] const auto _ : bench) {
        benchmark::DoNotOptimize(tarn::Val(text));
    }
}

void FormatNumber(benchmark::State& bench, double value) {
    for ([[maybe_unused]] const auto _ : bench) {
        benchmark::DoNotOptimize(tarn::Format(value, "#,##0.00"));
    }
}

} // namespace

BENCHMARK_CAPTURE(ReadNumber, Whole, "12");
BENCHMARK_CAPTURE(ReadNumber, Decimal, " 12.625 ft");
BENCHMARK_CAPTURE(ReadNumber, Exponent, "-1.25E+03");
BENCHMARK_CAPTURE(FormatNumber, Small, 12.505);
BENCHMARK_CAPTURE(FormatNumber, Grouped, 1234567.125);

BENCHMARK_MAIN();
