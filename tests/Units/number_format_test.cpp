// Number text: formats, precision, grouping, signs, digits and buffer sizes.
#include <gtest/gtest.h>

#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <string>

#include "KxUnitsNumberFormat.h"

namespace units = kxnorth::platform::core::units;
using units::NumberSettings;

namespace {

std::string Narrow(std::wstring const& w) {
    std::string s;
    for (wchar_t c : w) s += c < 128 ? static_cast<char>(c) : '?';
    return s;
}

struct Row {
    char const* label;
    double value;
    std::wstring expected;
    int flags = 0;
};

void Check(NumberSettings const& s, std::initializer_list<Row> rows) {
    for (Row const& r : rows) {
        SCOPED_TRACE(r.label);
        wchar_t buffer[128];
        int const n = units::FormatNumber(s, r.value, buffer, 128, r.flags);
        ASSERT_GT(n, 0);
        EXPECT_EQ(std::wstring(buffer), r.expected) << Narrow(buffer);
        EXPECT_EQ(n, static_cast<int>(r.expected.size()) + 1);
    }
}

NumberSettings With(units::NumberFormat format, int precision) {
    NumberSettings s;
    s.format = format;
    s.precision = precision;
    return s;
}

}  // namespace

TEST(FormatNumber, NumberFormatGroupsTheWholePart) {
    Check(NumberSettings(), {{"defaults", 1234567.891, L"1,234,567.89"},
                             {"below a thousand", 999.994, L"999.99"},
                             {"rounding carries into a new group", 999999.999, L"1,000,000.00"},
                             {"negative", -1234.5, L"-1,234.50"},
                             {"whole number flag drops decimals", 1234.6, L"1,235", units::kWholeNumberOnly},
                             {"halves round to even like printf", 1234.5, L"1,234", units::kWholeNumberOnly}});
    NumberSettings s = With(units::eNFNumber, 0);
    Check(s, {{"precision 0", 1234567, L"1,234,567"}});
    s.groupSizes = {3, 2};
    Check(s, {{"3,2", 1234567, L"12,34,567"}, {"3,2 long", 123456789, L"12,34,56,789"}});
    s.groupSizes = {3, 0};
    Check(s, {{"3,0", 1234567, L"1234,567"}});
    s.groupSizes = {0};
    Check(s, {{"0", 1234567, L"1234567"}});
    s.groupSizes = {1};
    Check(s, {{"1", 1234, L"1,2,3,4"}});
}

TEST(FormatNumber, OddSeparatorsAndDigitsReplaceEveryDefault) {
    NumberSettings s;
    s.groupSeparator = L"~";
    s.decimalSeparator = L"?";
    s.negativeSign = L"(-)";
    for (int i = 0; i < 10; ++i) s.digits[i] = static_cast<wchar_t>(0x0660 + i);  // Arabic-Indic
    Check(s, {{"all replaced", -1234.5,
               L"(-)\u0661~\u0662\u0663\u0664?\u0665\u0660"}});
    s.format = units::eNFExponential;
    Check(s, {{"exponent digits too", 1500, L"\u0661?\u0665\u0660E\u0660\u0663"}});
}

TEST(FormatNumber, ExponentFormsAndTheirSigns) {
    NumberSettings s = With(units::eNFExponential, 2);
    Check(s, {{"E 1500", 1500, L"1.50E03"},
              {"E small", 0.0015, L"1.50E-03"},
              {"E three-digit exponent", 1e200, L"1.00E200"},
              {"E never groups", 123456789, L"1.23E08"}});
    s.positiveSign = L"+";
    s.includePositiveSignInExponent = true;
    Check(s, {{"E with plus signs", 1500, L"+1.50E+03"}});
    s = With(units::eNFExponentialLower, 3);
    Check(s, {{"e", -12345.678, L"-1.235e04"}});
    s = With(units::eNFGeneral, 3);
    Check(s, {{"G plain", 12.3456, L"12.3"}, {"G exponent", 1234567, L"1.23E06"}, {"G tiny", 0.00001234, L"1.23E-05"}});
    s = With(units::eNFGeneralLower, 3);
    Check(s, {{"g exponent", 1234567, L"1.23e06"}});
}

TEST(FormatNumber, FixedPointSignsFollowTheirSwitches) {
    NumberSettings s = With(units::eNFFixedPoint, 3);
    Check(s, {{"negative", -2.5, L"-2.500"}, {"no grouping", 12345.6789, L"12345.679"}});
    s.includeNegativeSignInNumber = false;
    Check(s, {{"negative sign left out", -2.5, L"2.500"}});
    s.positiveSign = L"+";
    Check(s, {{"positive sign included by default", 2.5, L"+2.500"}});
    s.includePositiveSignInNumber = false;
    Check(s, {{"positive sign left out", 2.5, L"2.500"}});
}

TEST(FormatNumber, ZeroOfEitherSignWritesAlikeUnlessFlagged) {
    Check(NumberSettings(), {{"zero", 0.0, L"0.00"},
                             {"negative zero", -0.0, L"0.00"},
                             {"flagged zero", 0.0, L"-0.00", units::kNegativeZero},
                             {"flagged negative zero", -0.0, L"-0.00", units::kNegativeZero},
                             {"flag ignored when not zero", 1.0, L"1.00", units::kNegativeZero},
                             {"tiny negative rounds to zero keeps its sign", -0.001, L"-0.00"}});
}

TEST(FormatNumber, InfinityAndNanPassThrough) {
    double const inf = std::numeric_limits<double>::infinity();
    Check(NumberSettings(), {{"inf", inf, L"inf"}, {"-inf", -inf, L"-inf"},
                             {"nan", std::numeric_limits<double>::quiet_NaN(), L"nan"}});
    Check(With(units::eNFExponential, 2), {{"INF", inf, L"INF"}});
}

// In the exponent forms the sign of an infinity or a not-a-number stands where the
// exponent's sign would, and follows the exponent's switches; every other form keeps
// the number's switches, finite exponent forms too.
TEST(FormatNumber, SignsOfInfinityAndNanInTheExponentForms) {
    double const inf = std::numeric_limits<double>::infinity(), nan = std::numeric_limits<double>::quiet_NaN();
    enum Switch { kNone, kPlusSign, kWordSigns, kNoNegativeInExponent, kNoNegativeInNumber, kOnlyPositiveInExponent };
    struct SignRow {
        char const* label;
        units::NumberFormat format;
        Switch settings;
        double value;
        wchar_t const* expected;
    } const rows[] = {
        {"E +inf, defaults", units::eNFExponential, kNone, inf, L"INF"},
        {"E -inf, defaults", units::eNFExponential, kNone, -inf, L"-INF"},
        {"E -nan, defaults", units::eNFExponential, kNone, -nan, L"-NAN"},
        {"E +inf, plus sign not in exponents", units::eNFExponential, kPlusSign, inf, L"INF"},
        {"E +nan, plus sign not in exponents", units::eNFExponential, kPlusSign, nan, L"NAN"},
        {"E finite keeps the number's plus", units::eNFExponential, kPlusSign, 1500, L"+1.50E03"},
        {"E -inf, minus left out of exponents", units::eNFExponential, kNoNegativeInExponent, -inf, L"INF"},
        {"E -inf, minus left out of numbers", units::eNFExponential, kNoNegativeInNumber, -inf, L"-INF"},
        {"E finite, minus left out of numbers", units::eNFExponential, kNoNegativeInNumber, -1500, L"1.50E03"},
        {"e +inf, plus only in exponents", units::eNFExponentialLower, kOnlyPositiveInExponent, inf, L"plusinf"},
        {"e -nan, word signs", units::eNFExponentialLower, kWordSigns, -nan, L"minusnan"},
        {"e -nan, minus left out of exponents", units::eNFExponentialLower, kNoNegativeInExponent, -nan, L"nan"},
        {"G has no letter either, number's switches", units::eNFGeneral, kPlusSign, inf, L"+INF"},
        {"g number's switches", units::eNFGeneralLower, kNoNegativeInExponent, -inf, L"-inf"},
        {"f number's switches", units::eNFFixedPoint, kPlusSign, inf, L"+inf"},
        {"Number, number's switches", units::eNFNumber, kNoNegativeInNumber, -inf, L"inf"},
    };
    for (SignRow const& r : rows) {
        NumberSettings s = With(r.format, 2);
        switch (r.settings) {
            case kNone: break;
            case kPlusSign: s.positiveSign = L"+"; break;
            case kWordSigns: s.positiveSign = L"plus"; s.negativeSign = L"minus"; break;
            case kNoNegativeInExponent: s.includeNegativeSignInExponent = false; break;
            case kNoNegativeInNumber: s.includeNegativeSignInNumber = false; break;
            case kOnlyPositiveInExponent:
                s.positiveSign = L"plus";
                s.includePositiveSignInExponent = true;
                s.includePositiveSignInNumber = false;
                break;
        }
        Check(s, {{r.label, r.value, r.expected}});
    }
}

TEST(FormatNumber, BufferSizesAtTheEdge) {
    NumberSettings const s;
    wchar_t buffer[32];
    // "1,234.50" is 8 characters.
    EXPECT_EQ(units::FormatNumber(s, 1234.5, buffer, 9, 0), 9);
    EXPECT_EQ(units::FormatNumber(s, 1234.5, buffer, 8, 0), -1) << "no room for the terminator";
    EXPECT_EQ(units::FormatNumber(s, 1234.5, nullptr, 9, 0), -1);
    EXPECT_EQ(units::FormatNumber(s, 1234.5, buffer, 0, 0), -1);
    // The raw text with both its signs ("+1.50E+03") must fit as well, although the
    // signs left out make the written text ("1.50E03") shorter.
    NumberSettings e = With(units::eNFExponential, 2);
    EXPECT_EQ(units::FormatNumber(e, 1500, buffer, 10, 0), 8);
    EXPECT_EQ(units::FormatNumber(e, 1500, buffer, 9, 0), -1);
    NumberSettings bad;
    bad.format = static_cast<units::NumberFormat>(7);
    EXPECT_EQ(units::FormatNumber(bad, 1.0, buffer, 32, 0), -1);
}

TEST(FormatNumber, NeverWritesPastTheGivenSize) {
    NumberSettings s;
    s.groupSeparator = L"<sep>";
    s.precision = 99;
    for (unsigned long size = 1; size < 200; ++size) {
        std::wstring canvas(256, L'#');
        int const n = units::FormatNumber(s, -1.234567e40, canvas.data(), size, 0);
        EXPECT_TRUE(n == -1 || (n > 0 && static_cast<unsigned long>(n) <= size));
        for (std::size_t i = size; i < canvas.size(); ++i) ASSERT_EQ(canvas[i], L'#') << size;
    }
}

TEST(FormatNumber, HugeValuesAtFullPrecisionFit) {
    NumberSettings s = With(units::eNFFixedPoint, 99);
    std::wstring buffer(1024, L'#');
    int const n = units::FormatNumber(s, -std::numeric_limits<double>::max(), buffer.data(), 1024, 0);
    EXPECT_EQ(n, 1 + 309 + 1 + 99 + 1);
}

// Fixed notation is worked out by integer arithmetic for ordinary values; it must give
// std::to_chars's text (printf's) digit for digit, also on exact ties and carries.
TEST(FormatNumber, FixedDigitsMatchTheLibraryConversion) {
    std::mt19937_64 random(20261122);
    auto check = [](double value, int precision) {
        char expected[512];
        char* const end = std::to_chars(expected, expected + sizeof expected, value, std::chars_format::fixed,
                                        precision).ptr;
        wchar_t buffer[512];
        int const n = units::FormatNumber(With(units::eNFFixedPoint, precision), value, buffer, 512, 0);
        std::string want(expected, end);
        if (value == 0 && want[0] == '-') want.erase(0, 1);  // minus zero writes like zero
        std::uint64_t bits = 0;
        std::memcpy(&bits, &value, sizeof bits);
        ASSERT_EQ(Narrow(n > 0 ? std::wstring(buffer) : L"(refused)"), want)
            << "precision " << precision << " bits " << std::hex << bits;
    };
    for (int i = 0; i < 200000; ++i) {
        int const precision = 1 + static_cast<int>(random() % 19);
        // Mantissas at random over exponents from 2^-80 to 2^60: both sides of every limit.
        double const magnitude = std::ldexp(static_cast<double>(random() >> 11), -53 - 80 + static_cast<int>(random() % 140));
        check(random() % 2 ? -magnitude : magnitude, precision);
        // Ties and near-ties: k / 2^j sits exactly on a rounding boundary for small j.
        double const tie = std::ldexp(static_cast<double>(random() % 100000), -static_cast<int>(random() % 12));
        check(tie, precision % 6 + 1);
        check(std::nextafter(tie, 0.0), precision % 6 + 1);
    }
    for (double v : {0.125, 0.375, 2.5, 0.995, 9.995, 99.995, 1e-20, 4503599627370495.5, 9.2e18 / 1e2}) {
        for (int p = 1; p <= 19; ++p) check(v, p);
    }
}

namespace {

struct FractionRow {
    double value;
    std::wstring expected;
    int result;
    int precision = 2;
};

void CheckFractions(std::initializer_list<FractionRow> rows) {
    NumberSettings s = With(units::eNFFraction, 2);
    for (FractionRow const& r : rows) {
        SCOPED_TRACE(testing::Message() << r.value << " at precision " << r.precision);
        s.precision = r.precision;
        wchar_t buffer[64];
        EXPECT_EQ(units::FormatNumber(s, r.value, buffer, 64, 0), r.result);
        EXPECT_EQ(std::wstring(buffer), r.expected) << Narrow(buffer);
    }
}

}  // namespace

TEST(FormatNumberAsFraction, RoundsToTheDenominatorAndReduces) {
    CheckFractions({
        {3.3, L"3 1/4", 6},  {3.5, L"3 1/2", 6},   {3.9, L"4 ", 2},   {-3.3, L"-3 1/4", 7},
        {-0.3, L"-1/4", 5},  {0.1, L"0 ", 2},      {0.0, L"0 ", 2},   {1234.75, L"1,234 3/4", 10},
        {2.0625, L"2 1/8", 6, 3}, {2.0, L"2 ", 2, 3},
    });
}

// Found by the format fuzzer: a not-a-number numerator was cast to an integer to count
// its twos. It is never even, so it keeps the whole denominator.
TEST(FormatNumberAsFraction, NotANumberIsNeverReduced) {
    double const nan = std::numeric_limits<double>::quiet_NaN();
    CheckFractions({
        {nan, L"nan nan/4", 10},
        {-nan, L"-nan -nan/1,024", 16, 10},
        {nan, L"nan nan/1,180,591,620,717,411,303,424", 38, 70},
        {std::numeric_limits<double>::infinity(), L"inf ", 4},  // no fraction: the space is counted, not the end
    });
}

TEST(FormatNumberAsFraction, PartsIgnoreThisFormattersSymbols) {
    NumberSettings s = With(units::eNFFraction, 2);
    s.negativeSign = L"~";
    s.groupSeparator = L"?";
    for (int i = 0; i < 10; ++i) s.digits[i] = static_cast<wchar_t>(L'a' + i);
    wchar_t buffer[64];
    units::FormatNumber(s, -1234.25, buffer, 64, 0);
    EXPECT_EQ(std::wstring(buffer), L"-1,234 1/4");
}

TEST(FormatNumberAsFraction, NeedsOneCharacterBeyondTheTerminator) {
    NumberSettings s = With(units::eNFFraction, 2);
    wchar_t buffer[16];
    EXPECT_EQ(units::FormatNumber(s, 3.25, buffer, 8, 0), 6);  // "3 1/4" + 2
    EXPECT_EQ(units::FormatNumber(s, 3.25, buffer, 6, 0), -1);
    EXPECT_EQ(units::FormatNumber(s, 3.0, buffer, 3, 0), 2);
    EXPECT_EQ(units::FormatNumber(s, 3.0, buffer, 2, 0), -1);
}

TEST(ReverseCopy, RefusesWhatDoesNotFit) {
    wchar_t buffer[4] = {L'#', L'#', L'#', L'#'};
    EXPECT_EQ(units::ReverseCopy(buffer, L"abc", 3), 0);
    EXPECT_EQ(std::wstring(buffer, 4), L"cba#");
    EXPECT_EQ(units::ReverseCopy(buffer, L"abcde", 4), 1);
    EXPECT_EQ(units::ReverseCopy(nullptr, L"a", 4), 1);
    EXPECT_EQ(units::ReverseCopy(buffer, L"", 0), 1);
    EXPECT_EQ(units::ReverseCopy(buffer, L"", 4), 0);
}
