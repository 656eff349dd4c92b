// A benchmark main that also prints, for named pairs, how many times slower our
// code is than its reference, from the medians of the same run.
#pragma once

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace kxbench {

struct Ratio {
    std::string ours;
    std::string reference;
    double target;  // the ratio we promise to stay under
};

class RecordingReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(std::vector<Run> const& runs) override {
        for (Run const& run : runs) {
            if (run.aggregate_name == "median" || (run.run_type == Run::RT_Iteration && !medians_only)) {
                times[run.run_name.function_name] = run.GetAdjustedRealTime();
            }
        }
        ConsoleReporter::ReportRuns(runs);
    }
    std::map<std::string, double> times;
    bool medians_only = false;
};

// Runs every benchmark (9 interleaved repetitions unless told otherwise), then prints the ratios.
// Returns 0; the ratios are reported, not enforced, since timings vary by machine.
inline int RunWithRatios(int argc, char** argv, std::vector<Ratio> const& ratios) {
    std::vector<char*> args(argv, argv + argc);
    std::string reps = "--benchmark_repetitions=9";
    std::string aggregates = "--benchmark_report_aggregates_only=true";
    bool repetitionsGiven = false;
    for (int i = 1; i < argc; ++i) {
        if (std::string(argv[i]).rfind("--benchmark_repetitions", 0) == 0) repetitionsGiven = true;
    }
    // Repetitions of all benchmarks run interleaved in random order, so that a burst of
    // load on the machine falls on ours and on the reference alike.
    std::string interleave = "--benchmark_enable_random_interleaving=true";
    if (!repetitionsGiven) {
        args.push_back(reps.data());
        args.push_back(aggregates.data());
        args.push_back(interleave.data());
    }
    int n = static_cast<int>(args.size());
    benchmark::Initialize(&n, args.data());
    RecordingReporter reporter;
    reporter.medians_only = !repetitionsGiven;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    std::printf("\n%-44s %-36s %8s %8s\n", "ours", "reference", "ratio", "target");
    for (Ratio const& r : ratios) {
        auto a = reporter.times.find(r.ours), b = reporter.times.find(r.reference);
        if (a == reporter.times.end() || b == reporter.times.end() || b->second <= 0) continue;
        double const ratio = a->second / b->second;
        std::printf("%-44s %-36s %7.2fx %7.2fx %s\n", r.ours.c_str(), r.reference.c_str(), ratio,
                    r.target, ratio <= r.target ? "ok" : "OVER");
    }
    benchmark::Shutdown();
    return 0;
}

}  // namespace kxbench
