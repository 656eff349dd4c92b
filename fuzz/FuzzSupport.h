// Shared set-up of the libFuzzer targets: the Qt application and units manager, one
// reusable formatter per shipped locale, random settings that can be undone exactly,
// and text copied into buffers of exactly the needed size so that AddressSanitizer
// sees every read or write past their end.
#pragma once

#include <fuzzer/FuzzedDataProvider.h>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "KxCoreUnitsUI/UnitsFormatter.h"

namespace kxfuzz {

namespace units = kxnorth::platform::core::units;

// A broken property is a finding: print it and abort so that libFuzzer keeps the input.
#define KXFUZZ_CHECK(condition, ...)                                          \
    do {                                                                      \
        if (!(condition)) {                                                   \
            std::fprintf(stderr, "check failed: %s: ", #condition);           \
            std::fprintf(stderr, __VA_ARGS__);                                \
            std::fputc('\n', stderr);                                         \
            std::abort();                                                     \
        }                                                                     \
    } while (false)

// Creates the application object and the units manager; call from LLVMFuzzerInitialize.
void Initialize(char const* programPath);

char const* const kLocales[] = {"en-US", "de-DE", "fr-FR"};
constexpr int kLocaleCount = 3;

// The formatter kept for `locale` (an index into kLocales). Inputs that only change
// settings which RestoreSettings puts back exactly may use it; others need Fresh().
units::UnitsFormatter& Reused(int locale);
std::unique_ptr<units::UnitsFormatter> Fresh(int locale);

// The catalogue's identifiers, for picking ones that exist.
std::vector<int> const& AllUnits();
std::vector<int> const& AllSymbols();
std::vector<int> const& AllGroups();

// A group, unit or symbol of the catalogue, 0, or any 28-bit number.
int PickId(FuzzedDataProvider& data);
// A symbol likely to have parts or custom forms (feet and inches, degrees-minutes-seconds,
// prime marks), or any symbol of the catalogue.
int PickSymbol(FuzzedDataProvider& data);
// Any double: ordinary values, huge and tiny ones, infinities, NaN, negative zero.
double PickValue(FuzzedDataProvider& data);
// A dimension vector with small exponents.
void PickDimensions(FuzzedDataProvider& data, int (&dims)[units::kDimensionCount]);

// Bytes read as UTF-8; a byte that starts no valid sequence stands for itself (0x80 to
// 0xFF), so every input is some wide text. Embedded NULs end it.
std::wstring WideText(std::string const& bytes);
// `text` and its terminator in a heap block of exactly that many characters.
std::unique_ptr<wchar_t[]> ExactCopy(std::wstring const& text);

// Number settings that RestoreSettings undoes exactly: precision, number format, group
// sizes, the sign and exponent flags, default units and symbols.
void ApplyRestorableSettings(FuzzedDataProvider& data, units::UnitsFormatter& formatter);
void RestoreSettings(units::UnitsFormatter& formatter);
// Separators, signs and native digits: they change the number-token dictionary, which
// later setters can leave different from a new formatter's, so use a Fresh() formatter.
void ApplyTokenSettings(FuzzedDataProvider& data, units::UnitsFormatter& formatter);

// Sets up to `maxCount` custom formatting or parsing strings of random text and records
// them; RemoveCustomStrings takes them all off again.
struct CustomStrings {
    std::vector<std::pair<int, bool>> set;  // (symbol, is parsing string)
};
void ApplyCustomStrings(FuzzedDataProvider& data, units::UnitsFormatter& formatter, int maxCount,
                        CustomStrings& applied);
void RemoveCustomStrings(units::UnitsFormatter& formatter, CustomStrings const& applied);

}  // namespace kxfuzz
