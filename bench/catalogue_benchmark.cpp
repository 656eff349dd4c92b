// Converting a value through the catalogue (lookup + virtual call) against the
// bare multiplication it reduces to.
#include <benchmark/benchmark.h>

#include "KxCoreUnits/UnitsConfig.h"

namespace units = kxnorth::platform::core::units;

static void BM_Multiply_Reference(benchmark::State& state) {
    double value = 12.5, factor = 0.3048;
    for (auto _ : state) {
        benchmark::DoNotOptimize(value);
        benchmark::DoNotOptimize(value * factor);
    }
}
BENCHMARK(BM_Multiply_Reference);

static void BM_FindConverterAndConvert(benchmark::State& state) {
    units::UnitsConfig const* config = units::UnitsConfig::GetInstance();
    double value = 12.5;
    for (auto _ : state) {
        benchmark::DoNotOptimize(value);
        units::UnitConverter const* c = config->FindConverter(0x2017);  // foot
        double base = 0;
        c->ConvertToBase(&base, c->GetDimTag(), value);
        benchmark::DoNotOptimize(base);
    }
}
BENCHMARK(BM_FindConverterAndConvert);

BENCHMARK_MAIN();
