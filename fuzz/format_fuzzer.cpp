// Format of random values with random units, symbols and buffer sizes, after random
// number settings and custom formatting strings. The buffer is exactly as large as
// the size passed, so AddressSanitizer reports any write past it; a success must
// leave the text terminated inside it.
#include <algorithm>
#include <cwchar>

#include "FuzzSupport.h"

using namespace kxfuzz;

extern "C" int LLVMFuzzerInitialize(int*, char*** argv) {
    Initialize((*argv)[0]);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* bytes, std::size_t size) {
    FuzzedDataProvider data(bytes, size);
    int const locale = data.ConsumeIntegralInRange(0, kLocaleCount - 1);
    bool const changeTokens = data.ConsumeIntegralInRange(0, 7) == 0;
    std::unique_ptr<units::UnitsFormatter> fresh = changeTokens ? Fresh(locale) : nullptr;
    units::UnitsFormatter& f = changeTokens ? *fresh : Reused(locale);
    if (changeTokens) ApplyTokenSettings(data, f);
    ApplyRestorableSettings(data, f);
    CustomStrings custom;
    ApplyCustomStrings(data, f, 1, custom);

    double const value = PickValue(data);
    int const unit = PickId(data);
    int const symbol = data.ConsumeBool() ? PickSymbol(data) : PickId(data);
    bool const byDimensions = data.ConsumeIntegralInRange(0, 3) == 0;
    int dims[units::kDimensionCount] = {};
    PickDimensions(data, dims);
    unsigned long const bufferSize = data.ConsumeIntegralInRange<unsigned long>(0, 96);
    bool const wantRest = data.ConsumeBool();

    // Not zero-filled: a terminator found later must have been written by Format.
    std::unique_ptr<wchar_t[]> const buffer(new wchar_t[bufferSize]);
    std::fill_n(buffer.get(), bufferSize, L'\uFFFF');
    double rest = 0;
    int const result = byDimensions ? f.Format(value, dims, buffer.get(), bufferSize, symbol, wantRest ? &rest : nullptr)
                                    : f.Format(value, unit, buffer.get(), bufferSize, symbol, wantRest ? &rest : nullptr);
    KXFUZZ_CHECK(result >= 0, "Format returned %d", result);
    if (result == 0) {
        KXFUZZ_CHECK(bufferSize > 0 && std::wmemchr(buffer.get(), L'\0', bufferSize) != nullptr,
                     "Format succeeded without a terminator inside %lu characters", bufferSize);
    }

    RemoveCustomStrings(f, custom);
    if (!changeTokens) RestoreSettings(f);
    return 0;
}
