// Format and Parse through the public formatter, against the number conversions
// they cannot beat: std::to_chars with grouping, and std::from_chars of the number.
#include <benchmark/benchmark.h>

#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <algorithm>
#include <chrono>
#include <charconv>
#include <cstdio>
#include <vector>

#include "KxCoreUnitsUI/UnitsFormatter.h"
#include "KxCoreUnitsUI/UnitsManager.h"
#include "ratio_main.h"
#include "reference.h"

namespace units = kxnorth::platform::core::units;

namespace {

constexpr int kMeter = 0x2001, kInch = 0x2016, kDegree = 0x8002, kDensity = 0x11001;

units::UnitsFormatter& Formatter() {
    static units::UnitsFormatter formatter(L"en-US");
    return formatter;
}

double const kLengths[] = {1234.567, 0.25, 42.0, 98765.4321, 3.14159, 17.5, 0.001, 7.5};
constexpr int kLengthCount = sizeof(kLengths) / sizeof(kLengths[0]);

void BM_Reference_ToCharsGrouped(benchmark::State& state) {
    wchar_t out[64];
    int i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(kxbench::ToCharsGrouped(kLengths[i++ % kLengthCount], out));
        benchmark::ClobberMemory();
    }
}
BENCHMARK(BM_Reference_ToCharsGrouped);

void FormatLoop(benchmark::State& state, double scale, int unit, int symbol) {
    units::UnitsFormatter const& f = Formatter();
    wchar_t out[64];
    int i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(f.Format(kLengths[i++ % kLengthCount] * scale, unit, out, 64, symbol, nullptr));
        benchmark::ClobberMemory();
    }
}

void BM_Format_GenericSymbol(benchmark::State& state) { FormatLoop(state, 1, kMeter, 0x202001); }
BENCHMARK(BM_Format_GenericSymbol);

void BM_Format_FeetInchesFraction(benchmark::State& state) { FormatLoop(state, 1, kInch, 0x702016); }
BENCHMARK(BM_Format_FeetInchesFraction);

void BM_Format_AngleDms(benchmark::State& state) { FormatLoop(state, 0.01, kDegree, 0x408002); }
BENCHMARK(BM_Format_AngleDms);

void BM_Reference_FromChars(benchmark::State& state) {
    char const text[] = "66.5";
    for (auto _ : state) {
        double value = 0;
        std::from_chars(text, text + 4, value);
        benchmark::DoNotOptimize(value);
    }
}
BENCHMARK(BM_Reference_FromChars);

void ParseLoop(benchmark::State& state, wchar_t const* text, int unit) {
    units::UnitsFormatter const& f = Formatter();
    for (auto _ : state) {
        double value = 0;
        benchmark::DoNotOptimize(f.Parse(text, value, unit));
        benchmark::DoNotOptimize(value);
    }
}

void BM_Parse_Meters(benchmark::State& state) { ParseLoop(state, L"2.5 m", kMeter); }
BENCHMARK(BM_Parse_Meters);

void BM_Parse_FeetInches(benchmark::State& state) { ParseLoop(state, L"5'-6 1/2\"", kInch); }
BENCHMARK(BM_Parse_FeetInches);

// Feet and inches with marks, read by the evaluation alone, and the same length in
// words, which the evaluation refuses before the run of two quantities reads it.
void BM_Parse_FeetInchesMarks(benchmark::State& state) { ParseLoop(state, L"5'6\"", kInch); }
BENCHMARK(BM_Parse_FeetInchesMarks);

void BM_Parse_FeetInchesWords(benchmark::State& state) { ParseLoop(state, L"5 ft 6 in", kInch); }
BENCHMARK(BM_Parse_FeetInchesWords);

void BM_Parse_Sum(benchmark::State& state) { ParseLoop(state, L"1.5 m + 20 cm", kMeter); }
BENCHMARK(BM_Parse_Sum);

void BM_Parse_Bearing(benchmark::State& state) { ParseLoop(state, L"N 45\u00B030'15\" E", kDegree); }
BENCHMARK(BM_Parse_Bearing);

void BM_Parse_Density(benchmark::State& state) { ParseLoop(state, L"10 kg/m\u00B3", kDensity); }
BENCHMARK(BM_Parse_Density);

void BM_SecondFormatterOfLocale(benchmark::State& state) {
    for (auto _ : state) {
        units::UnitsFormatter f(L"en-US");
        benchmark::DoNotOptimize(&f);
    }
}
BENCHMARK(BM_SecondFormatterOfLocale)->Unit(benchmark::kMicrosecond);

// The first formatter of a locale loads its translators and builds its tables once
// per process, so each timing needs a fresh process: children forked before any
// formatter exists time one each, and the median of `runs` is reported.
double MedianFirstFormatterMs(int runs) {
    std::vector<double> times;
    for (int i = 0; i < runs; ++i) {
        int fds[2];
        if (pipe(fds) != 0) break;
        pid_t const pid = fork();
        if (pid == 0) {
            close(fds[0]);
            auto const start = std::chrono::steady_clock::now();
            units::UnitsFormatter formatter(L"en-US");
            formatter.SetNumberDecimalPrecision(2);
            double const ms = std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
            ssize_t const written = write(fds[1], &ms, sizeof ms);
            _exit(written == sizeof ms ? 0 : 1);
        }
        close(fds[1]);
        double ms = 0;
        if (pid > 0 && read(fds[0], &ms, sizeof ms) == static_cast<ssize_t>(sizeof ms)) times.push_back(ms);
        close(fds[0]);
        if (pid > 0) waitpid(pid, nullptr, 0);
    }
    if (times.empty()) return -1;
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    units::UnitsManager::Initialize();
    units::UnitsManager::GetInstance();
    std::printf("first formatter of a locale: %.2f ms, median of 9 fresh processes (target under 20 ms)\n",
                MedianFirstFormatterMs(9));
    Formatter().SetNumberDecimalPrecision(2);
    return kxbench::RunWithRatios(argc, argv,
                                  {{"BM_Format_GenericSymbol", "BM_Reference_ToCharsGrouped", 3.0},
                                   {"BM_Format_FeetInchesFraction", "BM_Reference_ToCharsGrouped", 5.0},
                                   {"BM_Parse_FeetInches", "BM_Reference_FromChars", 25.0},
                                   {"BM_Parse_FeetInchesWords", "BM_Parse_FeetInchesMarks", 2.0}});
}
