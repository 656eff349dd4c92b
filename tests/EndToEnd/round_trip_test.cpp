// What the library writes, it reads back: for every symbol of the catalogue, in every
// shipped locale, with the fixed number settings and with the locale's own number
// conventions, Parse(Format(v)) returns v within half a display step.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <string>
#include <tuple>
#include <vector>

#include "CatalogueSymbols.h"
#include "KxCoreUnitsUI/LocaleConventions.h"
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

// The locales whose translations the build compiled: one folder each, beside the
// test programs, holding the compiled unit names.
std::vector<std::string> const& ShippedLocales() {
    static std::vector<std::string> const locales = [] {
        std::vector<std::string> found;
        for (auto const& entry : std::filesystem::directory_iterator(KX_TEST_TRANSLATIONS_DIR)) {
            if (std::filesystem::exists(entry.path() / "KxCoreUnitsUI.qm")) found.push_back(entry.path().filename().string());
        }
        std::sort(found.begin(), found.end());
        return found;
    }();
    return locales;
}

enum class Numbers { eFixedDefaults, eLocaleConventions };

std::wstring Wide(std::string const& text) { return std::wstring(text.begin(), text.end()); }

}  // namespace

class RoundTrip : public kxtest::ManagerTest<::testing::TestWithParam<std::tuple<std::string, Numbers>>> {
protected:
    static void SetUpTestSuite() {
        ManagerTest::SetUpTestSuite();
        // Every locale shares the one parse dictionary: load all before any parse.
        for (std::string const& locale : ShippedLocales()) units::UnitsFormatter warm(Wide(locale).c_str());
    }
};

TEST(RoundTripLocales, TheBuildShipsEveryCommittedLocale) {
    for (char const* locale : {"en-US", "de-DE", "fr-FR"}) {
        EXPECT_NE(std::find(ShippedLocales().begin(), ShippedLocales().end(), locale), ShippedLocales().end()) << locale;
    }
}

TEST_P(RoundTrip, EverySymbolReadsBackWhatItWrites) {
    std::string const name = std::get<0>(GetParam());
    std::wstring const locale = Wide(name);
    units::UnitsFormatter formatter(locale.c_str());
    if (std::get<1>(GetParam()) == Numbers::eLocaleConventions) {
        ASSERT_EQ(units::ApplyLocaleConventions(formatter), 0);
    }
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
            ADD_FAILURE() << name << " symbol 0x" << std::hex << symbol << std::dec << " value " << v
                          << " wrote \"" << narrow << "\" read " << parsed << " result " << result;
        }
    }
    std::printf("%s: %d of %d round trips fail\n", name.c_str(), failures, checked);
}

INSTANTIATE_TEST_SUITE_P(Locales, RoundTrip,
                         ::testing::Combine(::testing::ValuesIn(ShippedLocales()),
                                            ::testing::Values(Numbers::eFixedDefaults, Numbers::eLocaleConventions)),
                         [](auto const& info) {
                             std::string name = std::get<0>(info.param);
                             std::replace(name.begin(), name.end(), '-', '_');
                             bool const own = std::get<1>(info.param) == Numbers::eLocaleConventions;
                             return name + (own ? "_LocaleConventions" : "_FixedNumbers");
                         });
