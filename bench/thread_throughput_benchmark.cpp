// Throughput of Format and Parse with one and with two threads, each thread owning a
// formatter of its own. Nothing is shared on the hot path but read-only tables, so
// two threads on two cores should do close to twice the work of one; the main prints
// the ratio of the medians (target: at least 1.8). On a machine whose cores are busy
// with other work the wall-clock ratio says little, so it also prints the CPU time
// one item costs with two threads against one: shared state written on the hot path
// (a lock, a counter, a cache line bouncing between cores) would raise it well
// above 1.
#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include "KxCoreUnitsUI/UnitsFormatter.h"
#include "KxCoreUnitsUI/UnitsManager.h"

namespace units = kxnorth::platform::core::units;

namespace {

constexpr int kMeter = 0x2001, kInch = 0x2016, kDegree = 0x8002;

double const kValues[] = {1234.567, 0.25, 42.0, 98765.4321, 3.14159, 17.5, 0.001, 7.5};
constexpr int kValueCount = sizeof(kValues) / sizeof(kValues[0]);

// One item: three values formatted in three styles, each read back, and one typed
// text parsed, so that format and parse weigh about as in an editing session.
void BM_FormatAndParse(benchmark::State& state) {
    units::UnitsFormatter const formatter(state.thread_index() % 2 == 0 ? L"en-US" : L"de-DE");
    wchar_t text[64];
    int i = 0;
    for (auto _ : state) {
        double const v = kValues[i++ % kValueCount];
        double value = 0;
        formatter.Format(v, kMeter, text, 64, 0x202001, nullptr);
        benchmark::DoNotOptimize(formatter.Parse(text, value, kMeter));
        formatter.Format(v, kInch, text, 64, 0x702016, nullptr);
        benchmark::DoNotOptimize(formatter.Parse(text, value, kInch));
        formatter.Format(v * 0.01, kDegree, text, 64, 0x408002, nullptr);
        benchmark::DoNotOptimize(formatter.Parse(text, value, kDegree));
        benchmark::DoNotOptimize(formatter.Parse(L"5'-6 1/2\"", value, kInch));
        benchmark::DoNotOptimize(value);
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_FormatAndParse)->Threads(1)->Threads(2)->UseRealTime();

// The reference: arithmetic that shares nothing at all. Its 2/1 ratio is what the
// machine gives two threads of one process at that moment (2.0 on two idle cores).
void BM_Reference_Arithmetic(benchmark::State& state) {
    double x = state.thread_index();
    for (auto _ : state) {
        for (int k = 0; k < 200; ++k) x = x * 0.999999 + 1e-9 * k;
        benchmark::DoNotOptimize(x);
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_Reference_Arithmetic)->Threads(1)->Threads(2)->UseRealTime();

class ThroughputReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(std::vector<Run> const& runs) override {
        for (Run const& run : runs) {
            if (run.aggregate_name != "median") continue;
            auto const rate = run.counters.find("items_per_second");
            bool const ours = run.run_name.function_name == "BM_FormatAndParse";
            if (rate != run.counters.end()) (ours ? itemsPerSecond : referencePerSecond)[run.threads] = rate->second.value;
            if (ours) cpuPerItem[run.threads] = run.GetAdjustedCPUTime();
        }
        ConsoleReporter::ReportRuns(runs);
    }
    std::map<int, double> itemsPerSecond;  // by thread count
    std::map<int, double> cpuPerItem;      // by thread count, all threads' CPU time
    std::map<int, double> referencePerSecond;
};

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    units::UnitsManager::Initialize();
    units::UnitsManager::GetInstance();
    std::vector<char*> args(argv, argv + argc);
    std::string repetitions = "--benchmark_repetitions=9";
    std::string aggregates = "--benchmark_report_aggregates_only=true";
    std::string interleave = "--benchmark_enable_random_interleaving=true";
    args.push_back(repetitions.data());
    args.push_back(aggregates.data());
    args.push_back(interleave.data());
    int n = static_cast<int>(args.size());
    benchmark::Initialize(&n, args.data());
    ThroughputReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    auto const one = reporter.itemsPerSecond.find(1), two = reporter.itemsPerSecond.find(2);
    if (one != reporter.itemsPerSecond.end() && two != reporter.itemsPerSecond.end() && one->second > 0) {
        std::printf("\nthroughput 2 threads / 1 thread: %.2f (target at least 1.8 on two idle cores)\n",
                    two->second / one->second);
    }
    auto const refOne = reporter.referencePerSecond.find(1), refTwo = reporter.referencePerSecond.find(2);
    if (refOne != reporter.referencePerSecond.end() && refTwo != reporter.referencePerSecond.end() &&
        refOne->second > 0) {
        std::printf("reference (shares nothing) 2 threads / 1 thread: %.2f (what the machine allows now)\n",
                    refTwo->second / refOne->second);
    }
    auto const cpuOne = reporter.cpuPerItem.find(1), cpuTwo = reporter.cpuPerItem.find(2);
    if (cpuOne != reporter.cpuPerItem.end() && cpuTwo != reporter.cpuPerItem.end() && cpuOne->second > 0) {
        std::printf("CPU time per item 2 threads / 1 thread: %.2f (1.00: nothing shared on the hot path)\n",
                    cpuTwo->second / cpuOne->second);
    }
    benchmark::Shutdown();
    return 0;
}
