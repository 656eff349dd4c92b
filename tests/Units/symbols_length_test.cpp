// Feet and inches: every style written over carries, zero, negatives and reduced
// fractions; the typed forms read back; the dash; the forms of ParseNumber and of
// custom symbols; and the round trip over many values.
#include <memory>
#include <random>

#include "symbols_test_support.h"

using namespace symbols_test;

namespace {

struct Style {
    int symbol;
    bool showFeet, fraction, dash;
};

// The catalogue's feet-and-inches symbols and the time group's minutes and seconds.
constexpr Style kDecimal{0x502016, true, false, false};
constexpr Style kDecimalDash{0x602016, true, false, true};
constexpr Style kFraction{0x702016, true, true, false};
constexpr Style kFractionDash{0x802016, true, true, true};
constexpr Style kInches{0x902016, false, true, false};
constexpr Style kInchesDash{0xA02016, false, true, true};
constexpr Style kMinutesSeconds{0x52C001, true, false, false};
constexpr Style kAllLengthStyles[] = {kDecimal, kDecimalDash, kFraction, kFractionDash, kInches, kInchesDash};

// Both families: the configuration's (QString) and the wide-text twin.
std::unique_ptr<units::IFormatSymbol> Make(Style const& s, bool fromQString) {
    if (fromQString) {
        return std::make_unique<units::PrimeDoublePrimeSymbol2>(QStringLiteral("ftin"), s.symbol, s.showFeet,
                                                                 s.fraction, s.dash);
    }
    return std::make_unique<units::PrimeDoublePrimeSymbol>(L"ftin", s.symbol, s.showFeet, s.fraction, s.dash);
}

class FeetAndInches : public WithFormatter {
protected:
    // The style's text for `inches` at `precision`, checked to be the same in both families.
    static std::wstring WriteInches(Style const& style, double inches, int precision) {
        bool const isTime = style.symbol == kMinutesSeconds.symbol;
        double const base = ToBase(inches, isTime ? kSecond : kInch);
        std::wstring const text = Write(*Make(style, true), base, isTime ? kTime : kLength, precision);
        EXPECT_EQ(Narrow(Write(*Make(style, false), base, isTime ? kTime : kLength, precision)), Narrow(text));
        return text;
    }
};

struct FormatRow {
    Style style;
    double inches;
    int precision;
    wchar_t const* expected;
};

void CheckFormats(std::initializer_list<FormatRow> rows, std::wstring (*write)(Style const&, double, int)) {
    for (FormatRow const& r : rows) {
        SCOPED_TRACE(Narrow(r.expected));
        EXPECT_EQ(Narrow(write(r.style, r.inches, r.precision)), Narrow(r.expected)) << r.inches;
    }
}

}  // namespace

TEST_F(FeetAndInches, EachStyleWritesSixtySixAndAHalfInches) {
    CheckFormats({{kFractionDash, 66.5, 3, L"5'-6-1/2\""},
                  {kFraction, 66.5, 3, L"5'6 1/2\""},
                  {kInches, 66.5, 3, L"66 1/2\""},
                  {kInchesDash, 66.5, 3, L"66-1/2\""},
                  {kDecimalDash, 66.5, 2, L"5'-6.50\""},
                  {kDecimal, 66.5, 2, L"5'6.50\""},
                  {kMinutesSeconds, 330, 2, L"5'30.00\""}},
                 WriteInches);
}

TEST_F(FeetAndInches, RoundingThatReachesTwelveInchesCarriesIntoTheFeet) {
    CheckFormats({{kFraction, 11.97, 3, L"1'0\""},
                  {kFractionDash, 143.99, 3, L"12'-0\""},
                  {kInches, 11.97, 3, L"12\""},
                  {kFraction, 59.8, 0, L"5'0\""},
                  {kFractionDash, 59.8, 0, L"5'-0\""},
                  // Decimal inches are rounded before the split as well.
                  {kDecimal, 11.999, 0, L"1'0\""},
                  {kDecimal, 143.999, 2, L"12'0.00\""},
                  {kDecimalDash, 143.999, 2, L"12'-0.00\""},
                  {kDecimal, 11.995, 2, L"1'0.00\""},
                  {kDecimal, 11.994, 2, L"0'11.99\""},
                  {kDecimal, 1.005, 2, L"0'1.01\""},  // stored just below 1.005
                  {kDecimal, -143.999, 2, L"-12'0.00\""},
                  {kMinutesSeconds, 3599.999, 2, L"60'0.00\""}},
                 WriteInches);
}

TEST_F(FeetAndInches, NegativeUnderOneFootKeepsSign) {
    CheckFormats({{kFractionDash, -6, 3, L"-0'-6\""},
                  {kFraction, -6, 3, L"-0'6\""},
                  {kDecimalDash, -6, 2, L"-0'-6.00\""},
                  {kDecimal, -0.25, 2, L"-0'0.25\""},
                  {kFractionDash, -0.5, 3, L"-0'-1/2\""},
                  {kFractionDash, -66.5, 3, L"-5'-6-1/2\""},
                  {kInches, -66.5, 3, L"-66 1/2\""},
                  {kInchesDash, -66.5, 3, L"-66-1/2\""},
                  {kInches, -0.5, 3, L"-1/2\""}},
                 WriteInches);
}

TEST_F(FeetAndInches, ZeroAndFractionsUnderAnInch) {
    CheckFormats({{kFractionDash, 0, 3, L"0'-0\""},
                  {kFraction, 0, 3, L"0'0\""},
                  {kDecimal, 0, 2, L"0'0.00\""},
                  {kInches, 0, 3, L"0\""},
                  {kInches, 0.01, 3, L"0\""},
                  {kInches, 0.5, 3, L"1/2\""},  // never 0 1/2"
                  {kFractionDash, 0.5, 3, L"0'-1/2\""}},
                 WriteInches);
}

TEST_F(FeetAndInches, FractionsAreReduced) {
    CheckFormats({{kInches, 0.5, 4, L"1/2\""},
                  {kInches, 0.25, 4, L"1/4\""},
                  {kInches, 0.1875, 4, L"3/16\""},
                  {kInches, 2.75, 4, L"2 3/4\""},
                  {kInches, 2.0625, 4, L"2 1/16\""},
                  {kInchesDash, 2.0625, 4, L"2-1/16\""}},
                 WriteInches);
}

TEST_F(FeetAndInches, FormatReportsTheLengthAndNeedsRoomForTheTerminator) {
    auto const symbol = Make(kFractionDash, true);
    Formatter().SetNumberDecimalPrecision(3);
    double const base = ToBase(66.5, kInch);
    wchar_t buffer[16];
    // `5'-6-1/2"` is 9 characters.
    EXPECT_EQ(symbol->Format(base, kLength, buffer, 10, Formatter()), 9);
    EXPECT_EQ(std::wstring(buffer), L"5'-6-1/2\"");
    EXPECT_EQ(symbol->Format(base, kLength, buffer, 9, Formatter()), -1);
    EXPECT_EQ(symbol->Format(base, kLength, nullptr, 16, Formatter()), -1);
    EXPECT_LT(symbol->Format(base, kTime, buffer, 16, Formatter()), 0) << "a time is no length";
    // Infinity has no feet to split off.
    EXPECT_EQ(symbol->Format(std::numeric_limits<double>::infinity(), kLength, buffer, 16, Formatter()), 4);
    EXPECT_EQ(std::wstring(buffer), L"inf\"");
}

TEST_F(FeetAndInches, FormatNumberWritesOneComponent) {
    Formatter().SetNumberDecimalPrecision(3);
    struct Row {
        Style style;
        int index;
        double inches;
        wchar_t const* expected;
    } const rows[] = {
        {kFractionDash, 0, 66.5, L"5"},  {kFractionDash, 1, 66.5, L"6 1/2"}, {kFraction, 1, 60.01, L"0"},
        {kFraction, 0, -6, L"-0"},       {kInches, 0, 66.5, L"66 1/2"},      {kInches, 0, 0.5, L"1/2"},
        {kDecimal, 1, 66.5, L"6.500"},
    };
    for (Row const& r : rows) {
        SCOPED_TRACE(Narrow(r.expected));
        wchar_t buffer[32];
        int const n = Make(r.style, true)->FormatNumber(r.index, ToBase(r.inches, kInch), kLength, buffer, 32,
                                                        Formatter());
        EXPECT_EQ(Narrow(buffer), Narrow(r.expected));
        EXPECT_EQ(n, static_cast<int>(std::wcslen(r.expected)) + 1);
    }
}

TEST(FeetAndInchesForms, MaxIndexPerStyleAndForm) {
    struct Row {
        Style style;
        int forms[5];  // forms -1 to 3
    } const rows[] = {
        {kDecimal, {-1, 1, -1, -1, -1}},  {kDecimalDash, {-1, 1, -1, -1, -1}},    {kMinutesSeconds, {-1, 1, -1, -1, -1}},
        {kFraction, {-1, 1, 2, 3, -1}},   {kFractionDash, {-1, 1, 2, 3, -1}},     {kInches, {-1, 0, 1, 2, -1}},
        {kInchesDash, {-1, 0, 1, 2, -1}}, {{0x102016, true, true, true}, {-1, -1, -1, -1, -1}},
    };
    for (Row const& r : rows) {
        for (int form = -1; form <= 3; ++form) {
            EXPECT_EQ(Make(r.style, false)->GetMaxIndex(form), r.forms[form + 1])
                << std::hex << r.style.symbol << " form " << form;
        }
    }
}

TEST(FeetAndInchesForms, ParseNumberReadsEachFormInInches) {
    constexpr double kFails = -1e300;
    struct Row {
        Style style;
        int form;
        std::vector<std::pair<double, int>> numbers;  // value, flags
        double inches;
    };
    double const inf = std::numeric_limits<double>::infinity();
    Row const rows[] = {
        {kDecimal, 0, {{5, 0}, {6, 0}}, 66},
        {kDecimal, 0, {{-5, 2}, {6, 0}}, -66},  // the feet's sign covers the inches
        {kDecimal, 0, {{-0.0, 2}, {6, 0}}, -6},
        {kDecimal, 0, {{5, 0}, {-6, 2}}, 66},
        {kMinutesSeconds, 0, {{5, 0}, {6, 0}}, 66},  // 66 seconds: read with twelve, as every style
        {kFraction, 1, {{5, 0}, {1, 0}, {2, 0}}, 60.5},
        {kFraction, 1, {{5, 0}, {1, 0}, {0, 0}}, kFails},
        {kFraction, 2, {{5, 0}, {6, 0}, {1, 0}, {2, 0}}, 66.5},
        {kFraction, 2, {{-5, 2}, {6, 0}, {1, 0}, {2, 0}}, -66.5},
        {kFraction, 2, {{5, 0}, {6, 0}, {1, 0}, {0, 0}}, kFails},
        {kInches, 0, {{5, 0}}, 5},
        {kInches, 1, {{1, 0}, {0, 0}}, inf},  // no test of the denominator in this form
        {kInches, 2, {{5, 0}, {1, 0}, {2, 0}}, 5.5},
        {kInches, 2, {{5, 0}, {1, 0}, {0, 0}}, kFails},
        {kDecimal, 1, {{5, 0}, {1, 0}, {2, 0}}, kFails},  // no such form
        {kFraction, 2, {{5, 0}, {6, 0}, {1, 0}}, kFails},  // too few numbers
    };
    for (Row const& r : rows) {
        SCOPED_TRACE(::testing::Message() << std::hex << r.style.symbol << " form " << r.form);
        units::ParseList list;
        for (auto const& [value, flags] : r.numbers) list.emplace_back(new units::NumberSymbol(value, flags), true);
        list.emplace_back(new units::SpaceSymbol, true);  // what follows the numbers stays
        std::size_t const before = list.size();
        int const result = Make(r.style, true)->ParseNumber(list, r.form);
        if (r.inches == kFails) {
            EXPECT_EQ(result, 1);
            EXPECT_EQ(list.size(), before) << "a refusal leaves the list";
            continue;
        }
        ASSERT_EQ(result, 0);
        ASSERT_EQ(list.size(), 2u);
        auto const* value = dynamic_cast<units::ResultSymbol const*>(list.front().Get());
        ASSERT_NE(value, nullptr);
        // In the symbol's own unit: inches, or seconds for the time group's symbol.
        EXPECT_DOUBLE_EQ(FromBase(value->GetConverter().GetFactor(), r.style.symbol & 0xFFFFF), r.inches);
    }
    units::ParseList notANumber;
    notANumber.emplace_back(new units::DivisionSymbol, true);
    notANumber.emplace_back(new units::NumberSymbol(5, 0), true);
    EXPECT_EQ(Make(kInches, true)->ParseNumber(notANumber, 0), 1);
}

TEST(FeetAndInchesForms, GeneratedCustomSymbolsCoverTheFractionForms) {
    using Pieces = std::vector<std::wstring>;
    struct Row {
        Style style;
        Pieces pieces;
        std::vector<int> indices;
        std::vector<Pieces> expectedPieces;  // one per custom symbol; empty: refused
        std::vector<std::vector<int>> expectedIndices;
    } const rows[] = {
        {kDecimal, {L"", L" ft ", L" in"}, {0, 1}, {{L"", L" ft ", L" in"}}, {{0, 1}}},
        {kFractionDash,
         {L"", L" ft ", L" in"},
         {0, 1},
         {{L"", L" ft ", L" in"}, {L"", L" ft ", L"/", L" in"}, {L"", L" ft ", L" ", L"/", L" in"}},
         {{0, 1}, {0, 1, 2}, {0, 1, 2, 3}}},
        {kFraction,
         {L"", L" in ", L" ft"},
         {1, 0},
         {{L"", L" in ", L" ft"}, {L"", L"/", L" in ", L" ft"}, {L"", L" ", L"/", L" in ", L" ft"}},
         {{1, 0}, {1, 2, 0}, {1, 2, 3, 0}}},
        {kFraction, {L"", L"ft"}, {0, 1}, {{L"", L"ft"}, {L"", L"ft", L"/"}, {L"", L"ft", L" ", L"/"}},
         {{0, 1}, {0, 1, 2}, {0, 1, 2, 3}}},
        {kInches, {L"", L" in"}, {0}, {{L"", L" in"}, {L"", L"/", L" in"}, {L"", L" ", L"/", L" in"}},
         {{0}, {0, 1}, {0, 1, 2}}},
        {kFraction, {L"", L"'", L"\""}, {0, 0}, {}, {}},  // a repeated index
        {kInches, {L"", L"'", L"\""}, {0, 1}, {}, {}},    // too many numbers for inches
    };
    for (Row const& r : rows) {
        SCOPED_TRACE(::testing::Message() << std::hex << r.style.symbol);
        auto const base = Make(r.style, true);
        std::vector<units::CustomSymbol*> out;
        int const result = base->GenerateCustomSymbols(out, r.pieces, r.indices);
        ASSERT_EQ(result, r.expectedPieces.empty() ? 1 : 0);
        ASSERT_EQ(out.size(), r.expectedPieces.size());
        for (std::size_t i = 0; i < out.size(); ++i) {
            EXPECT_EQ(out[i]->GetForm(), static_cast<int>(i));
            EXPECT_EQ(out[i]->GetStrings(), r.expectedPieces[i]);
            EXPECT_EQ(out[i]->GetIndices(), r.expectedIndices[i]);
            delete out[i];
        }
    }
}

TEST(FeetAndInchesTyped, EveryFormTheWritersUseReadsBack) {
    struct Row {
        wchar_t const* text;
        double inches;
    } const rows[] = {
        {L"5'6\"", 66},          {L"5'-6\"", 66},        {L"5' 6 1/2\"", 66.5},    {L"6 1/2\"", 6.5},
        {L"5'", 60},             {L"5'6", 66},           {L"5'-6-1/2\"", 66.5},   {L"-5'-6-1/2\"", -66.5},
        {L"-0'-6\"", -6},        {L"-0'6.00\"", -6},     {L"66-1/2\"", 66.5},      {L"-66 1/2\"", -66.5},
        {L"-1/2\"", -0.5},       {L"5' - 6\"", 66},      {L"6 - 1/2\"", 6.5},      {L"1/2'", 6},
        {L"5'1/2\"", 60.5},      {L"5 1/2'", 66},        {L"0'-0\"", 0},           {L"12'0.00\"", 144},
        {L"5\u2032 6\u2033", 66}, {L"5\u2019-6\u201D", 66}, {L"5'6.25\"", 66.25}, {L"5' 6", 66},
    };
    for (Row const& r : rows) {
        SCOPED_TRACE(Narrow(r.text));
        double base = 0;
        ASSERT_TRUE(Evaluate(r.text, kLength, base));
        EXPECT_NEAR(FromBase(base, kInch), r.inches, 1e-9);
    }
}

TEST(FeetAndInchesTyped, MalformedFormsFail) {
    for (wchar_t const* text : {
             L"5' -6\"",      // a sign after a space is a sign, and the inches have none
             L"5'6 -1/2\"",   // nor does their fraction
             L"5'6'",  L"5\"6'", L"5'6\"7", L"5'6\" in", L"'5", L"\"", L"5'6 1/0\"", L"5 6\"",
             L"- 5'",          // a dash at the start
             L"5' -",          // a dash followed by nothing
             L"5' - ",         // or only by spaces
             L"5 - 6\"",       // parts of a length without the foot mark
             L"5'6 in",
         }) {
        SCOPED_TRACE(Narrow(text));
        double base = 0;
        EXPECT_FALSE(Evaluate(text, kLength, base)) << FromBase(base, kInch);
    }
}

TEST(FeetAndInchesTyped, MarksMeanMinutesAndSecondsInATime) {
    double base = 0;
    ASSERT_TRUE(Evaluate(L"5'30\"", kTime, base));
    EXPECT_DOUBLE_EQ(base, 330);
    ASSERT_TRUE(Evaluate(L"2'", kTime, base));
    EXPECT_DOUBLE_EQ(base, 120);
    // The dash between marks joins in any quantity; between plain numbers only in a length.
    ASSERT_TRUE(Evaluate(L"5' - 6", kTime, base));
    EXPECT_DOUBLE_EQ(base, 306);
    EXPECT_FALSE(Evaluate(L"5 - 6", kTime, base));
    EXPECT_FALSE(Evaluate(L"5'", kMass, base));
    EXPECT_FALSE(Evaluate(L"5\"", kMass, base));
}

// parse(format(x)) is x at the shown resolution, and writing it again gives the same
// text, for every style, over values of both signs and values that carry.
TEST_F(FeetAndInches, RoundTripHoldsForEveryStyle) {
    std::mt19937 random(7);
    std::uniform_real_distribution<double> anyLength(-400.0, 400.0);
    std::vector<double> values;
    for (int i = 0; i < 300; ++i) values.push_back(anyLength(random));
    for (double feet = -3; feet <= 3; ++feet) {
        for (double nudge : {-0.04, -0.004, -0.0004, 0.0, 0.0004, 0.004}) values.push_back(feet * 12 + nudge);
    }
    std::vector<Style> styles(std::begin(kAllLengthStyles), std::end(kAllLengthStyles));
    styles.push_back(kMinutesSeconds);  // minutes and seconds of a time, in the same forms
    for (Style const& style : styles) {
        bool const isTime = style.symbol == kMinutesSeconds.symbol;
        Dims const& dims = isTime ? kTime : kLength;
        int const unit = isTime ? kSecond : kInch;
        auto const symbol = Make(style, true);
        for (int precision : style.fraction ? std::vector<int>{0, 1, 3, 4} : std::vector<int>{0, 1, 2, 3}) {
            double const resolution =
                style.fraction ? 1.0 / static_cast<double>(1 << precision) : std::pow(10.0, -precision);
            for (double value : values) {
                std::wstring const text = Write(*symbol, ToBase(value, unit), dims, precision);
                SCOPED_TRACE(::testing::Message() << std::hex << style.symbol << std::dec << " P" << precision << " "
                                                  << value << " " << Narrow(text));
                double base = 0;
                ASSERT_TRUE(Evaluate(text, dims, base));
                double const back = FromBase(base, unit);
                EXPECT_LE(std::fabs(back - value), resolution / 2 + 1e-6);
                // A small negative that rounds to zero writes -0 (as the number format
                // does); reading it gives a zero that is written without the sign.
                if (back != 0.0) {
                    EXPECT_EQ(Narrow(Write(*symbol, base, dims, precision)), Narrow(text));
                }
            }
        }
    }
}
