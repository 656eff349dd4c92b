// Parse of random text, by unit and by dimensions, after random number settings and
// custom formatting and parsing strings. A failed parse leaves the output untouched.
// Parse by unit is also run through DiagnoseParse, which must agree with it and point
// inside the text; the seeds hold runs and sums (`5 ft 6 in`, `1.5 m + 20 cm`) so that
// the readings beyond the evaluation are reached.
//
// Input: the text up to the first NUL byte, then the choices. With no choices left
// every pick is its first option (en-US, the reused formatter, inches), so a seed that
// is just a typed length is parsed as one.
#include <cstring>
#include <cwchar>

#include "KxCoreUnitsUI/ParseDiagnostics.h"

#include "FuzzSupport.h"

using namespace kxfuzz;

namespace {

// Units whose typed forms differ most: marks, compass letters, offsets, quotients.
int PickParseUnit(FuzzedDataProvider& data) {
    static int const kUnits[] = {0x2016 /* inch */, 0x2001 /* meter */, 0x2017 /* foot */, 0x8002 /* degree */,
                                 0x2A002 /* degree Celsius */, 0x11001 /* kg/m^3 */, 0x17001 /* newton */,
                                 0x3001 /* square meter */, 0x2C001 /* second */, 0x30001 /* m/s^2 */};
    int const pick = data.ConsumeIntegralInRange(0, 12);
    return pick < 10 ? kUnits[pick] : PickId(data);
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char*** argv) {
    Initialize((*argv)[0]);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* bytes, std::size_t size) {
    auto const* nul = static_cast<std::uint8_t const*>(std::memchr(bytes, 0, size));
    std::size_t const textSize = nul == nullptr ? size : static_cast<std::size_t>(nul - bytes);
    std::unique_ptr<wchar_t[]> const text =
        ExactCopy(WideText(std::string(reinterpret_cast<char const*>(bytes), textSize)));
    FuzzedDataProvider data(bytes + textSize, size - textSize);
    int const locale = data.ConsumeIntegralInRange(0, kLocaleCount - 1);
    // One input in eight changes separators, signs or digits, on a formatter of its own.
    bool const changeTokens = data.ConsumeIntegralInRange(0, 7) == 7;
    std::unique_ptr<units::UnitsFormatter> fresh = changeTokens ? Fresh(locale) : nullptr;
    units::UnitsFormatter& f = changeTokens ? *fresh : Reused(locale);
    if (changeTokens) ApplyTokenSettings(data, f);
    ApplyRestorableSettings(data, f);
    CustomStrings custom;
    ApplyCustomStrings(data, f, 3, custom);

    bool const byDimensions = data.ConsumeIntegralInRange(0, 3) == 3;
    int const unit = PickParseUnit(data);
    int dims[units::kDimensionCount] = {};
    PickDimensions(data, dims);
    int const group = data.ConsumeBool() ? 0 : PickId(data);

    double constexpr kUntouched = -1234.5678;
    double value = kUntouched;
    int const result = byDimensions ? f.Parse(text.get(), value, dims, group) : f.Parse(text.get(), value, unit);
    if (byDimensions) {
        KXFUZZ_CHECK(result == 0 || result == 1 || result == 2, "Parse by dimensions returned %d", result);
    } else {
        KXFUZZ_CHECK(result == 0 || result == 2, "Parse by unit returned %d", result);
    }
    if (result != 0) {
        KXFUZZ_CHECK(std::memcmp(&value, &kUntouched, sizeof value) == 0, "Parse failed with %d but wrote %g", result,
                     value);
    }

    if (!byDimensions) {
        units::ParseDiagnostics diagnostics;
        double diagnosed = kUntouched;
        int const again = units::DiagnoseParse(f, text.get(), diagnosed, unit, diagnostics);
        KXFUZZ_CHECK(again == result, "DiagnoseParse returned %d, Parse %d", again, result);
        KXFUZZ_CHECK(std::memcmp(&diagnosed, &value, sizeof value) == 0, "DiagnoseParse read %g, Parse %g", diagnosed,
                     value);
        int const length = static_cast<int>(std::wcslen(text.get()));
        if (result == 0) {
            KXFUZZ_CHECK(diagnostics.offset == -1 && diagnostics.reason == units::ParseFailureReason::eNone,
                         "a reading with offset %d, reason %d", diagnostics.offset,
                         static_cast<int>(diagnostics.reason));
        } else {
            KXFUZZ_CHECK(diagnostics.reason != units::ParseFailureReason::eNone, "a failure without a reason");
            KXFUZZ_CHECK(length == 0 ? diagnostics.offset == 0 : diagnostics.offset >= 0 && diagnostics.offset < length,
                         "offset %d outside a text of %d characters", diagnostics.offset, length);
        }
        KXFUZZ_CHECK(diagnostics.warningOffset >= -1 && diagnostics.warningOffset < length,
                     "warning offset %d outside a text of %d characters", diagnostics.warningOffset, length);
        KXFUZZ_CHECK((diagnostics.warnings != 0) == (diagnostics.warningOffset >= 0), "warning %d at %d",
                     diagnostics.warnings, diagnostics.warningOffset);
    }

    RemoveCustomStrings(f, custom);
    if (!changeTokens) RestoreSettings(f);
    return 0;
}
