// Unit symbols as the formatter writes and reads them: feet and inches, degrees and
// bearings, ordinary and offset units, expressions of units, and custom symbols; then
// the evaluation of hand-built parse lists where only that reaches a case.
#include <gtest/gtest.h>

#include <atomic>
#include <cmath>
#include <memory>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "KxCoreUnitsUI/UnitsFormatter.h"
#include "KxCoreUnitsUI/UnitsManager.h"
#include "KxUnitsFormatterImp.h"
#include "KxUnitsSymbols.h"
#include "KxUnitsSymbols2.h"
#include "ManagerTest.h"

namespace units = kxnorth::platform::core::units;
using Dims = int[units::kDimensionCount];

namespace {

constexpr Dims kAngle = {0, 0, 0, 0, 0, 0, 0}, kLength = {1, 0, 0, 0, 0, 0, 0}, kArea = {2, 0, 0, 0, 0, 0, 0},
               kVolume = {3, 0, 0, 0, 0, 0, 0}, kTime = {0, 0, 1, 0, 0, 0, 0}, kMass = {0, 1, 0, 0, 0, 0, 0},
               kVelocity = {1, 0, -1, 0, 0, 0, 0}, kAcceleration = {1, 0, -2, 0, 0, 0, 0},
               kMeterSecond2 = {1, 0, 2, 0, 0, 0, 0}, kForce = {1, 1, -2, 0, 0, 0, 0},
               kTorque = {2, 1, -2, 0, 0, 0, 0}, kPower = {2, 1, -3, 0, 0, 0, 0},
               kConductance = {-2, -1, 3, 2, 0, 0, 0}, kTemperature = {0, 0, 0, 0, 1, 0, 0},
               kTemperatureRate = {0, 0, -1, 0, 1, 0, 0};

// Base units per unit, for expected values.
constexpr double kIn = 0.0254, kFt = 0.3048, kDeg = M_PI / 180, kLbf = 4.4482216152605;
constexpr int kInch = 0x2016, kDegree = 0x8002, kSecond = 0x2C001;
// Catalogue symbols: feet and inches (decimal, decimal with dash, fraction, fraction
// with dash, inches, inches with dash), minutes and seconds, degrees, bearings, "45d".
constexpr int kFtIn = 0x502016, kFtInDash = 0x602016, kFtInFrac = 0x702016, kFtInFracDash = 0x802016,
              kInFrac = 0x902016, kInFracDash = 0xA02016, kMinSec = 0x52C001, kDms = 0x408002,
              kBearing = 0x508002, kDmsD = 0x608002;
// 45°30'15.25" and 29°59'59.9999"
constexpr double kSample = 45 + 30.0 / 60 + 15.25 / 3600, kAlmostThirty = 29 + 59.0 / 60 + 59.9999 / 3600;

std::string Narrow(std::wstring const& w) {
    std::string s;
    for (wchar_t c : w) s += c < 128 ? std::string(1, static_cast<char>(c)) : "<" + std::to_string(c) + ">";
    return s;
}

class Symbols : public kxtest::ManagerTest<> {
protected:
    // `value` in the symbol's unit, written at `precision`; "<fail n>" on an error.
    std::wstring Write(int symbol, double value, int precision) {
        f.SetNumberDecimalPrecision(precision);
        wchar_t buffer[128];
        int const r = f.Format(value, symbol & 0xFFFFF, buffer, 128, symbol, nullptr);
        return r == 0 ? std::wstring(buffer) : L"<fail " + std::to_wstring(r) + L">";
    }
    // `text` read as a quantity of `dims`, in base units; NaN when refused.
    double Read(std::wstring const& text, Dims const& dims) {
        double base = 0;
        return f.Parse(text.c_str(), base, dims, 0) == 0 ? base : std::nan("");
    }
    units::UnitsFormatterImp f{L"en-US"};
};

struct WriteRow {
    int symbol;
    double value;  // in the symbol's unit
    int precision;
    wchar_t const* expected;
};

}  // namespace

TEST_F(Symbols, WritesEachStyleWithCarriesSignsAndReducedFractions) {
    WriteRow const rows[] = {
        // Every feet-and-inches style, and minutes and seconds of a time.
        {kFtInFracDash, 66.5, 3, L"5'-6-1/2\""}, {kFtInFrac, 66.5, 3, L"5'6 1/2\""}, {kInFrac, 66.5, 3, L"66 1/2\""},
        {kInFracDash, 66.5, 3, L"66-1/2\""}, {kFtInDash, 66.5, 2, L"5'-6.50\""}, {kFtIn, 66.5, 2, L"5'6.50\""},
        {kMinSec, 330, 2, L"5'30.00\""},
        // Rounding to twelve inches carries into the feet, before the split as well.
        {kFtInFrac, 11.97, 3, L"1'0\""}, {kFtInFracDash, 143.99, 3, L"12'-0\""}, {kInFrac, 11.97, 3, L"12\""},
        {kFtInFrac, 59.8, 0, L"5'0\""}, {kFtIn, 11.999, 0, L"1'0\""}, {kFtInDash, 143.999, 2, L"12'-0.00\""},
        {kFtIn, 11.995, 2, L"1'0.00\""}, {kFtIn, 11.994, 2, L"0'11.99\""},
        {kFtIn, 1.005, 2, L"0'1.01\""},  // stored just below 1.005
        {kFtIn, -143.999, 2, L"-12'0.00\""}, {kMinSec, 3599.999, 2, L"60'0.00\""},
        // Under one foot the minus stays.
        {kFtInFracDash, -6, 3, L"-0'-6\""}, {kFtInFrac, -6, 3, L"-0'6\""}, {kFtIn, -0.25, 2, L"-0'0.25\""},
        {kFtInFracDash, -0.5, 3, L"-0'-1/2\""}, {kFtInFracDash, -66.5, 3, L"-5'-6-1/2\""},
        {kInFracDash, -66.5, 3, L"-66-1/2\""}, {kInFrac, -0.5, 3, L"-1/2\""},
        // Zero, and fractions under an inch never as "0 1/2".
        {kFtInFracDash, 0, 3, L"0'-0\""}, {kInFrac, 0.01, 3, L"0\""}, {kInFrac, 0.5, 3, L"1/2\""},
        {kFtInFracDash, 0.5, 3, L"0'-1/2\""}, {kInFrac, 0.1875, 4, L"3/16\""}, {kInFrac, 2.75, 4, L"2 3/4\""},
        {kInFracDash, 2.0625, 4, L"2-1/16\""},
        // Degrees, minutes and seconds at each precision.
        {kDms, kSample, 0, L"46\u00B0"}, {kDms, kSample, 1, L"45\u00B030'"}, {kDms, kSample, 3, L"45\u00B030'15\""},
        {kDms, kSample, 5, L"45\u00B030'15.3\""}, {kDms, kSample, 7, L"45\u00B030'15.250\""},
        {kDms, 1234.5, 2, L"1,234\u00B030'"}, {kDmsD, kSample, 4, L"45d30'15\""},
        {kDms, 59.9999, 2, L"60\u00B00'"}, {kDms, kAlmostThirty, 4, L"30\u00B00'0\""},
        {kDms, kAlmostThirty, 7, L"30\u00B00'0.000\""}, {kDms, kAlmostThirty, 8, L"29\u00B059'59.9999\""},
        {kDms, 10 + 59.5 / 3600, 3, L"10\u00B01'0\""}, {kDms, -0.5, 2, L"-0\u00B030'"},
        {kDms, -kSample, 6, L"-45\u00B030'15.25\""}, {kDms, -0.25 / 3600, 6, L"-0\u00B00'0.25\""},
        // A carry into the degrees adds one whatever the sign: the format's established output.
        {kDms, -45.5, 0, L"-44\u00B0"}, {kDms, -10.99999, 2, L"-9\u00B00'"}, {kDms, -kAlmostThirty, 4, L"-28\u00B00'0\""},
        // Bearings by quadrant, and the cardinal directions.
        {kBearing, 0, 2, L"E"}, {kBearing, 90, 2, L"N"}, {kBearing, -90, 2, L"S"}, {kBearing, -180, 2, L"W"},
        {kBearing, 450, 2, L"N"}, {kBearing, 30, 2, L"N 60\u00B00' E"}, {kBearing, 120, 2, L"N 30\u00B00' W"},
        {kBearing, -60, 2, L"S 30\u00B00' E"}, {kBearing, -120, 2, L"S 30\u00B00' W"},
        {kBearing, 330, 2, L"S 60\u00B00' E"}, {kBearing, 90 - kSample, 6, L"N 45\u00B030'15.25\" E"},
        {kBearing, 0.00001, 2, L"N 90\u00B00' E"}, {kBearing, 45.5, 0, L"N 45\u00B0 E"},
        // Ordinary and offset units.
        {0x202001, 2.5, 2, L"2.50 m"}, {0x22A002, 20, 2, L"20.00\u00B0C"}, {0x22A003, -40, 2, L"-40.00\u00B0F"},
    };
    for (WriteRow const& r : rows) {
        SCOPED_TRACE(::testing::Message() << std::hex << r.symbol << std::dec << " " << r.value << " P" << r.precision);
        EXPECT_EQ(Narrow(Write(r.symbol, r.value, r.precision)), Narrow(r.expected));
    }
}

TEST_F(Symbols, ReadsTypedMarksBearingsAndExpressions) {
    struct Row {
        wchar_t const* text;
        Dims const& dims;
        double base;
    } const rows[] = {
        // Feet and inches in every form the writers use, and typographic marks.
        {L"5'-6\"", kLength, 66 * kIn}, {L"5' 6 1/2\"", kLength, 66.5 * kIn}, {L"6 1/2\"", kLength, 6.5 * kIn},
        {L"5'", kLength, 60 * kIn}, {L"5'6", kLength, 66 * kIn}, {L"-5'-6-1/2\"", kLength, -66.5 * kIn},
        {L"-0'6.00\"", kLength, -6 * kIn}, {L"-1/2\"", kLength, -0.5 * kIn}, {L"5' - 6\"", kLength, 66 * kIn}, {L"6 - 1/2\"", kLength, 6.5 * kIn},
        {L"1/2'", kLength, 6 * kIn}, {L"5'1/2\"", kLength, 60.5 * kIn}, {L"5 1/2'", kLength, 66 * kIn},
        {L"5\u2032 6\u2033", kLength, 66 * kIn}, {L"5\u2019-6\u201D", kLength, 66 * kIn},
        // The same marks are minutes and seconds in a time.
        {L"5'30\"", kTime, 330}, {L"5' - 6", kTime, 306},
        // Degrees, minutes and seconds; the seconds' mark may be left out.
        {L"45d 30.5'", kAngle, (45 + 30.5 / 60) * kDeg},
        {L"1/2\u00B0", kAngle, 0.5 * kDeg}, {L"36\"", kAngle, 0.01 * kDeg}, {L"-0\u00B030'", kAngle, -0.5 * kDeg},
        {L"45\u00B0 30' 15\"", kAngle, (45 + 30.0 / 60 + 15.0 / 3600) * kDeg},
        {L"45\u00B030'15", kAngle, (45 + 30.0 / 60 + 15.0 / 3600) * kDeg},
        // Bearings as angles from east.
        {L"S 30\u00B0 E", kAngle, -60 * kDeg}, {L"N 45\u00B030' W", kAngle, 135.5 * kDeg},
        {L"N 45.5\u00B0 E", kAngle, 44.5 * kDeg}, {L"N 45d E", kAngle, 45 * kDeg}, {L"W", kAngle, 180 * kDeg},
        // Numbers, fractions and mixed numbers.
        {L"-0 1/2 in", kLength, -0.5 * kIn}, {L"5-1/2 in", kLength, 5.5 * kIn}, {L"3 3/4", kTime, 3.75},
        // Units combine by space, dot, dash, quotient and powers; equal operators from the left.
        {L"2 ft m", kArea, 2 * kFt}, {L"2 ft\u00B7m", kArea, 2 * kFt}, {L"2 ft-lbf", kTorque, 2 * kFt * kLbf},
        {L"2 ft\u00B3", kVolume, 2 * kFt * kFt * kFt}, {L"2 ft^2", kArea, 2 * kFt * kFt}, {L"2 ft^1", kLength, 2 * kFt},
        {L"2 m/s\u00B7s", kLength, 2}, {L"2 m/s/s", kAcceleration, 2}, {L"2 m\u00B7s^2", kMeterSecond2, 2},
        {L"2 ft/s^2", kAcceleration, 2 * kFt}, {L"2 m/(s s)", kAcceleration, 2}, {L"2 (m)", kLength, 2},
        {L"2 m/((s))", kVelocity, 2}, {L"2 (m/s)\u00B7s", kLength, 2}, {L"2 \uFF08m/s\uFF09", kVelocity, 2},
        // Letters whose unit depends on the quantity.
        {L"2 N m", kTorque, 2}, {L"3 W", kPower, 3}, {L"3 S", kConductance, 3}, {L"5 d", kTime, 5 * 86400},
        {L"5 g", kMass, 0.005}, {L"5 g", kAngle, 5 * M_PI / 200},
        // Offset units convert after a number and are differences in arithmetic.
        {L"20 \u00B0C", kTemperature, 293.15}, {L"98.6 \u00B0F", kTemperature, 310.15},
        {L"5 \u00B0C/min", kTemperatureRate, 5.0 / 60}, {L"9 \u00B0F/s", kTemperatureRate, 5},
    };
    for (Row const& r : rows) {
        SCOPED_TRACE(Narrow(r.text));
        EXPECT_NEAR(Read(r.text, r.dims), r.base, 1e-9 * std::max(1.0, std::fabs(r.base)));
    }
}

TEST_F(Symbols, RefusesMalformedText) {
    struct Row {
        wchar_t const* text;
        Dims const& dims;
    } const rows[] = {
        // A sign inside the inches, marks out of order or repeated, parts without the foot mark.
        {L"5'6 -1/2\"", kLength}, {L"5'6'", kLength}, {L"5\"6'", kLength},
        {L"5'6\"7", kLength}, {L"5'6\" in", kLength}, {L"'5", kLength}, {L"\"", kLength}, {L"5'6 1/0\"", kLength},
        {L"5 6\"", kLength}, {L"- 5'", kLength}, {L"5' -", kLength}, {L"5' - ", kLength}, {L"5 - 6\"", kLength},
        {L"5 - 6", kTime}, {L"5'", kMass}, {L"5\"", kMass},
        // Minutes and seconds carry no sign and need their marks; degrees only in an angle.
        {L"45\u00B030'15\"-5", kAngle}, {L"45\u00B030", kAngle},
        {L"45\u00B030\"", kAngle}, {L"\u00B045", kAngle}, {L"45\u00B0\u00B0", kAngle}, {L"45'30\u00B0", kAngle},
        {L"45\u00B030'15\" 2", kAngle}, {L"45\u00B0", kLength},
        // Bearings need both letters, an angle between them, at most 90 degrees.
        {L"N 95\u00B0 E", kAngle}, {L"N 45\u00B0", kAngle}, {L"45\u00B0 E", kAngle}, {L"N E", kAngle},
        {L"E 30\u00B0", kAngle}, {L"N 45 E", kAngle}, {L"N 45\u00B0 E 5", kAngle}, {L"N -30\u00B0 E", kAngle},
        {L"5 N", kAngle}, {L"S 10'", kAngle}, {L"N S 30\u00B0 E", kAngle}, {L"5 E", kForce},
        // Malformed numbers and fractions.
        {L"5 1/-2 in", kLength}, {L"5 1/0 in", kLength}, {L"5 6 in", kLength}, {L"1/2/3 in", kLength},
        {L" ", kLength}, {L"1/2 \u00B0C", kTemperature}, {L"\u00B0C", kTemperature}, {L"20 \u00B0C \u00B0C", kTemperature},
        // Numbers are never multiplied; powers are whole and at least 1, after a unit.
        {L"2\u00B73 ft", kLength}, {L"3 ft\u00B72", kLength}, {L"2 ft^-1", kArea}, {L"2 ft^1.5", kArea},
        {L"2 ft^", kArea}, {L"2 ^2", kArea}, {L"2 \u00B2", kArea}, {L"\u00B2", kArea}, {L"^2", kArea},
        // Precedence: (m/s)·s is no acceleration; operators and parentheses must pair.
        {L"2 m/s\u00B7s", kAcceleration}, {L"2 (m", kLength}, {L"2 (m))", kLength}, {L") 2 m", kLength},
        {L"2 m (", kLength}, {L"\u00B72 m", kLength}, {L"2 m\u00B7", kLength}, {L"2 m\u00B7 ", kLength},
    };
    for (Row const& r : rows) {
        SCOPED_TRACE(Narrow(r.text));
        EXPECT_TRUE(std::isnan(Read(r.text, r.dims))) << Read(r.text, r.dims);
    }
}

// A custom string restyles a symbol's numbers, each written by the symbol's component
// writer, and generates the fraction forms for reading.
TEST_F(Symbols, CustomStringsWriteComponentsAndReadEveryFractionForm) {
    struct Row {
        int symbol;
        wchar_t const* custom;
        double value;
        int precision;
        wchar_t const* written;
    } const rows[] = {
        {kFtInFracDash, L"{0}|{1}", 66.5, 3, L"5|6 1/2"}, {kFtInFrac, L"{0}|{1}", 60.01, 3, L"5|0"},
        {kFtInFrac, L"{0}|{1}", -6, 3, L"-0|6"}, {kFtIn, L"{1}|{0}", 66.5, 3, L"6.500|5"},
        {kDms, L"{0}|{1}|{2}", kSample, 6, L"45|30|15.25"}, {kDms, L"{0}|{1}|{2}", kSample, 0, L"46|0|0"},
        {kBearing, L"{0}|{1}|{2}", 30, 2, L"60|0|0"},
    };
    for (Row const& r : rows) {
        SCOPED_TRACE(Narrow(r.written));
        ASSERT_EQ(f.SetSymbolFormattingString(r.symbol, r.custom), 0);
        EXPECT_EQ(Narrow(Write(r.symbol, r.value, r.precision)), Narrow(r.written));
        ASSERT_EQ(f.SetSymbolFormattingString(r.symbol, L""), 0);
    }
    ASSERT_EQ(f.SetSymbolFormattingString(kFtInFrac, L"{1} in {0} ft"), 0);
    for (auto [text, inches] : {std::pair{L"6 in 5 ft", 66.0}, {L"1/2 in 5 ft", 60.5}, {L"6 1/2 in 5 ft", 66.5}}) {
        SCOPED_TRACE(Narrow(text));
        EXPECT_NEAR(Read(text, kLength), inches * kIn, 1e-12);
    }
    EXPECT_TRUE(std::isnan(Read(L"6 1/0 in 5 ft", kLength)));
    EXPECT_EQ(f.SetSymbolFormattingString(kFtInFrac, L"{0}'{0}\""), 1) << "a repeated index";
    EXPECT_EQ(f.SetSymbolFormattingString(kInFrac, L"{0}'{1}\""), 1) << "inches have one number";
    EXPECT_EQ(f.SetSymbolFormattingString(kFtIn, L"{0}'{2}\""), 1) << "no third number";
}

// parse(format(x)) is x at the shown resolution, for every composite style at every
// precision, over values of both signs and values that carry.
TEST_F(Symbols, RoundTripAtEveryPrecision) {
    std::mt19937 random(7);
    std::uniform_real_distribution<double> any(-400.0, 400.0);
    std::vector<double> values;
    for (int i = 0; i < 150; ++i) values.push_back(any(random));
    for (double near : {0.0, 12.0, 29.0, 30.0, 36.0, 90.0, 180.0}) {
        for (double nudge : {-1e-2, -1e-4, -1e-9, 1e-9, 1e-4}) values.push_back(near + nudge), values.push_back(-near - nudge);
    }
    for (int symbol : {kFtIn, kFtInDash, kFtInFrac, kFtInFracDash, kInFrac, kInFracDash, kMinSec, kDms, kDmsD, kBearing}) {
        bool const angle = (symbol & 0xFFFFF) == kDegree, fraction = symbol >= kFtInFrac && symbol <= kInFracDash;
        double const unitBase = angle ? kDeg : symbol == kMinSec ? 1 : kIn;
        Dims const& dims = angle ? kAngle : symbol == kMinSec ? kTime : kLength;
        for (int precision = 0; precision <= 7; ++precision) {
            double const step = fraction ? 1.0 / (1 << std::min(precision, 6))
                                : !angle ? std::pow(10.0, -precision)
                                : precision == 0 ? 1.0 : precision <= 2 ? 1.0 / 60
                                : std::pow(10.0, -std::max(0, precision - 4)) / 3600;
            for (double value : values) {
                std::wstring const text = Write(symbol, value, precision);
                SCOPED_TRACE(::testing::Message() << std::hex << symbol << std::dec << " P" << precision << " " << value
                                                  << " " << Narrow(text));
                double const back = Read(text, dims) / unitBase;
                ASSERT_FALSE(std::isnan(back));
                double difference = std::fabs(back - value);
                if (symbol == kBearing) difference = std::fabs(std::remainder(back - value, 360.0));
                // A carry into the degrees of a negative angle is positive on purpose.
                if (angle && symbol != kBearing && value < 0 && std::floor(-value + step / 2) != std::floor(-value)) continue;
                EXPECT_LE(difference, step / 2 + 1e-9);
            }
        }
    }
}

// The unitless default symbol is the unit's translated name written right after the
// number; asked for by symbol 0 or by a dimensionless quantity it is the same symbol,
// and each locale reads its own name back.
TEST_F(Symbols, UnitlessDefaultIsTheUnitsNameAndReadsBack) {
    struct Row {
        wchar_t const* locale;
        wchar_t const* written;
    } const rows[] = {
        {L"en-US", L"2.50unitless"}, {L"de-DE", L"2.50Einheitenlos"}, {L"fr-FR", L"2.50sans unit\u00E9"},
    };
    constexpr Dims kNone = {0, 0, 0, 0, 0, 0, 0};
    for (Row const& r : rows) {
        SCOPED_TRACE(Narrow(r.locale));
        units::UnitsFormatter const f(r.locale);
        wchar_t bySymbol[64] = L"", byDefault[64] = L"", byDims[64] = L"";
        ASSERT_EQ(f.Format(2.5, 0x1001, bySymbol, 64, 0x101001, nullptr), 0);
        ASSERT_EQ(f.Format(2.5, 0x1001, byDefault, 64, 0, nullptr), 0);
        ASSERT_EQ(f.Format(2.5, kNone, byDims, 64, 0, nullptr), 0);
        EXPECT_EQ(Narrow(bySymbol), Narrow(r.written));
        EXPECT_EQ(Narrow(byDefault), Narrow(r.written));
        EXPECT_EQ(Narrow(byDims), Narrow(r.written));
        double value = 0;
        ASSERT_EQ(f.Parse(r.written, value, 0x1001), 0);
        EXPECT_DOUBLE_EQ(value, 2.5);
    }
}

// Sizes at the edge are checked end to end; here what only the symbols decide.
TEST_F(Symbols, WritesNoLengthForATimeAndKeepsTheMarksOfInfinity) {
    units::PrimeDoublePrimeSymbol2 const ftIn(QStringLiteral("ftin"), kFtInFracDash, true, true, true);
    units::DegreePrimeDoublePrimeSymbol const dms(L"dms", false);
    units::GenericSymbol const meter(L"m", 0x2001, 0);
    units::GenericSymbol2 const joined(QStringLiteral("m"), 0x2001, units::SimpleFormatSymbolBase::eNoSpace);
    units::SimpleFormatSymbol const pcs(L"pcs", 0);
    f.SetNumberDecimalPrecision(2);
    wchar_t buffer[32];
    EXPECT_EQ(ftIn.Format(INFINITY, kLength, buffer, 32, f), 4);
    EXPECT_EQ(Narrow(buffer), "inf\"");
    EXPECT_EQ(joined.Format(2.5, kLength, buffer, 32, f), 2);
    EXPECT_EQ(Narrow(buffer), "2.50m");
    EXPECT_EQ(pcs.Format(1, kAngle, buffer, 5, f), 5);
    EXPECT_EQ(Narrow(buffer), " pcs");
    EXPECT_EQ(pcs.Format(1, kAngle, buffer, 4, f), -1);
    units::IFormatSymbol const* const all[] = {&ftIn, &dms, &meter};
    for (units::IFormatSymbol const* s : all) {
        EXPECT_LT(s->Format(1, kTime, buffer, 32, f), 0) << "a time is neither length nor angle";
        EXPECT_EQ(s->Format(1, kLength, nullptr, 32, f), -1);
    }
    EXPECT_EQ(dms.FormatNumber(3, 1, kAngle, buffer, 32, f), -1) << "no such component";
    EXPECT_EQ(dms.FormatNumber(-1, 1, kAngle, buffer, 32, f), -1);
    EXPECT_EQ(meter.FormatNumber(1, 1, kLength, buffer, 32, f), -1);
    units::GenericSymbolEx2 const named(QStringLiteral("m"), 0x2001, 0, nullptr);
    EXPECT_EQ(std::wstring(named.GetSymbolName()), L"m") << "no name: the text";
    EXPECT_EQ(std::wstring(units::GenericSymbolEx(L"m", 0x2001, 0, L"").GetSymbolName()), L"") << "empty is a name";
}

// The seconds' decimals are written without touching the formatter's precision, so a
// thread reading the settings meanwhile never sees a changed value.
TEST_F(Symbols, SecondsDecimalsLeaveTheFormatterUnchanged) {
    f.SetNumberDecimalPrecision(6);
    std::atomic<bool> done{false};
    std::atomic<int> changed{0};
    std::thread reader([&] {
        while (!done.load()) changed += f.GetNumberDecimalPrecision() != 6;
    });
    wchar_t buffer[64];
    for (int i = 0; i < 20000; ++i) f.Format(kSample, kDegree, buffer, 64, kDms, nullptr);
    done = true;
    reader.join();
    EXPECT_EQ(changed.load(), 0);
    EXPECT_EQ(Narrow(buffer), Narrow(L"45\u00B030'15.25\""));
}

// --- Hand-built parse lists: the forms a symbol reads and the custom symbol's checks.

namespace {

units::ParseList Numbers(std::initializer_list<double> values) {
    units::ParseList list;
    for (double v : values) list.emplace_back(new units::NumberSymbol(v, std::signbit(v) ? units::eNSNegativeSign : 0), true);
    return list;
}

double Result(units::ParseList const& list) {
    auto const* r = dynamic_cast<units::ResultSymbol const*>(list.front().Get());
    return r != nullptr ? r->GetConverter().GetFactor() : std::nan("");
}

}  // namespace

TEST(SymbolForms, ParseNumberReadsEachFormAndLeavesARefusedList) {
    units::PrimeDoublePrimeSymbol2 const ftIn(QStringLiteral("a"), kFtIn, true, false, false),
        frac(QStringLiteral("b"), kFtInFrac, true, true, false), inches(QStringLiteral("c"), kInFrac, false, true, false),
        minSec(QStringLiteral("d"), kMinSec, true, false, false), none(QStringLiteral("e"), 0x102016, true, true, true);
    units::DegreePrimeDoublePrimeSymbol const dms(L"dms", false);
    units::GenericSymbol const inch(L"in", kInch, 0);
    struct Row {
        units::IFormatSymbol const& symbol;
        int form;
        std::initializer_list<double> numbers;
        double base;  // NaN: refused
        int maxIndex;
    } const rows[] = {
        {ftIn, 0, {5, 6}, 66 * kIn, 1}, {ftIn, 0, {-5, 6}, -66 * kIn, 1},  // the feet's sign covers the inches
        {ftIn, 0, {-0.0, 6}, -6 * kIn, 1}, {ftIn, 0, {5, -6}, 66 * kIn, 1}, {minSec, 0, {5, 6}, 66, 1},
        {ftIn, 1, {5, 1, 2}, NAN, -1}, {frac, 1, {5, 1, 2}, 60.5 * kIn, 2}, {frac, 1, {5, 1, 0}, NAN, 2},
        {frac, 2, {-5, 6, 1, 2}, -66.5 * kIn, 3}, {frac, 2, {5, 6, 1}, NAN, 3}, {inches, 0, {5}, 5 * kIn, 0},
        {inches, 1, {1, 0}, INFINITY, 1},  // no test of the denominator in this form
        {inches, 2, {5, 1, 0}, NAN, 2}, {none, 0, {5, 6}, NAN, -1}, {none, -1, {5, 6}, NAN, -1},
        {dms, 0, {-0.0, 30, 0}, -0.5 * kDeg, 2}, {dms, 0, {-45, 30, 15}, -(45.5 + 15.0 / 3600) * kDeg, 2},
        {dms, 1, {45, 30, 15}, NAN, -1}, {dms, 0, {45, 30}, NAN, 2}, {inch, 0, {5}, 5 * kIn, 0},
        {inch, 1, {5}, NAN, -1}, {inch, 0, {}, NAN, 0},
    };
    for (Row const& r : rows) {
        SCOPED_TRACE(::testing::Message() << "row " << &r - rows << " form " << r.form);
        EXPECT_EQ(r.symbol.GetMaxIndex(r.form), r.maxIndex);
        units::ParseList list = Numbers(r.numbers);
        list.emplace_back(new units::SpaceSymbol, true);  // what follows the numbers stays
        std::size_t const before = list.size();
        int const result = r.symbol.ParseNumber(list, r.form);
        if (std::isnan(r.base)) {
            EXPECT_EQ(result, 1);
            EXPECT_EQ(list.size(), before) << "a refusal leaves the list";
            continue;
        }
        ASSERT_EQ(result, 0);
        EXPECT_EQ(list.size(), before - r.numbers.size() + 1);
        EXPECT_TRUE(Result(list) == r.base || std::fabs(Result(list) - r.base) < 1e-12) << Result(list);
    }
    units::ParseList notANumber;
    notANumber.emplace_back(new units::DivisionSymbol, true);
    notANumber.emplace_back(new units::NumberSymbol(5, 0), true);
    EXPECT_EQ(inch.ParseNumber(notANumber, 0), 1);
}

TEST(SymbolForms, CustomSymbolNeedsOneIndexPerComponentAndReadsWhereverItStands) {
    units::PrimeDoublePrimeSymbol2 const ftIn{QStringLiteral("ftin"), kFtIn, true, false, false};
    using P = std::vector<std::wstring>;
    struct Row {
        P pieces;
        std::vector<int> indices;
        int form;
        bool valid;
    } const rows[] = {
        {{L"", L"ft "}, {0, 1}, 0, true}, {{L"ft"}, {0, 1}, 0, false}, {{L"", L"a", L"b", L"c"}, {0, 1}, 0, false},
        {{L"", L"ft ", L"in"}, {-1, 0}, 0, false}, {{L"x"}, {}, 1, true}, {{L"x", L"y"}, {}, 1, false},
        {{L"", L"x"}, {0}, 1, false},
    };
    for (Row const& r : rows) {
        SCOPED_TRACE(::testing::Message() << r.pieces.size() << " pieces, form " << r.form);
        units::CustomSymbol const custom(&ftIn, r.pieces, r.indices, r.form);
        EXPECT_EQ(custom.IsValid(), r.valid);
        EXPECT_EQ(r.valid, custom.GetMaxIndex(r.form) != -3 && custom.GetSymbolName() != nullptr);
    }
    EXPECT_FALSE(units::CustomSymbol(nullptr, P{L""}, {}, 0).IsValid());

    units::CustomSymbol const inchesFirst(&ftIn, P{L"", L"in ", L"ft"}, {1, 0}, 0);
    for (int position : {0, 1, 2}) {
        SCOPED_TRACE(position);
        units::ParseList list = Numbers({6, 5});
        list.emplace(std::next(list.begin(), position), &inchesFirst, false);
        ASSERT_EQ(units::IParseSymbol::Calculate(list, kLength), 0);
        EXPECT_NEAR(Result(list), 66 * kIn, 1e-12);
    }
    for (auto numbers : {std::initializer_list<double>{5}, {6, 5, 4}}) {
        units::ParseList list = Numbers(numbers);
        list.emplace_back(&inchesFirst, false);
        EXPECT_NE(units::IParseSymbol::Calculate(list, kLength), 0);
    }
    std::vector<units::CustomSymbol*> nested;
    EXPECT_EQ(inchesFirst.GenerateCustomSymbols(nested, {}, {}), 3) << "custom symbols do not nest";
}

TEST(UnitsOwnPtr, DeletesOnlyWhatItOwns) {
    struct Counted : units::IParseSymbol {
        int* alive;
        explicit Counted(int* a) : alive(a) { ++*alive; }
        ~Counted() override { --*alive; }
        int Calculate(units::ParseList&, units::ParseIterator&, bool, units::DimensionVector const&) const override {
            return 1;
        }
    };
    int alive = 0;
    Counted kept(&alive);
    {
        units::UnitsOwnPtr<units::IParseSymbol const> slot(new Counted(&alive), true);
        slot.Reset(&kept, false);  // the owned one goes
        EXPECT_EQ(alive, 1);
        slot.Reset(new Counted(&alive), true);  // the borrowed one stays
        units::UnitsOwnPtr<units::IParseSymbol const> moved(std::move(slot));
        EXPECT_EQ(slot.Get(), nullptr);
        EXPECT_EQ(alive, 2);
    }
    EXPECT_EQ(alive, 1);
}
