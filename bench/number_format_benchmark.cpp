// Number text against the floor of what any formatter must do: std::to_chars of the
// same value plus hand-written digit grouping.
#include <benchmark/benchmark.h>

#include "KxUnitsNumberFormat.h"
#include "ratio_main.h"
#include "reference.h"

namespace units = kxnorth::platform::core::units;

namespace {

double const kValues[] = {1234567.891, -0.5, 42.0, 98765.4321, 3.14159, -1250000.25, 0.001, 7.5};
constexpr int kValueCount = sizeof(kValues) / sizeof(kValues[0]);

void BM_Reference_ToCharsGrouped(benchmark::State& state) {
    wchar_t out[64];
    int i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(kxbench::ToCharsGrouped(kValues[i++ % kValueCount], out));
        benchmark::ClobberMemory();
    }
}
BENCHMARK(BM_Reference_ToCharsGrouped);

void BM_FormatNumber_Number2(benchmark::State& state) {
    units::NumberSettings const settings;  // "Number", precision 2, groups of 3
    wchar_t out[64];
    int i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(units::FormatNumber(settings, kValues[i++ % kValueCount], out, 64, 0));
        benchmark::ClobberMemory();
    }
}
BENCHMARK(BM_FormatNumber_Number2);

void BM_FormatNumber_Fraction(benchmark::State& state) {
    units::NumberSettings settings;
    settings.format = units::eNFFraction;
    settings.precision = 4;
    wchar_t out[64];
    int i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(units::FormatNumber(settings, kValues[i++ % kValueCount], out, 64, 0));
        benchmark::ClobberMemory();
    }
}
BENCHMARK(BM_FormatNumber_Fraction);

}  // namespace

int main(int argc, char** argv) {
    return kxbench::RunWithRatios(argc, argv,
                                  {{"BM_FormatNumber_Number2", "BM_Reference_ToCharsGrouped", 2.5},
                                   {"BM_FormatNumber_Fraction", "BM_FormatNumber_Number2", 1.5}});
}
