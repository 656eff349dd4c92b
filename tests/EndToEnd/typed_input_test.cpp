// What a person types parses, in the unit being asked for; what cannot be read gives
// 2 and leaves the output alone.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "KxCoreUnitsUI/UnitsFormatter.h"
#include "KxCoreUnitsUI/UnitsManager.h"
#include "ManagerTest.h"

namespace units = kxnorth::platform::core::units;

namespace {

constexpr int kMeter = 0x2001, kFoot = 0x2017, kInch = 0x2016, kMillimeter = 0x200E;
constexpr int kSquareMeter = 0x3001, kSquareFoot = 0x3003, kKgPerCubicMeter = 0x11001;
constexpr int kMeterPerSecondSquared = 0x30001, kKelvin = 0x2A001, kCelsius = 0x2A002, kFahrenheit = 0x2A003;
constexpr int kDegree = 0x8002, kNewton = 0x17001, kWatt = 0x1D001;

struct Typed {
    wchar_t const* text;
    int unit;
    double expected;
};

std::string Narrow(wchar_t const* w) {
    std::string s;
    for (; *w; ++w) s += *w < 128 ? static_cast<char>(*w) : '?';
    return s;
}

class TypedInput : public kxtest::ManagerTest<> {
protected:
    units::UnitsFormatter formatter{L"en-US"};
};

}  // namespace

TEST_F(TypedInput, CommonEngineeringEntries) {
    Typed const rows[] = {
        // The marks, bearings and expressions themselves are the symbol tests' matter;
        // here the units, names and number text a person types.
        {L"5 ft", kFoot, 5}, {L"5'6\"", kInch, 66}, {L"66 1/2 in", kInch, 66.5}, {L"2.5 m", kMeter, 2.5},
        {L"1,234.5 mm", kMillimeter, 1234.5}, {L"3 m\u00B2", kSquareMeter, 3}, {L"4 m^2", kSquareMeter, 4},
        {L"10 kg/m\u00B3", kKgPerCubicMeter, 10}, {L"9.81 m/s^2", kMeterPerSecondSquared, 9.81},
        {L"20 \u00B0C", kCelsius, 20}, {L"20 \u00B0C", kKelvin, 293.15}, {L"68 \u00B0F", kCelsius, 20},
        {L"45\u00B030'", kDegree, 45.5}, {L"N 45\u00B0 E", kDegree, 45}, {L"5 N", kNewton, 5},
        {L"(2 ft)\u00B7(3 ft)", kSquareFoot, 6}, {L"5 feet", kFoot, 5}, {L"2 metres", kMeter, 2},
        {L"12 in", kFoot, 1}, {L"1 mi", kFoot, 5280}, {L"2.5", kMeter, 2.5}, {L"3 W", kWatt, 3},
    };
    for (Typed const& r : rows) {
        SCOPED_TRACE(Narrow(r.text));
        double value = NAN;
        ASSERT_EQ(formatter.Parse(r.text, value, r.unit), 0);
        EXPECT_NEAR(value, r.expected, 1e-9 * std::max(1.0, std::abs(r.expected)));
    }
}

TEST_F(TypedInput, UnreadableTextGivesTwoAndLeavesTheValue) {
    wchar_t const* const rows[] = {
        L"",         L"five feet", L"5 furlongz", L"/5 ft",  L"5 ft/",  L"5 ft *",  L"(5 ft",
        L"5 ft)",    L"ft",        L"1/0 in",    L"2 ft^0", L"2*3 ft", L"5 kg",    L"5 -1/2 in",
        L"3 ft 2",   L"\u00B0",    L"N",         L"((((",   L"5 m m m m m m m m m m m m m m m m",
    };
    for (wchar_t const* text : rows) {
        SCOPED_TRACE(Narrow(text));
        double value = 42;
        EXPECT_EQ(formatter.Parse(text, value, kMeter), 2);
        EXPECT_EQ(value, 42);
    }
    double value = 42;
    EXPECT_EQ(formatter.Parse(nullptr, value, kMeter), 2);
    EXPECT_EQ(formatter.Parse(L"5 m", value, 0x2FFF), 2) << "unknown unit";
    EXPECT_EQ(value, 42);
}

TEST_F(TypedInput, BareNumbersReadInTheGroupsDefaultUnit) {
    double value = 0;
    ASSERT_EQ(formatter.Parse(L"2.5", value, kFoot), 0);
    EXPECT_NEAR(value, 2.5 / 0.3048, 1e-12) << "2.5 in the length group's default, the meter";
    ASSERT_EQ(formatter.SetDefaultUnit(kFoot), 0);
    ASSERT_EQ(formatter.Parse(L"2.5", value, kMeter), 0);
    EXPECT_NEAR(value, 0.762, 1e-12);
}

TEST_F(TypedInput, FormatResolvesDefaultUnitsAndSymbols) {
    wchar_t text[64];
    double rest = 0;
    int const lengthDims[7] = {1, 0, 0, 0, 0, 0, 0};
    ASSERT_EQ(formatter.Format(0.3048, lengthDims, text, 64, 0, &rest), 0);
    EXPECT_STREQ(text, L"0.30 meter");
    ASSERT_EQ(formatter.SetDefaultUnit(kFoot), 0);
    ASSERT_EQ(formatter.SetDefaultSymbol(0x202017), 0);  // "ft"
    ASSERT_EQ(formatter.Format(0.3048, lengthDims, text, 64, 0, &rest), 0);
    EXPECT_STREQ(text, L"1.00 ft");
    EXPECT_NEAR(rest, 1.0, 1e-12);
    EXPECT_EQ(formatter.Format(1.0, 0x2FFF, text, 64, 0, nullptr), 1) << "unknown unit";
    EXPECT_EQ(formatter.Format(1.0, kMeter, text, 64, 0xF02001, nullptr), 1) << "unknown symbol";
    EXPECT_EQ(formatter.SetDefaultSymbol(0xF02001), 1);
}

TEST_F(TypedInput, FormatNeverWritesPastTheGivenSize) {
    int const symbols[] = {0x102001, 0x202001, 0x502016, 0x802016, 0x408002, 0x508002, 0x22A002, 0x52C001};
    for (int symbol : symbols) {
        for (unsigned long size = 0; size < 40; ++size) {
            std::wstring canvas(64, L'#');
            int const result = formatter.Format(-1234.5678, symbol & 0xFFFFF, canvas.data(), size, symbol, nullptr);
            for (std::size_t i = size; i < canvas.size(); ++i) {
                ASSERT_EQ(canvas[i], L'#') << std::hex << symbol << " size " << std::dec << size;
            }
            if (result == 0) {
                EXPECT_LT(std::wcslen(canvas.c_str()), size);
            }
        }
    }
}

TEST_F(TypedInput, CustomStringsRestyleOneSymbol) {
    constexpr int kFeetInches = 0x502016;
    wchar_t text[64];
    ASSERT_EQ(formatter.SetSymbolFormattingString(kFeetInches, L"{0} feet {1} inches"), 0);
    ASSERT_EQ(formatter.Format(66.5, kInch, text, 64, kFeetInches, nullptr), 0);
    EXPECT_STREQ(text, L"5 feet 6.50 inches");
    double value = 0;
    ASSERT_EQ(formatter.Parse(L"5 feet 6.50 inches", value, kInch), 0);
    EXPECT_NEAR(value, 66.5, 1e-12);

    wchar_t stored[64];
    EXPECT_EQ(formatter.GetSymbolFormattingString(kFeetInches, stored, 64), 0);
    EXPECT_STREQ(stored, L"{0} feet {1} inches");
    EXPECT_EQ(formatter.GetSymbolFormattingString(kFeetInches, stored, 19), 1) << "one character short";
    EXPECT_EQ(formatter.GetSymbolParsingString(kFeetInches, stored, 64), 3) << "no parsing string";

    // The same pieces as a parsing string clash with the formatting one: refused.
    EXPECT_EQ(formatter.SetSymbolParsingString(kFeetInches, L"{0} feet {1} inches"), 1);
    EXPECT_EQ(formatter.SetSymbolFormattingString(kFeetInches, L"{0} feet {1} inches"), 0) << "same text";

    // Refused strings leave the previous one in force.
    for (wchar_t const* bad : {L"{0}{1}", L"{0} feet {x}", L"{0} feet }", L"{0} feet {1", L"{0} only"}) {
        EXPECT_EQ(formatter.SetSymbolFormattingString(kFeetInches, bad), 1);
    }
    ASSERT_EQ(formatter.Format(66.5, kInch, text, 64, kFeetInches, nullptr), 0);
    EXPECT_STREQ(text, L"5 feet 6.50 inches");

    // Removing it brings back the symbol's own marks.
    ASSERT_EQ(formatter.SetSymbolFormattingString(kFeetInches, L""), 0);
    ASSERT_EQ(formatter.Format(66.5, kInch, text, 64, kFeetInches, nullptr), 0);
    EXPECT_STREQ(text, L"5'6.50\"");
    EXPECT_EQ(formatter.SetSymbolFormattingString(kFeetInches, nullptr), 0) << "nothing to remove";
    EXPECT_EQ(formatter.SetSymbolFormattingString(0xF02001, L"{0} x"), 1) << "unknown symbol";

    // Doubled braces are literal, and the numbers may come in any order.
    ASSERT_EQ(formatter.SetSymbolFormattingString(kFeetInches, L"{{{1}in {0}ft}}"), 0);
    ASSERT_EQ(formatter.Format(66.5, kInch, text, 64, kFeetInches, nullptr), 0);
    EXPECT_STREQ(text, L"{6.50in 5ft}");
    ASSERT_EQ(formatter.Parse(L"{6.50in 5ft}", value, kInch), 0);
    EXPECT_NEAR(value, 66.5, 1e-12);
}

TEST_F(TypedInput, LongTextsReadLikeShortOnes) {
    // Thousands of separating spaces outgrow the reader's fixed working memory.
    std::wstring const text = L"2.5" + std::wstring(3000, L' ') + L"m";
    double value = 0;
    ASSERT_EQ(formatter.Parse(text.c_str(), value, kMeter), 0);
    EXPECT_DOUBLE_EQ(value, 2.5);
    std::wstring garbage(5000, L'(');
    EXPECT_EQ(formatter.Parse(garbage.c_str(), value, kMeter), 2);
}

TEST_F(TypedInput, NumbersFollowTheFormattersSigns) {
    units::UnitsFormatter f(L"en-US");
    f.SetNegativeSign(L"--");
    wchar_t const arabic[10] = {0x660, 0x661, 0x662, 0x663, 0x664, 0x665, 0x666, 0x667, 0x668, 0x669};
    ASSERT_EQ(f.SetNativeDigits(arabic), 0);
    wchar_t text[32];
    ASSERT_EQ(f.Format(-12.5, kMeter, text, 32, 0x202001, nullptr), 0);
    EXPECT_STREQ(text, L"--\u0661\u0662.\u0665\u0660 m");
    double value = 0;
    ASSERT_EQ(f.Parse(text, value, kMeter), 0);
    EXPECT_DOUBLE_EQ(value, -12.5);
    EXPECT_EQ(f.Parse(L"-12.5 m", value, kMeter), 2) << "a lone hyphen is no longer a sign";
}
