// A locale's number conventions, applied in one call: the separators, sizes and signs
// come out of Qt's locale data, and a formatter set up with them reads back what it
// writes, also where the group separator is a no-break space or the minus is U+2212.
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "KxCoreUnitsUI/LocaleConventions.h"
#include "KxCoreUnitsUI/UnitsFormatter.h"
#include "ManagerTest.h"

namespace units = kxnorth::platform::core::units;

namespace {

constexpr int kMeter = 0x2001;
constexpr int kMeterSymbol = 0x202001;  // "m"

struct ConventionRow {
    wchar_t const* locale;
    wchar_t const* decimal;
    wchar_t const* group;
    std::vector<int> sizes;
    wchar_t const* minus;
    wchar_t zero;  // of the native digits
};

// Separators that hard-coded "," and "." would miss: U+202F (French), U+00A0
// (Russian, Czech, Swedish), U+2019 (Swiss German), U+2212 (Swedish minus).
ConventionRow const kConventions[] = {
    {L"en-US", L".", L",", {3}, L"-", L'0'},
    {L"de-DE", L",", L".", {3}, L"-", L'0'},
    {L"fr-FR", L",", L"\u202F", {3}, L"-", L'0'},
    {L"ru-RU", L",", L"\u00A0", {3}, L"-", L'0'},
    {L"cs-CZ", L",", L"\u00A0", {3}, L"-", L'0'},
    {L"sv-SE", L",", L"\u00A0", {3}, L"\u2212", L'0'},
    {L"de-CH", L".", L"\u2019", {3}, L"-", L'0'},
    {L"hi-IN", L".", L",", {3, 2}, L"-", L'0'},
    {L"ar-EG", L"\u066B", L"\u066C", {3}, L"\u061C-", L'\u0660'},
    {nullptr, L".", L",", {3}, L"-", L'0'},  // no locale: Qt's C locale
    {L"xx-XX", L".", L",", {3}, L"-", L'0'},  // unknown: the same
};

std::string Narrow(wchar_t const* text) {
    std::string out;
    for (; text != nullptr && *text; ++text) {
        out += *text < 128 ? std::string(1, static_cast<char>(*text)) : "U+" + std::to_string(static_cast<int>(*text));
    }
    return out;
}

class LocaleConventionsTest : public kxtest::ManagerTest<> {};

}  // namespace

TEST_F(LocaleConventionsTest, ConventionsComeFromTheLocale) {
    for (ConventionRow const& row : kConventions) {
        SCOPED_TRACE(row.locale != nullptr ? Narrow(row.locale) : "(null)");
        units::LocaleConventions const c = units::GetLocaleConventions(row.locale);
        EXPECT_EQ(std::wstring(c.decimalSeparator), row.decimal);
        EXPECT_EQ(std::wstring(c.groupSeparator), row.group);
        EXPECT_EQ(std::vector<int>(c.groupSizes, c.groupSizes + c.groupSizeCount), row.sizes);
        EXPECT_EQ(std::wstring(c.negativeSign), row.minus);
        EXPECT_EQ(c.nativeDigits[0], row.zero);
        EXPECT_EQ(c.nativeDigits[9], row.zero + 9);
    }
}

TEST_F(LocaleConventionsTest, FormatterWritesTheLocalesNumbersAndReadsThemBack) {
    struct Row {
        wchar_t const* locale;
        units::LocaleDigits digits;
        double value;
        wchar_t const* text;
    };
    Row const rows[] = {
        {L"en-US", units::LocaleDigits::eLatin, -1234567.891, L"-1,234,567.89 m"},
        {L"de-DE", units::LocaleDigits::eLatin, 1234567.891, L"1.234.567,89 m"},
        {L"fr-FR", units::LocaleDigits::eLatin, -1234.5, L"-1\u202F234,50 m"},
        {L"ru-RU", units::LocaleDigits::eLatin, 1234.5, L"1\u00A0234,50 m"},
        {L"cs-CZ", units::LocaleDigits::eLatin, 98765.4321, L"98\u00A0765,43 m"},
        {L"sv-SE", units::LocaleDigits::eLatin, -0.5, L"\u22120,50 m"},
        {L"hi-IN", units::LocaleDigits::eLatin, 123456789, L"12,34,56,789.00 m"},
        {L"ar-EG", units::LocaleDigits::eNative, 1234.5, L"\u0661\u066C\u0662\u0663\u0664\u066B\u0665\u0660 m"},
        {L"ar-EG", units::LocaleDigits::eLatin, 1234.5, L"1\u066C234\u066B50 m"},
    };
    for (Row const& row : rows) {
        SCOPED_TRACE(Narrow(row.locale));
        // The formatter's own locale stays en-US: only the numbers follow `row.locale`.
        units::UnitsFormatter formatter(L"en-US");
        ASSERT_EQ(units::ApplyLocaleConventions(formatter, row.locale, row.digits), 0);
        wchar_t text[64] = {};
        double shown = 0;
        ASSERT_EQ(formatter.Format(row.value, kMeter, text, 64, kMeterSymbol, &shown), 0);
        EXPECT_EQ(std::wstring(text), row.text) << Narrow(text);
        double parsed = NAN;
        ASSERT_EQ(formatter.Parse(text, parsed, kMeter), 0) << Narrow(text);
        EXPECT_NEAR(parsed, shown, 0.005);
    }
}

TEST_F(LocaleConventionsTest, SwappedSeparatorsLeaveNoStaleToken) {
    // de-DE after en-US and back swaps "," and "."; a token left with the wrong kind
    // would read "1,5" as 15 or refuse it.
    units::UnitsFormatter formatter(L"en-US");
    double value = 0;
    for (wchar_t const* locale : {L"de-DE", L"en-US", L"de-DE"}) {
        ASSERT_EQ(units::ApplyLocaleConventions(formatter, locale), 0);
        bool const comma = std::wstring(locale) == L"de-DE";
        ASSERT_EQ(formatter.Parse(comma ? L"1.234,5 m" : L"1,234.5 m", value, kMeter), 0) << Narrow(locale);
        EXPECT_DOUBLE_EQ(value, 1234.5);
    }
}

TEST_F(LocaleConventionsTest, NullLocaleTakesTheFormattersOwn) {
    units::UnitsFormatter formatter(L"fr-FR");
    ASSERT_EQ(units::ApplyLocaleConventions(formatter), 0);
    wchar_t separator[8] = {};
    formatter.GetNumberDecimalSeparator(separator, 8);
    EXPECT_EQ(std::wstring(separator), L",");
    EXPECT_FALSE(formatter.IncludePositiveSignInNumber());
    double value = 0;
    EXPECT_EQ(formatter.Parse(L"+2,5 m", value, kMeter), 0);
    EXPECT_DOUBLE_EQ(value, 2.5);
}
