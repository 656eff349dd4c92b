// Inputs that the fuzz targets under fuzz/ found to misbehave, kept as named cases.
// Each row is the smallest text that showed the fault; the sanitizer build of the
// tests is what catches undefined behaviour, every build checks the result codes.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "KxCoreUnitsUI/UnitsFormatter.h"
#include "KxCoreUnitsUI/UnitsManager.h"
#include "ManagerTest.h"

namespace units = kxnorth::platform::core::units;

namespace {

constexpr int kMeter = 0x2001;

class ParseRegressionsFromFuzzer : public kxtest::ManagerTest<> {};

std::wstring Repeated(wchar_t const* text, int count) {
    std::wstring result;
    for (int i = 0; i < count; ++i) result += text;
    return result;
}

// Every superscript squares (or cubes) the quantity before it, so a run of them
// doubles (or triples) the exponents each time: 31 squares take the length exponent
// to 2^31 and 20 cubes to 3^20, past what an int holds. No such quantity is a length.
TEST_F(ParseRegressionsFromFuzzer, RunsOfSuperscriptPowersDoNotOverflowTheExponents) {
    struct Row {
        char const* name;
        std::wstring text;
    };
    Row const rows[] = {
        {"31 squares", L"2 m" + Repeated(L"\u00B2", 31)},
        {"40 squares", L"2 m" + Repeated(L"\u00B2", 40)},
        {"20 cubes", L"2 m" + Repeated(L"\u00B3", 20)},
        {"squares after a quotient", L"2 m/s" + Repeated(L"\u00B2", 32)},
        {"found: 2fm and squares", L"2fm" + Repeated(L"\u00B2", 88) + L"s/sm/s^7/s^^{;"},
    };
    units::UnitsFormatter const formatter(L"en-US");
    for (Row const& row : rows) {
        SCOPED_TRACE(row.name);
        double constexpr kUntouched = -42.5;
        double value = kUntouched;
        EXPECT_EQ(formatter.Parse(row.text.c_str(), value, kMeter), 2);
        EXPECT_EQ(std::memcmp(&value, &kUntouched, sizeof value), 0);
    }
}

}  // namespace
