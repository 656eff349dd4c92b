// Random sequences of setting, reading and removing custom formatting and parsing
// strings, with Format and Parse in between, checked against a model of the two maps:
// a string that was accepted reads back exactly, a refusal changes nothing, and a
// too small buffer gives 1 without changing anything.
#include <cstring>
#include <cwchar>
#include <map>

#include "FuzzSupport.h"

using namespace kxfuzz;

namespace {

using Model = std::map<int, std::wstring>;

void CheckGet(units::UnitsFormatter const& f, Model const& model, int symbol, bool parsing, unsigned long size) {
    std::unique_ptr<wchar_t[]> const buffer(new wchar_t[size]);
    std::fill_n(buffer.get(), size, L'\uFFFF');
    int const result = parsing ? f.GetSymbolParsingString(symbol, buffer.get(), size)
                               : f.GetSymbolFormattingString(symbol, buffer.get(), size);
    auto const it = model.find(symbol);
    if (it == model.end()) {
        KXFUZZ_CHECK(result == 3, "0x%X has no %s string, but the getter returned %d", symbol,
                     parsing ? "parsing" : "formatting", result);
        return;
    }
    if (it->second.size() + 1 > size) {
        KXFUZZ_CHECK(result == 1, "a %zu-character string in %lu characters gave %d", it->second.size(), size, result);
        return;
    }
    KXFUZZ_CHECK(result == 0, "getter of 0x%X returned %d", symbol, result);
    KXFUZZ_CHECK(std::wcscmp(buffer.get(), it->second.c_str()) == 0, "0x%X reads back different text", symbol);
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char*** argv) {
    Initialize((*argv)[0]);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* bytes, std::size_t size) {
    FuzzedDataProvider data(bytes, size);
    units::UnitsFormatter& f = Reused(data.ConsumeIntegralInRange(0, kLocaleCount - 1));
    Model models[2];  // formatting, parsing

    int const steps = data.ConsumeIntegralInRange(1, 12);
    for (int step = 0; step < steps && data.remaining_bytes() > 0; ++step) {
        // Bits 28-31 are left out: whether they select another entry is not what this checks.
        int const symbol = (data.ConsumeIntegralInRange(0, 7) == 0 ? PickId(data) : PickSymbol(data)) & units::kIdentityMask;
        bool const parsing = data.ConsumeBool();
        Model& model = models[parsing ? 1 : 0];
        switch (data.ConsumeIntegralInRange(0, 4)) {
            case 0:
            case 1: {
                std::wstring const text =
                    data.ConsumeIntegralInRange(0, 5) == 0 ? std::wstring() : WideText(data.ConsumeRandomLengthString(32));
                std::unique_ptr<wchar_t[]> const copy = ExactCopy(text);
                int const result =
                    parsing ? f.SetSymbolParsingString(symbol, copy.get()) : f.SetSymbolFormattingString(symbol, copy.get());
                KXFUZZ_CHECK(result == 0 || result == 1, "setter returned %d", result);
                if (result == 0) {
                    if (text.empty()) {
                        model.erase(symbol);
                    } else {
                        model[symbol] = text;
                    }
                } else {
                    KXFUZZ_CHECK(!text.empty(), "removing a custom string was refused");
                }
                break;
            }
            case 2:
                CheckGet(f, model, symbol, parsing, data.ConsumeIntegralInRange<unsigned long>(1, 40));
                break;
            case 3: {
                wchar_t buffer[128];
                double const value = PickValue(data);
                int const result = f.Format(value, symbol & units::kUnitMask, buffer, 128, symbol, nullptr);
                KXFUZZ_CHECK(result >= 0, "Format returned %d", result);
                if (result == 0) KXFUZZ_CHECK(std::wmemchr(buffer, L'\0', 128) != nullptr, "no terminator");
                break;
            }
            default: {
                std::unique_ptr<wchar_t[]> const text = ExactCopy(WideText(data.ConsumeRandomLengthString(40)));
                double value = 0;
                int const result = f.Parse(text.get(), value, symbol & units::kUnitMask);
                KXFUZZ_CHECK(result == 0 || result == 2, "Parse returned %d", result);
                break;
            }
        }
    }

    // Every string comes off again, which leaves the formatter as the next input expects it.
    for (int parsing = 0; parsing < 2; ++parsing) {
        for (auto const& entry : models[parsing]) {
            int const result = parsing ? f.SetSymbolParsingString(entry.first, L"") : f.SetSymbolFormattingString(entry.first, L"");
            KXFUZZ_CHECK(result == 0, "removing the string of 0x%X returned %d", entry.first, result);
            CheckGet(f, {}, entry.first, parsing != 0, 8);
        }
    }
    return 0;
}
