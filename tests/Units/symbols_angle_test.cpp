// Angles: degrees, minutes and seconds at every precision, bearings by quadrant, the
// typed marks and bearings read back, and the round trip of each style.
#include <atomic>
#include <memory>
#include <random>
#include <thread>

#include "symbols_test_support.h"

using namespace symbols_test;

namespace {

enum class Kind { ePlain, eBearing, eLetterD };

std::unique_ptr<units::IFormatSymbol> MakeDms(Kind kind, bool fromQString) {
    bool const bearing = kind == Kind::eBearing;
    if (fromQString) {
        return std::make_unique<units::DegreePrimeDoublePrimeSymbol2>(QStringLiteral("dms"), bearing,
                                                                       /*degreeSign=*/kind != Kind::eLetterD);
    }
    if (kind == Kind::eLetterD) return nullptr;  // the wide-text class always writes the degree sign
    return std::make_unique<units::DegreePrimeDoublePrimeSymbol>(L"dms", bearing);
}

struct Row {
    Kind kind;
    double degrees;
    int precision;
    wchar_t const* expected;
};

// 45°30'15.25"
constexpr double kSample = 45.0 + 30.0 / 60 + 15.25 / 3600;
// 29°59'59.9999"
constexpr double kAlmostThirty = 29.0 + 59.0 / 60 + 59.9999 / 3600;

// The size of one unit of the last part shown at precision P, in degrees.
double Resolution(int precision) {
    if (precision == 0) return 1.0;
    if (precision <= 2) return 1.0 / 60;
    if (precision <= 4) return 1.0 / 3600;
    return std::pow(10.0, -(precision - 4)) / 3600;
}

}  // namespace

class Angles : public WithFormatter {
protected:
    // The text of `degrees`, checked to be the same from both families.
    static std::wstring WriteDegrees(Kind kind, double degrees, int precision) {
        double const base = ToBase(degrees, kDegree);
        std::wstring const text = Write(*MakeDms(kind, true), base, kAngle, precision);
        if (auto const twin = MakeDms(kind, false)) {
            EXPECT_EQ(Narrow(Write(*twin, base, kAngle, precision)), Narrow(text)) << "families differ";
        }
        return text;
    }

    static void CheckRows(std::initializer_list<Row> rows) {
        for (Row const& r : rows) {
            SCOPED_TRACE(::testing::Message() << r.degrees << " at P" << r.precision);
            EXPECT_EQ(Narrow(WriteDegrees(r.kind, r.degrees, r.precision)), Narrow(r.expected));
        }
    }
};

TEST_F(Angles, EachPrecisionWritesItsParts) {
    CheckRows({{Kind::ePlain, kSample, 0, L"46\u00B0"},
               {Kind::ePlain, 45.49, 0, L"45\u00B0"},
               {Kind::ePlain, kSample, 1, L"45\u00B030'"},
               {Kind::ePlain, kSample, 2, L"45\u00B030'"},
               {Kind::ePlain, 45.5, 2, L"45\u00B030'"},
               {Kind::ePlain, kSample, 3, L"45\u00B030'15\""},
               {Kind::ePlain, kSample, 4, L"45\u00B030'15\""},
               {Kind::ePlain, kSample, 5, L"45\u00B030'15.3\""},
               {Kind::ePlain, kSample, 6, L"45\u00B030'15.25\""},
               {Kind::ePlain, kSample, 7, L"45\u00B030'15.250\""},
               {Kind::ePlain, 0, 2, L"0\u00B00'"},
               {Kind::ePlain, 1234.5, 2, L"1,234\u00B030'"},
               {Kind::eLetterD, kSample, 4, L"45d30'15\""}});
}

TEST_F(Angles, RoundingCarriesThroughSecondsAndMinutes) {
    CheckRows({{Kind::ePlain, 59.9999, 2, L"60\u00B00'"},
               {Kind::ePlain, kAlmostThirty, 2, L"30\u00B00'"},
               {Kind::ePlain, kAlmostThirty, 4, L"30\u00B00'0\""},
               {Kind::ePlain, kAlmostThirty, 6, L"30\u00B00'0.00\""},
               {Kind::ePlain, kAlmostThirty, 7, L"30\u00B00'0.000\""},
               {Kind::ePlain, kAlmostThirty, 8, L"29\u00B059'59.9999\""},
               {Kind::ePlain, 10 + 59.5 / 3600, 3, L"10\u00B01'0\""},
               {Kind::ePlain, 10 + 14.5 / 3600, 3, L"10\u00B00'15\""}});
}

TEST_F(Angles, NegativeAnglesKeepTheirSignOnTheDegrees) {
    CheckRows({{Kind::ePlain, -0.5, 2, L"-0\u00B030'"},
               {Kind::ePlain, -10.5, 2, L"-10\u00B030'"},
               {Kind::ePlain, -kSample, 4, L"-45\u00B030'15\""},
               {Kind::ePlain, -kSample, 6, L"-45\u00B030'15.25\""},
               {Kind::ePlain, -0.25 / 3600, 6, L"-0\u00B00'0.25\""}});
}

// A carry into the degrees adds one whatever the sign: negative angles move toward
// positive. This is the format's established output, kept on purpose.
TEST_F(Angles, CarryIntoTheDegreesOfANegativeAngleIsPositive) {
    CheckRows({{Kind::ePlain, -45.5, 0, L"-44\u00B0"},
               {Kind::ePlain, -10.99999, 2, L"-9\u00B00'"},
               {Kind::ePlain, -kAlmostThirty, 4, L"-28\u00B00'0\""}});
}

TEST_F(Angles, BearingsByQuadrantAndCardinalDirections) {
    CheckRows({{Kind::eBearing, 0, 2, L"E"},
               {Kind::eBearing, 90, 2, L"N"},
               {Kind::eBearing, -90, 2, L"S"},
               {Kind::eBearing, 180, 2, L"W"},
               {Kind::eBearing, -180, 2, L"W"},
               {Kind::eBearing, 360, 2, L"E"},
               {Kind::eBearing, 450, 2, L"N"},
               {Kind::eBearing, 30, 2, L"N 60\u00B00' E"},
               {Kind::eBearing, 120, 2, L"N 30\u00B00' W"},
               {Kind::eBearing, -60, 2, L"S 30\u00B00' E"},
               {Kind::eBearing, -120, 2, L"S 30\u00B00' W"},
               {Kind::eBearing, 330, 2, L"S 60\u00B00' E"},
               {Kind::eBearing, 90 - kSample, 6, L"N 45\u00B030'15.25\" E"},
               {Kind::eBearing, 0.00001, 2, L"N 90\u00B00' E"},
               {Kind::eBearing, 45.5, 0, L"N 45\u00B0 E"}});
}

TEST_F(Angles, FormatCountsTheTerminatorAndRefusesWhatDoesNotFit) {
    auto const bearing = MakeDms(Kind::eBearing, true);
    auto const plain = MakeDms(Kind::ePlain, false);
    Formatter().SetNumberDecimalPrecision(2);
    wchar_t buffer[32];
    // "N 60°0' E" is 9 characters.
    EXPECT_EQ(bearing->Format(ToBase(30, kDegree), kAngle, buffer, 10, Formatter()), 10);
    EXPECT_EQ(bearing->Format(ToBase(30, kDegree), kAngle, buffer, 9, Formatter()), -1);
    EXPECT_EQ(bearing->Format(ToBase(90, kDegree), kAngle, buffer, 2, Formatter()), 2);
    EXPECT_EQ(std::wstring(buffer), L"N");
    EXPECT_EQ(bearing->Format(ToBase(90, kDegree), kAngle, buffer, 1, Formatter()), -1);
    // "45°30'" is 6 characters.
    EXPECT_EQ(plain->Format(ToBase(45.5, kDegree), kAngle, buffer, 7, Formatter()), 7);
    EXPECT_EQ(plain->Format(ToBase(45.5, kDegree), kAngle, buffer, 6, Formatter()), -1);
    EXPECT_EQ(plain->Format(ToBase(45.5, kDegree), kAngle, nullptr, 32, Formatter()), -1);
    EXPECT_LT(plain->Format(1.0, kLength, buffer, 32, Formatter()), 0) << "a length is no angle";
}

TEST_F(Angles, FormatNumberWritesDegreesMinutesAndSeconds) {
    struct NumberRow {
        Kind kind;
        double degrees;
        int precision, index;
        wchar_t const* expected;
    } const rows[] = {
        {Kind::ePlain, kSample, 6, 0, L"45"},   {Kind::ePlain, kSample, 6, 1, L"30"},
        {Kind::ePlain, kSample, 6, 2, L"15.25"}, {Kind::ePlain, kSample, 4, 2, L"15"},
        {Kind::ePlain, kSample, 0, 0, L"46"},   {Kind::ePlain, kSample, 0, 1, L"0"},
        {Kind::ePlain, -0.5, 2, 0, L"-0"},      {Kind::eBearing, 30, 2, 0, L"60"},
        {Kind::ePlain, kSample, 2, 3, nullptr}, {Kind::ePlain, kSample, 2, -1, nullptr},
    };
    for (NumberRow const& r : rows) {
        SCOPED_TRACE(::testing::Message() << r.degrees << " index " << r.index);
        Formatter().SetNumberDecimalPrecision(r.precision);
        wchar_t buffer[32];
        int const n = MakeDms(r.kind, true)->FormatNumber(r.index, ToBase(r.degrees, kDegree), kAngle, buffer, 32,
                                                          Formatter());
        if (r.expected == nullptr) {
            EXPECT_EQ(n, -1);
        } else {
            EXPECT_EQ(Narrow(buffer), Narrow(r.expected));
            EXPECT_EQ(n, static_cast<int>(std::wcslen(r.expected)) + 1);
        }
    }
}

// The seconds' decimals are written without touching the formatter's precision, so a
// thread reading the settings meanwhile never sees a changed value.
TEST_F(Angles, SecondsDecimalsLeaveTheFormatterUnchanged) {
    Formatter().SetNumberDecimalPrecision(6);
    auto const symbol = MakeDms(Kind::ePlain, true);
    std::atomic<bool> done{false};
    std::atomic<int> changed{0};
    std::thread reader([&] {
        while (!done.load()) {
            if (Formatter().GetNumberDecimalPrecision() != 6) ++changed;
        }
    });
    wchar_t buffer[64];
    for (int i = 0; i < 20000; ++i) symbol->Format(ToBase(kSample, kDegree), kAngle, buffer, 64, Formatter());
    done = true;
    reader.join();
    EXPECT_EQ(changed.load(), 0);
    EXPECT_EQ(Narrow(buffer), Narrow(L"45\u00B030'15.25\""));
}

TEST(AngleForms, ParseNumberReadsDegreesMinutesSeconds) {
    auto const symbol = MakeDms(Kind::ePlain, false);
    EXPECT_EQ(symbol->GetMaxIndex(0), 2);
    EXPECT_EQ(symbol->GetMaxIndex(1), -1);
    EXPECT_EQ(symbol->GetMaxIndex(-1), -1);
    struct ParseRow {
        std::vector<std::pair<double, int>> numbers;
        int form;
        double degrees;  // NaN: refused
    };
    double const refused = std::nan("");
    ParseRow const rows[] = {
        {{{45, 0}, {30, 0}, {15, 0}}, 0, 45 + 30.0 / 60 + 15.0 / 3600},
        {{{-45, 2}, {30, 0}, {15, 0}}, 0, -(45 + 30.0 / 60 + 15.0 / 3600)},
        {{{-0.0, 2}, {30, 0}, {0, 0}}, 0, -0.5},
        {{{45, 0}, {30, 0}, {15, 0}}, 1, refused},
        {{{45, 0}, {30, 0}}, 0, refused},
    };
    for (ParseRow const& r : rows) {
        units::ParseList list;
        for (auto const& [value, flags] : r.numbers) list.emplace_back(new units::NumberSymbol(value, flags), true);
        int const result = symbol->ParseNumber(list, r.form);
        if (std::isnan(r.degrees)) {
            EXPECT_EQ(result, 1);
            EXPECT_EQ(list.size(), r.numbers.size());
            continue;
        }
        ASSERT_EQ(result, 0);
        ASSERT_EQ(list.size(), 1u);
        auto const* value = dynamic_cast<units::ResultSymbol const*>(list.front().Get());
        ASSERT_NE(value, nullptr);
        EXPECT_NEAR(FromBase(value->GetConverter().GetFactor(), kDegree), r.degrees, 1e-12);
    }
}

TEST(AnglesTyped, MarksReadDegreesMinutesAndSeconds) {
    struct TypedRow {
        wchar_t const* text;
        double degrees;
    } const rows[] = {
        {L"45\u00B030'15\"", 45 + 30.0 / 60 + 15.0 / 3600},
        {L"45d30'", 45.5},
        {L"45\u00B0", 45},
        {L"45.5\u00B0", 45.5},
        {L"1/2\u00B0", 0.5},
        {L"30'", 0.5},
        {L"36\"", 0.01},
        {L"-45\u00B030'15\"", -(45 + 30.0 / 60 + 15.0 / 3600)},
        {L"-0\u00B030'", -0.5},
        {L"45\u00B0 30' 15\"", 45 + 30.0 / 60 + 15.0 / 3600},
        {L"45\u00B030'15", 45 + 30.0 / 60 + 15.0 / 3600},  // the seconds' mark may be left out
        {L"45\u00B030'15.25\"", kSample},
        {L"45d 30.5'", 45 + 30.5 / 60},
    };
    for (TypedRow const& r : rows) {
        SCOPED_TRACE(Narrow(r.text));
        double base = 0;
        ASSERT_TRUE(Evaluate(r.text, kAngle, base));
        EXPECT_NEAR(FromBase(base, kDegree), r.degrees, 1e-12);
    }
    // Minutes and seconds carry no sign of their own; each part needs its mark.
    for (wchar_t const* text : {L"45\u00B0-30'", L"45\u00B0 -30'", L"45\u00B030'15\"-5", L"45\u00B030",
                                L"45\u00B030\"", L"\u00B045", L"45\u00B0\u00B0", L"45'30\u00B0", L"45\u00B030'15\" 2"}) {
        SCOPED_TRACE(Narrow(text));
        double base = 0;
        EXPECT_FALSE(Evaluate(text, kAngle, base)) << FromBase(base, kDegree);
    }
    double base = 0;
    EXPECT_FALSE(Evaluate(L"45\u00B0", kLength, base)) << "degrees only where an angle is read";
}

TEST(AnglesTyped, BearingsReadAsAnglesFromEast) {
    struct TypedRow {
        wchar_t const* text;
        double degrees;
    } const rows[] = {
        {L"N 45\u00B030'15\" E", 90 - (45 + 30.0 / 60 + 15.0 / 3600)},
        {L"N 30\u00B0 E", 60},
        {L"N 30\u00B0 W", 120},
        {L"S 30\u00B0 E", -60},
        {L"S 30\u00B0 W", -120},
        {L"N 60\u00B00' E", 30},
        {L"N 45\u00B030' W", 135.5},
        {L"N 0\u00B0 E", 90},
        {L"N 90\u00B0 E", 0},
        {L"N 90\u00B0 W", 180},
        {L"S 90\u00B0 W", -180},
        {L"N 45.5\u00B0 E", 44.5},
        {L"N 45d E", 45},
        {L"N", 90},
        {L"S", -90},
        {L"E", 0},
        {L"W", 180},
    };
    for (TypedRow const& r : rows) {
        SCOPED_TRACE(Narrow(r.text));
        double base = 0;
        ASSERT_TRUE(Evaluate(r.text, kAngle, base));
        EXPECT_NEAR(FromBase(base, kDegree), r.degrees, 1e-9);
    }
    for (wchar_t const* text : {L"N 95\u00B0 E", L"N 45\u00B0", L"45\u00B0 E", L"N E", L"E 30\u00B0", L"N 45 E",
                                L"N 45\u00B0 E 5", L"N -30\u00B0 E", L"5 N", L"S 10'", L"N S 30\u00B0 E"}) {
        SCOPED_TRACE(Narrow(text));
        double base = 0;
        EXPECT_FALSE(Evaluate(text, kAngle, base)) << FromBase(base, kDegree);
    }
}

// parse(format(x)) is x at the shown resolution for every precision: positive
// angles including those that carry, negative angles whose rounding stays within
// their degree, and bearings all around the circle.
TEST_F(Angles, RoundTripHoldsForEveryStyle) {
    std::mt19937 random(11);
    std::uniform_real_distribution<double> anyAngle(0.0, 360.0);
    std::vector<double> values;
    for (int i = 0; i < 250; ++i) values.push_back(anyAngle(random));
    for (double near : {0.0, 1.0, 29.0, 30.0, 59.0, 90.0, 179.0, 180.0}) {
        for (double nudge : {-1e-4, -1e-6, -1e-9, 1e-9, 1e-6, 1e-4}) values.push_back(std::fabs(near + nudge));
    }
    for (int precision = 0; precision <= 7; ++precision) {
        double const resolution = Resolution(precision);
        for (double degrees : values) {
            for (Kind kind : {Kind::ePlain, Kind::eLetterD, Kind::eBearing}) {
                for (double sign : {1.0, -1.0}) {
                    double const angle = sign * degrees;
                    std::wstring const text = WriteDegrees(kind, angle, precision);
                    SCOPED_TRACE(::testing::Message() << angle << " P" << precision << " " << Narrow(text));
                    double base = 0;
                    ASSERT_TRUE(Evaluate(text, kAngle, base));
                    double back = FromBase(base, kDegree);
                    if (kind == Kind::eBearing) {
                        double expected = std::fmod(angle, 360.0);
                        if (expected <= -180) expected += 360;
                        if (expected > 180) expected -= 360;
                        double difference = std::fabs(back - expected);
                        difference = std::min(difference, 360 - difference);  // 180 and -180 meet
                        EXPECT_LE(difference, resolution / 2 + 1e-9);
                        continue;
                    }
                    if (sign < 0) {
                        // Only where the rounding stays within the degree: a carry into
                        // the degrees of a negative angle is positive on purpose.
                        double positive = 0;
                        ASSERT_TRUE(Evaluate(WriteDegrees(kind, degrees, precision), kAngle, positive));
                        if (std::floor(FromBase(positive, kDegree) + 1e-9) != std::floor(degrees)) continue;
                    }
                    EXPECT_LE(std::fabs(back - angle), resolution / 2 + 1e-9);
                }
            }
        }
    }
}
