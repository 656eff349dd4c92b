// Runs of quantities (`5 ft 6 in`), sums and differences (`1.5 m + 20 cm`), and the
// diagnostics of what cannot be read: where, why, and the group separator warning.
#include <gtest/gtest.h>

#include <cmath>
#include <cwchar>
#include <algorithm>
#include <iterator>
#include <string>

#include "KxCoreUnitsUI/ParseDiagnostics.h"
#include "KxCoreUnitsUI/UnitsFormatter.h"
#include "ManagerTest.h"

namespace units = kxnorth::platform::core::units;
using Reason = units::ParseFailureReason;

namespace {

constexpr int kMeter = 0x2001, kFoot = 0x2017, kInch = 0x2016, kSecond = 0x2C001, kMinute = 0x2C016;
constexpr int kOunce = 0x5019, kMeterPerSecond = 0x28001, kDegree = 0x8002, kKelvin = 0x2A001;
constexpr int kSquareFoot = 0x3003;

std::string Narrow(wchar_t const* w) {
    std::string s;
    for (; *w; ++w) s += *w < 128 ? static_cast<char>(*w) : '?';
    return s;
}

struct Reading {
    wchar_t const* text;
    int unit;
    double expected;
};

class QuantitiesAsTyped : public kxtest::ManagerTest<> {
protected:
    void ExpectReadings(units::UnitsFormatter const& f, Reading const* rows, std::size_t count) {
        for (std::size_t i = 0; i < count; ++i) {
            Reading const& r = rows[i];
            SCOPED_TRACE(Narrow(r.text));
            double value = NAN;
            ASSERT_EQ(f.Parse(r.text, value, r.unit), 0);
            EXPECT_NEAR(value, r.expected, 1e-9 * std::max(1.0, std::fabs(r.expected)));
        }
    }
    template <std::size_t N>
    void ExpectReadings(units::UnitsFormatter const& f, Reading const (&rows)[N]) {
        ExpectReadings(f, rows, N);
    }
    units::UnitsFormatter formatter{L"en-US"};
};

}  // namespace

TEST_F(QuantitiesAsTyped, RunsOfOneDimensionAddUp) {
    Reading const rows[] = {
        {L"5 ft 6 in", kInch, 66}, {L"5 feet 6 inches", kInch, 66}, {L"5ft6in", kInch, 66},
        {L"5 ft 6 1/2 in", kInch, 66.5}, {L"1 yd 2 ft 3 in", kInch, 63}, {L"1 m 20 cm", kMeter, 1.2},
        {L"2 h 30 min", kMinute, 150}, {L"1 h 2 min 3 s", kSecond, 3723}, {L"3 lb 4 oz", kOunce, 52},
        {L"6 ft 1/4 in", kInch, 72.25}, {L"  5 ft   6 in  ", kInch, 66},
        // Marks mix with words; a hyphen straight after a unit or mark joins.
        {L"5' 6 in", kInch, 66}, {L"5'6 in", kInch, 66}, {L"5ft-6in", kInch, 66}, {L"5'-6 in", kInch, 66},
        {L"45\u00B0-30'", kDegree, 45.5},
        // The leading minus covers the whole run, as in -5'6".
        {L"-5 ft 6 in", kInch, -66}, {L"-5ft-6in", kInch, -66}, {L"-0 ft 6 in", kInch, -6},
        // A dash between whole inches and their fraction.
        {L"6-1/2 in", kInch, 6.5}, {L"5'-6-1/2\"", kInch, 66.5}, {L"5' 6 - 1/2\"", kInch, 66.5},
        {L"(2 ft)\u00B7(3 ft)", kSquareFoot, 6},
    };
    ExpectReadings(formatter, rows);
}

TEST_F(QuantitiesAsTyped, SumsAndDifferencesOfWholeQuantities) {
    Reading const rows[] = {
        {L"1.5 m + 20 cm", kMeter, 1.7}, {L"1.5 m+20 cm", kMeter, 1.7}, {L"1.5 m +20 cm", kMeter, 1.7},
        {L"10 ft - 6 in", kFoot, 9.5}, {L"10 ft -6 in", kFoot, 9.5}, {L"2 h - 15 min", kMinute, 105},
        {L"5 ft -6 in", kInch, 54}, {L"-5 ft -6 in", kInch, -66}, {L"5 ft + -6 in", kInch, 54},
        {L"5' -6\"", kInch, 54}, {L"45\u00B0 -30'", kDegree, 44.5}, {L"1 m - 1 m", kMeter, 0},
        // + and - bind weaker than the unit operators: a sum of two speeds.
        {L"2 m/s + 3 km/h", kMeterPerSecond, 2 + 3 / 3.6}, {L"1 ft 6 in + 1 m", kMeter, 1.4572},
    };
    ExpectReadings(formatter, rows);
}

TEST_F(QuantitiesAsTyped, ThePositiveSignSettingChangesNoReading) {
    units::UnitsFormatter f(L"en-US");
    f.SetPositiveSign(L"+");
    Reading const rows[] = {
        {L"1.5 m +20 cm", kMeter, 1.7}, {L"1.5 m + 20 cm", kMeter, 1.7}, {L"1.5 m+20 cm", kMeter, 1.7},
        {L"-5 ft -6 in", kInch, -66}, {L"5 ft -6 in", kInch, 54}, {L"+5 ft 6 in", kInch, 66},
    };
    ExpectReadings(f, rows);
}

TEST_F(QuantitiesAsTyped, TheNegativeSignIsTheFormattersOwn) {
    // An odd sign shows any hyphen taken for granted: the sign is "~", while a dash
    // keeps its places as joiner and, after a space, as the operator of a difference.
    units::UnitsFormatter f(L"en-US");
    f.SetNegativeSign(L"~");
    Reading const rows[] = {
        {L"~5 ft 6 in", kInch, -66}, {L"5 ft ~6 in", kInch, 54},  {L"5ft~6in", kInch, 66},
        {L"10 ft - 6 in", kInch, 114}, {L"5ft-6in", kInch, 66}, {L"~5 ft ~6 in", kInch, -66},
    };
    ExpectReadings(f, rows);
    double value = 42;
    EXPECT_EQ(f.Parse(L"-5 ft 6 in", value, kInch), 2) << "a dash is no sign: it may not open the text";
    EXPECT_EQ(value, 42);
}

TEST_F(QuantitiesAsTyped, RefusedTextsStayRefused) {
    struct Row {
        wchar_t const* text;
        int unit;
    } const rows[] = {
        // What the evaluation refuses and the readings must not rescue.
        {L"3 ft 2", kInch}, {L"5 -1/2 in", kInch}, {L"2*3 ft", kFoot}, {L"3 ft*2", kFoot}, {L"ft", kFoot},
        {L"/5 ft", kFoot}, {L"5 ft/", kFoot}, {L"1/0 in", kInch}, {L"N 95\u00B0 E", kDegree}, {L"- 5 ft", kFoot},
        // Boundaries of runs and sums.
        {L"5 ft 6", kInch}, {L"5 ft 6 in 2", kInch}, {L"5 ft 6 kg", kInch}, {L"5 kg 6 g", kInch},
        {L"5 ft +", kInch}, {L"+ 5 ft", kInch}, {L"5 ft + + 6 in", kInch}, {L"5 ft - - 6 in", kInch},
        {L"5 + 6 in", kInch}, {L"5 ft + in", kInch}, {L"5 ft 6 in +", kInch}, {L"5ft-", kInch},
        {L"5 ft 1/0 in", kInch}, {L"5 ft (6 in", kInch}, {L"5 ft 6 in)", kInch}, {L"+", kInch},
        // Marks of a run repeated or out of order are slips, not sums.
        {L"5'6'", kInch}, {L"5\"6'", kInch}, {L"45\u00B030\"", kDegree}, {L"45'30\u00B0", kDegree},
        // A temperature with its offset adds to nothing.
        {L"20 \u00B0C + 5 \u00B0C", kKelvin}, {L"20 \u00B0C 5 K", kKelvin}, {L"20 K + 5 \u00B0F", kKelvin},
    };
    for (Row const& r : rows) {
        SCOPED_TRACE(Narrow(r.text));
        double value = 42;
        EXPECT_EQ(formatter.Parse(r.text, value, r.unit), 2);
        EXPECT_EQ(value, 42);
    }
}

TEST_F(QuantitiesAsTyped, DiagnosticsPointAtTheCause) {
    struct Row {
        wchar_t const* text;
        int unit;
        Reason reason;
        int offset;
    } const rows[] = {
        {L"", kMeter, Reason::eEmptyText, 0},
        {L"   ", kMeter, Reason::eEmptyText, 0},
        {L"5 furlongz", kMeter, Reason::eUnknownWord, 9},  // "furlong" is a unit
        {L"5 ft 6 iz", kInch, Reason::eUnknownWord, 7},
        {L"2*3 ft", kFoot, Reason::eUnknownWord, 1},
        {L"5 ft +", kInch, Reason::eOperatorWithoutOperands, 5},
        {L"/5 ft", kFoot, Reason::eOperatorWithoutOperands, 0},
        {L"5 ft/", kFoot, Reason::eOperatorWithoutOperands, 4},
        {L"2 m\u00B7 + 1 m", kMeter, Reason::eOperatorWithoutOperands, 3},
        {L"(5 ft", kFoot, Reason::eUnmatchedParenthesis, 0},
        {L"5 ft)", kFoot, Reason::eUnmatchedParenthesis, 4},
        {L"2 (m (s)", kFoot, Reason::eUnmatchedParenthesis, 2},
        {L"1/0 in", kInch, Reason::eZeroDenominator, 2},
        {L"5 ft 6 1/0 in", kInch, Reason::eZeroDenominator, 9},
        {L"2 ft^0", kSquareFoot, Reason::eInvalidPower, 5},
        {L"2 ft^1.5", kSquareFoot, Reason::eInvalidPower, 5},
        {L"5 ft 6", kInch, Reason::eNumberWithoutUnit, 5},
        {L"5 ft 6 in 2", kInch, Reason::eNumberWithoutUnit, 10},
        {L"5 -1/2 in", kInch, Reason::eNumberWithoutUnit, 0},
        {L"ft", kFoot, Reason::eUnitWithoutNumber, 0},
        {L"5 ft + in", kInch, Reason::eUnitWithoutNumber, 7},
        {L"5 kg", kMeter, Reason::eWrongQuantity, 0},
        {L"5 ft 6 kg", kInch, Reason::eWrongQuantity, 5},
        {L"20 \u00B0C + 5 K", kKelvin, Reason::eOffsetUnitInSum, 3},
        {L"5'6'", kInch, Reason::eMarkOutOfOrder, 3},
        {L"N 95\u00B0 E", kDegree, Reason::eUnitWithoutNumber, 0},
    };
    for (Row const& r : rows) {
        SCOPED_TRACE(Narrow(r.text));
        units::ParseDiagnostics d;
        double value = 42;
        EXPECT_EQ(units::DiagnoseParse(formatter, r.text, value, r.unit, d), 2);
        EXPECT_EQ(value, 42);
        EXPECT_EQ(d.reason, r.reason) << units::ParseFailureReasonText(d.reason);
        EXPECT_EQ(d.offset, r.offset);
    }
}

TEST_F(QuantitiesAsTyped, DiagnosticsAgreeWithParse) {
    units::ParseDiagnostics d;
    double value = 0;
    ASSERT_EQ(units::DiagnoseParse(formatter, L"5 ft 6 in", value, kInch, d), 0);
    EXPECT_EQ(value, 66);
    EXPECT_EQ(d.reason, Reason::eNone);
    EXPECT_EQ(d.offset, -1);

    EXPECT_EQ(units::DiagnoseParse(formatter, nullptr, value, kInch, d), 2);
    EXPECT_EQ(d.reason, Reason::eNoText);
    EXPECT_EQ(units::DiagnoseParse(formatter, L"5 m", value, 0x2FFF, d), 2);
    EXPECT_EQ(d.reason, Reason::eUnknownUnit);

    // The wrong quantity names what was found: a mass.
    ASSERT_EQ(units::DiagnoseParse(formatter, L"3 kg", value, kMeter, d), 2);
    int const mass[units::kDimensionCount] = {0, 1, 0, 0, 0, 0, 0};
    EXPECT_TRUE(std::equal(std::begin(mass), std::end(mass), std::begin(d.foundDimensions)));

}

TEST_F(QuantitiesAsTyped, GroupSeparatorInsideAGroupWarnsWithoutChangingTheResult) {
    struct Row {
        wchar_t const* text;
        int warningOffset;  // -1: no warning
        double meters;
    } const rows[] = {
        {L"1,5 m", 1, 15},           {L"1,234 m", -1, 1234},      {L"1,234,567.5 m", -1, 1234567.5},
        {L"12,34 m", 2, 1234},       {L"1234,567 m", 4, 1234567}, {L"1,2345 m", 1, 12345},
        {L"1,234,56 m", 5, 123456},  {L"2 m 1,5 cm", 5, 2.15},    {L"1.5 m", -1, 1.5},
    };
    for (Row const& r : rows) {
        SCOPED_TRACE(Narrow(r.text));
        units::ParseDiagnostics d;
        double value = 0;
        ASSERT_EQ(units::DiagnoseParse(formatter, r.text, value, kMeter, d), 0);
        EXPECT_NEAR(value, r.meters, 1e-9 * r.meters);
        EXPECT_EQ(d.warnings, r.warningOffset < 0 ? units::eNoParseWarning : units::eGroupSeparatorInsideGroup);
        EXPECT_EQ(d.warningOffset, r.warningOffset);
    }
    EXPECT_STREQ(units::ParseWarningText(units::eGroupSeparatorInsideGroup), "group separator inside a group");

    // Groups of 3 then 2, as written in India: 12,34,567 is right, 1,234,567 is not.
    units::UnitsFormatter f(L"en-US");
    int const sizes[] = {3, 2};
    ASSERT_EQ(f.SetNumberGroupSizes(sizes, 2), 0);
    units::ParseDiagnostics d;
    double value = 0;
    ASSERT_EQ(units::DiagnoseParse(f, L"12,34,567 m", value, kMeter, d), 0);
    EXPECT_EQ(d.warningOffset, -1);
    ASSERT_EQ(units::DiagnoseParse(f, L"1,234,567 m", value, kMeter, d), 0);
    EXPECT_EQ(d.warningOffset, 1);
    // The separators are the formatter's: with "." between groups, 1.5 m is the slip.
    units::UnitsFormatter swapped(L"en-US");
    ASSERT_EQ(swapped.SetNumberDecimalSeparator(L";"), 0);
    ASSERT_EQ(swapped.SetNumberGroupSeparator(L"."), 0);
    ASSERT_EQ(swapped.SetNumberDecimalSeparator(L","), 0);
    ASSERT_EQ(units::DiagnoseParse(swapped, L"1.5 m", value, kMeter, d), 0);
    EXPECT_EQ(value, 15);
    EXPECT_EQ(d.warningOffset, 1);
    ASSERT_EQ(units::DiagnoseParse(swapped, L"1,5 m", value, kMeter, d), 0);
    EXPECT_EQ(value, 1.5);
    EXPECT_EQ(d.warningOffset, -1);
    // The warning comes with a failure too.
    EXPECT_EQ(units::DiagnoseParse(formatter, L"1,5 kg", value, kMeter, d), 2);
    EXPECT_EQ(d.warningOffset, 1);
    EXPECT_EQ(d.reason, Reason::eWrongQuantity);
}
