// Our Format and Parse against what an application would use instead, all in one run:
// ICU's number formatter with a unit (meters with two decimals, the mixed unit
// foot-and-inch), QLocale::toString, snprintf and std::to_chars (the floor) for
// formatting; std::from_chars of the bare number (the floor) and UDUNITS-2 parsing and
// converting a unit string for parsing. Ours goes through the public interface only.
#include <benchmark/benchmark.h>
#include <udunits2.h>
#include <unicode/measunit.h>
#include <unicode/numberformatter.h>

#include <QCoreApplication>
#include <QLocale>
#include <charconv>
#include <cstdio>
#include <cstring>
#include <memory>

#include "KxCoreUnits/UnitsUtilities.h"
#include "KxCoreUnitsUI/UnitsFormatter.h"
#include "KxCoreUnitsUI/UnitsManager.h"
#include "ratio_main.h"

namespace units = kxnorth::platform::core::units;

namespace {

// Meters, with groups, negatives, small values and values that round up.
double const kMeters[] = {1234567.891, -0.5, 42.0, 98765.4321, 3.14159, -1250000.25, 0.001, 7.5};
// Inches: 5'-6 1/2", -6", a carry to 1'-0", a large value, a fraction alone.
double const kInches[] = {66.5, -6.0, 11.97, 1234.56, 0.5, 100.125, 37.0, 9.875};
constexpr int kValueCount = 8;

int IdOf(wchar_t const* symbolName) {
    units::UnitSymbol symbol{};
    return units::UnitsUtilities::GetUnitSymbol(symbolName, symbol) == units::eEOk ? symbol : 0;
}

int UnitIdOf(wchar_t const* unitName) {
    kxp::IDesignPropertyUnits::teType type{};
    return units::UnitsUtilities::GetUnitType(unitName, type) == units::eEOk ? type : 0;
}

// One en-US formatter for the whole run, built before the first benchmark so that
// its tables are not part of any timing.
units::UnitsFormatter& Formatter() {
    static units::UnitsFormatter formatter(L"en-US");
    return formatter;
}

// ---------------------------------------------------------------------------
// Formatting a length in meters with two decimals.

void BM_Ours_Format_Meter(benchmark::State& state) {
    units::UnitsFormatter& f = Formatter();
    f.SetNumberDecimalPrecision(2);
    int const unit = UnitIdOf(L"Meter"), symbol = IdOf(L"m");
    wchar_t out[64];
    if (f.Format(1.5, unit, out, 64, symbol, nullptr) != 0) state.SkipWithError("Format refused 1.5 m");
    int i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(f.Format(kMeters[i++ % kValueCount], unit, out, 64, symbol, nullptr));
        benchmark::ClobberMemory();
    }
}
BENCHMARK(BM_Ours_Format_Meter);

void BM_Icu_Format_Meter(benchmark::State& state) {
    using namespace icu::number;
    LocalizedNumberFormatter const f = NumberFormatter::withLocale(icu::Locale::getUS())
                                           .unit(icu::MeasureUnit::getMeter())
                                           .unitWidth(UNUM_UNIT_WIDTH_SHORT)
                                           .precision(Precision::fixedFraction(2));
    int i = 0;
    for (auto _ : state) {
        UErrorCode status = U_ZERO_ERROR;
        FormattedNumber const text = f.formatDouble(kMeters[i++ % kValueCount], status);
        benchmark::DoNotOptimize(text.toTempString(status).length());
    }
}
BENCHMARK(BM_Icu_Format_Meter);

void BM_Qt_LocaleToString(benchmark::State& state) {
    QLocale const locale(QLocale::English, QLocale::UnitedStates);
    int i = 0;
    for (auto _ : state) {
        QString const text = locale.toString(kMeters[i++ % kValueCount], 'f', 2);
        benchmark::DoNotOptimize(text.size());
    }
}
BENCHMARK(BM_Qt_LocaleToString);

void BM_Snprintf_Meter(benchmark::State& state) {
    char out[64];
    int i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(std::snprintf(out, sizeof out, "%.2f m", kMeters[i++ % kValueCount]));
        benchmark::ClobberMemory();
    }
}
BENCHMARK(BM_Snprintf_Meter);

void BM_ToChars_Fixed2(benchmark::State& state) {
    char out[64];
    int i = 0;
    for (auto _ : state) {
        auto r = std::to_chars(out, out + sizeof out, kMeters[i++ % kValueCount], std::chars_format::fixed, 2);
        benchmark::DoNotOptimize(r.ptr);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(BM_ToChars_Fixed2);

// ---------------------------------------------------------------------------
// Feet and inches.

void BM_Ours_Format_FeetInchFraction(benchmark::State& state) {
    units::UnitsFormatter& f = Formatter();
    f.SetNumberDecimalPrecision(3);  // eighths
    int const unit = UnitIdOf(L"Inch"), symbol = IdOf(L"Inch_FootPrimeDashInchDoublePrime_Fraction");
    wchar_t out[64];
    if (f.Format(66.5, unit, out, 64, symbol, nullptr) != 0) state.SkipWithError("Format refused 66.5 in");
    int i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(f.Format(kInches[i++ % kValueCount], unit, out, 64, symbol, nullptr));
        benchmark::ClobberMemory();
    }
    f.SetNumberDecimalPrecision(2);
}
BENCHMARK(BM_Ours_Format_FeetInchFraction);

void BM_Icu_Format_FootAndInch(benchmark::State& state) {
    using namespace icu::number;
    UErrorCode status = U_ZERO_ERROR;
    icu::MeasureUnit const footAndInch = icu::MeasureUnit::forIdentifier("foot-and-inch", status);
    if (U_FAILURE(status)) state.SkipWithError("ICU has no foot-and-inch");
    LocalizedNumberFormatter const f =
        NumberFormatter::withLocale(icu::Locale::getUS()).unit(footAndInch).unitWidth(UNUM_UNIT_WIDTH_SHORT);
    int i = 0;
    for (auto _ : state) {
        status = U_ZERO_ERROR;
        FormattedNumber const text = f.formatDouble(kInches[i++ % kValueCount] / 12.0, status);  // in feet
        benchmark::DoNotOptimize(text.toTempString(status).length());
    }
}
BENCHMARK(BM_Icu_Format_FootAndInch);

// ---------------------------------------------------------------------------
// Parsing.

void ParseLoop(benchmark::State& state, wchar_t const* text, wchar_t const* unitName) {
    units::UnitsFormatter const& f = Formatter();
    int const unit = UnitIdOf(unitName);
    double value = 0;
    if (f.Parse(text, value, unit) != 0) state.SkipWithError("Parse refused the text");
    for (auto _ : state) {
        benchmark::DoNotOptimize(f.Parse(text, value, unit));
        benchmark::DoNotOptimize(value);
    }
}

void BM_Ours_Parse_Meters(benchmark::State& state) { ParseLoop(state, L"2.5 m", L"Meter"); }
BENCHMARK(BM_Ours_Parse_Meters);

void BM_Ours_Parse_FeetInches(benchmark::State& state) { ParseLoop(state, L"5'-6 1/2\"", L"Inch"); }
BENCHMARK(BM_Ours_Parse_FeetInches);

void BM_Ours_Parse_Density(benchmark::State& state) { ParseLoop(state, L"10 kg/m\u00B3", L"KilogramPerCubicMeter"); }
BENCHMARK(BM_Ours_Parse_Density);

void FromCharsLoop(benchmark::State& state, char const* text) {
    std::size_t const length = std::strlen(text);
    double value = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(text);
        std::from_chars(text, text + length, value);
        benchmark::DoNotOptimize(value);
    }
}

void BM_FromChars_2_5(benchmark::State& state) { FromCharsLoop(state, "2.5"); }
BENCHMARK(BM_FromChars_2_5);

void BM_FromChars_66_5(benchmark::State& state) { FromCharsLoop(state, "66.5"); }
BENCHMARK(BM_FromChars_66_5);

// UDUNITS-2 reads the unit string, finds the converter to kg/m^3 and converts 10.
void BM_Udunits_ParseConvert_Density(benchmark::State& state) {
    ut_set_error_message_handler(ut_ignore);  // its database warns about redefinitions
    std::unique_ptr<ut_system, decltype(&ut_free_system)> system(ut_read_xml(nullptr), &ut_free_system);
    if (!system) {
        state.SkipWithError("UDUNITS-2 found no unit database");
        return;
    }
    std::unique_ptr<ut_unit, decltype(&ut_free)> target(ut_parse(system.get(), "kg/m^3", UT_ASCII), &ut_free);
    for (auto _ : state) {
        ut_unit* unit = ut_parse(system.get(), "kg/m^3", UT_ASCII);
        cv_converter* converter = ut_get_converter(unit, target.get());
        benchmark::DoNotOptimize(cv_convert_double(converter, 10.0));
        cv_free(converter);
        ut_free(unit);
    }
}
BENCHMARK(BM_Udunits_ParseConvert_Density);

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);  // the units manager requires it
    units::UnitsManager::Initialize();
    units::UnitsManager::GetInstance();
    Formatter();
    // Targets are how many times our median may be of the reference's: 0.25 is "4x faster".
    int const rc = kxbench::RunWithRatios(
        argc, argv,
        {{"BM_Ours_Format_Meter", "BM_Icu_Format_Meter", 1.0 / 4},
         {"BM_Ours_Format_Meter", "BM_Qt_LocaleToString", 1.0 / 2},
         {"BM_Ours_Format_Meter", "BM_ToChars_Fixed2", 3.0},
         {"BM_Ours_Format_FeetInchFraction", "BM_Icu_Format_FootAndInch", 1.0 / 15},
         {"BM_Ours_Parse_Density", "BM_Udunits_ParseConvert_Density", 1.0 / 3},
         {"BM_Ours_Parse_FeetInches", "BM_FromChars_66_5", 25.0},
         {"BM_Ours_Parse_Meters", "BM_FromChars_2_5", 25.0}});
    units::UnitsManager::Uninitialize();
    return rc;
}
