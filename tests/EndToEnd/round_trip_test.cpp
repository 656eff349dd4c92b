// What the library writes, it reads back: for every symbol of the catalogue, in every
// shipped locale, Parse(Format(v)) returns v within half a display step.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "CatalogueSymbols.h"
#include "KxCoreUnitsUI/UnitsFormatter.h"
#include "KxCoreUnitsUI/UnitsManager.h"
#include "ManagerTest.h"

namespace units = kxnorth::platform::core::units;

namespace {

using kxtest::AllSymbols;

// Half the step the symbol shows at precision 2, in the symbol's unit.
double HalfStep(int symbol) {
    switch (symbol) {
        case 0x702016: case 0x802016: case 0x902016: case 0xA02016:
            return 0.5 / 4;  // fractions of an inch, quarters at precision 2
        case 0x408002: case 0x508002: case 0x608002:
            return 0.5 / 60;  // degrees and minutes at precision 2
        default:
            return 0.5e-2;
    }
}

}  // namespace

class RoundTrip : public kxtest::ManagerTest<::testing::TestWithParam<char const*>> {
protected:
    static void SetUpTestSuite() {
        ManagerTest::SetUpTestSuite();
        // Every locale shares the one parse dictionary: load all before any parse.
        for (wchar_t const* locale : {L"en-US", L"de-DE", L"fr-FR"}) units::UnitsFormatter warm(locale);
    }
};

TEST_P(RoundTrip, EverySymbolReadsBackWhatItWrites) {
    std::wstring const locale(GetParam(), GetParam() + std::strlen(GetParam()));
    units::UnitsFormatter formatter(locale.c_str());
    double const values[] = {0, 1.5, -2.25, 11.999, 143.999, 1234.567, -98765.4321, 0.004, 1e6};
    int failures = 0, checked = 0;
    for (int symbol : AllSymbols()) {
        int const unit = symbol & 0xFFFFF;
        for (double v : values) {
            wchar_t text[256] = L"<format failed>";
            double shown = 0, parsed = NAN;
            int result = formatter.Format(v, unit, text, 256, symbol, &shown);
            if (result == 0) result = formatter.Parse(text, parsed, unit);
            ++checked;
            // Compare in the written unit, where the step is defined. A bearing names
            // the direction, so it reads back modulo a full turn.
            double difference = parsed - shown;
            if (symbol == 0x508002) difference = std::remainder(difference, 360.0);
            if (result == 0 && std::abs(difference) <= HalfStep(symbol) * (1 + 1e-9) + 1e-9 * std::abs(shown)) continue;
            if (++failures > 40) continue;
            std::string narrow;
            for (wchar_t const* c = text; *c; ++c) narrow += *c < 128 ? static_cast<char>(*c) : '?';
            ADD_FAILURE() << GetParam() << " symbol 0x" << std::hex << symbol << std::dec << " value " << v
                          << " wrote \"" << narrow << "\" read " << parsed << " result " << result;
        }
    }
    std::printf("%s: %d of %d round trips fail\n", GetParam(), failures, checked);
}

INSTANTIATE_TEST_SUITE_P(Locales, RoundTrip, ::testing::Values("en-US", "de-DE", "fr-FR"),
                         [](auto const& info) { return std::string(info.param).replace(2, 1, "_"); });
