// The formatter's settings: defaults, refusals that leave everything unchanged, the
// number-token dictionary kept in step, and display names by identifier.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "KxCoreUnitsUI/UnitsFormatter.h"
#include "KxCoreUnitsUI/UnitsManager.h"
#include "KxUnitsFormatterImp.h"
#include "ManagerTest.h"

namespace units = kxnorth::platform::core::units;
using units::UnitsFormatter;
using units::UnitsFormatterImp;

namespace {

class FormatterSettings : public kxtest::ManagerTest<> {};

// Every setting, read through the public getters, for comparison before and after.
struct Snapshot {
    std::wstring digits, positive, negative, group, decimal;
    int precision;
    units::NumberFormat format;
    std::vector<int> sizes;
    bool flags[5];

    explicit Snapshot(UnitsFormatter const& f) {
        wchar_t buffer[64];
        f.GetNativeDigits(buffer);
        digits.assign(buffer, 10);
        f.GetPositiveSign(buffer, 64);
        positive = buffer;
        f.GetNegativeSign(buffer, 64);
        negative = buffer;
        f.GetNumberGroupSeparator(buffer, 64);
        group = buffer;
        f.GetNumberDecimalSeparator(buffer, 64);
        decimal = buffer;
        precision = f.GetNumberDecimalPrecision();
        format = f.GetNumericFormat();
        sizes.resize(f.GetNumberGroupSizes(nullptr));
        f.GetNumberGroupSizes(sizes.data());
        bool const values[5] = {f.AllowTwoDigitExponent(), f.IncludePositiveSignInNumber(),
                                f.IncludeNegativeSignInNumber(), f.IncludePositiveSignInExponent(),
                                f.IncludeNegativeSignInExponent()};
        std::copy(values, values + 5, flags);
    }
    bool operator==(Snapshot const& o) const {
        return digits == o.digits && positive == o.positive && negative == o.negative && group == o.group &&
               decimal == o.decimal && precision == o.precision && format == o.format && sizes == o.sizes &&
               std::equal(flags, flags + 5, o.flags);
    }
};

}  // namespace

TEST_F(FormatterSettings, EveryLocaleStartsFromTheSameDefaults) {
    for (wchar_t const* locale : {L"en-US", L"de-DE", L"fr-FR", L"xx-YY"}) {
        UnitsFormatter f(locale);
        Snapshot const s(f);
        EXPECT_EQ(s.digits, L"0123456789");
        EXPECT_EQ(s.positive, L"");
        EXPECT_EQ(s.negative, L"-");
        EXPECT_EQ(s.group, L",");
        EXPECT_EQ(s.decimal, L".");
        EXPECT_EQ(s.precision, 2);
        EXPECT_EQ(s.format, units::eNFNumber);
        EXPECT_EQ(s.sizes, std::vector<int>{3});
        EXPECT_TRUE(s.flags[0] && s.flags[1] && s.flags[2] && !s.flags[3] && s.flags[4]);
    }
}

TEST_F(FormatterSettings, UnknownLocaleFallsBackToTheSystemLocalesNames) {
    UnitsFormatter f(L"xx-YY");
    EXPECT_STREQ(f.GetLocale(), L"en-US");
    UnitsFormatter german(L"de-DE");
    EXPECT_STREQ(german.GetLocale(), L"de-DE");
}

TEST_F(FormatterSettings, RefusalsLeaveEverySettingUnchanged) {
    UnitsFormatter f(L"en-US");
    Snapshot const before(f);
    wchar_t const repeated[10] = {L'0', L'1', L'2', L'3', L'4', L'5', L'6', L'7', L'8', L'1'};
    int const leadingZero[] = {0, 3};
    int const tooLarge[] = {10};
    int const negativeLast[] = {3, -1};
    EXPECT_EQ(f.SetNumberDecimalPrecision(100), 1);
    EXPECT_EQ(f.SetNumberDecimalPrecision(-1), 1);
    EXPECT_EQ(f.SetNativeDigits(repeated), 1);
    EXPECT_EQ(f.SetNumberGroupSizes(leadingZero, 2), 1);
    EXPECT_EQ(f.SetNumberGroupSizes(tooLarge, 1), 1);
    EXPECT_EQ(f.SetNumberGroupSizes(negativeLast, 2), 1);
    EXPECT_EQ(f.SetNumberGroupSizes(tooLarge, 0), 1);
    EXPECT_EQ(f.SetNumberDecimalSeparator(L""), 1);
    EXPECT_EQ(f.SetNumberDecimalSeparator(nullptr), 1);
    EXPECT_EQ(f.SetNumberGroupSeparator(L""), 1);
    f.SetPositiveSign(nullptr);
    f.SetNegativeSign(nullptr);
    EXPECT_TRUE(Snapshot(f) == before);

    int const indian[] = {3, 2};
    int const once[] = {3, 0};
    EXPECT_EQ(f.SetNumberGroupSizes(indian, 2), 0);
    EXPECT_EQ(f.SetNumberGroupSizes(once, 2), 0);
    EXPECT_EQ(f.SetNumberDecimalPrecision(99), 0);
    EXPECT_EQ(f.SetNumberDecimalPrecision(0), 0);
}

TEST_F(FormatterSettings, BoundedCopiesCutSilently) {
    UnitsFormatter f(L"en-US");
    f.SetNegativeSign(L"--");
    wchar_t buffer[4] = {L'#', L'#', L'#', L'#'};
    f.GetNegativeSign(buffer, 1);
    EXPECT_EQ(buffer[0], L'\0');
    EXPECT_EQ(buffer[1], L'#');
    f.GetNegativeSign(buffer, 2);
    EXPECT_STREQ(buffer, L"-");
    f.GetNegativeSign(buffer, 3);
    EXPECT_STREQ(buffer, L"--");
}

// Tokens follow the settings: the parser reads exactly what the formatter writes.
TEST_F(FormatterSettings, NumberTokensFollowTheSettings) {
    UnitsFormatterImp f(L"en-US");
    EXPECT_EQ(f.CheckToken(L"7"), 7);
    EXPECT_EQ(f.CheckToken(L","), units::eNTGroupSeparator);
    EXPECT_EQ(f.CheckToken(L"e5"), units::eNTExponentMark);
    EXPECT_EQ(f.CheckToken(L"x"), -1);
    EXPECT_EQ(f.CheckToken(L""), -1);
    EXPECT_EQ(f.CheckToken(nullptr), -1);

    ASSERT_EQ(f.SetNumberDecimalSeparator(L"?"), 0);
    ASSERT_EQ(f.SetNumberGroupSeparator(L"~"), 0);
    EXPECT_EQ(f.CheckToken(L"?"), units::eNTDecimalSeparator);
    EXPECT_EQ(f.CheckToken(L"~"), units::eNTGroupSeparator);
    EXPECT_EQ(f.CheckToken(L"."), -1);
    EXPECT_EQ(f.CheckToken(L","), -1);

    wchar_t const arabic[10] = {0x660, 0x661, 0x662, 0x663, 0x664, 0x665, 0x666, 0x667, 0x668, 0x669};
    ASSERT_EQ(f.SetNativeDigits(arabic), 0);
    EXPECT_EQ(f.CheckToken(L"\u0663"), 3);
    EXPECT_EQ(f.CheckToken(L"3"), -1);
}

TEST_F(FormatterSettings, SeparatorGuardKeepsAKeyAnotherSettingTookOver) {
    UnitsFormatterImp f(L"en-US");
    // The group separator takes over "." ; changing the decimal separator afterwards
    // must not erase the group separator's key.
    ASSERT_EQ(f.SetNumberGroupSeparator(L"."), 0);
    ASSERT_EQ(f.SetNumberDecimalSeparator(L","), 0);
    EXPECT_EQ(f.CheckToken(L"."), units::eNTGroupSeparator);
    EXPECT_EQ(f.CheckToken(L","), units::eNTDecimalSeparator);
    double value = 0;
    EXPECT_EQ(f.ParseNumber(L"1.234,5", &value, nullptr, nullptr), 7);
    EXPECT_DOUBLE_EQ(value, 1234.5);
}

TEST_F(FormatterSettings, SignSettersEraseWithoutTheGuard) {
    UnitsFormatterImp f(L"en-US");
    // The negative sign takes the decimal separator's text, then moves on: the old
    // text is erased whoever holds it now, so "." no longer reads as anything.
    f.SetNegativeSign(L".");
    f.SetNegativeSign(L"-");
    EXPECT_EQ(f.CheckToken(L"."), -1);
    EXPECT_EQ(f.CheckToken(L"-"), units::eNTNegativeSign);
}

TEST_F(FormatterSettings, ParseNumberReadsWhatTheDefaultsWrite) {
    UnitsFormatterImp f(L"en-US");
    struct Row {
        wchar_t const* text;
        double value;
        int length;
        int flags;
    } const rows[] = {
        {L"1,234.5", 1234.5, 7, 16 + 32 + 128 + 256},
        {L".5", 0.5, 2, 32 + 256},
        {L"-2e3", -2000, 4, 2 + 64 + 128},
        {L"5e", 5, 1, 128},
        {L"5e-", 5, 1, 128 + 8},
        {L"12 ft", 12, 2, 128},
        {L"1.5E-2x", 0.015, 6, 8 + 32 + 64 + 128 + 256},
    };
    for (Row const& r : rows) {
        SCOPED_TRACE(std::string(r.text, r.text + wcslen(r.text)));
        double value = -1;
        int flags = 0;
        EXPECT_EQ(f.ParseNumber(r.text, &value, &flags, nullptr), r.length);
        EXPECT_DOUBLE_EQ(value, r.value);
        EXPECT_EQ(flags, r.flags);
    }
    double untouched = 42;
    EXPECT_EQ(f.ParseNumber(L"ft", &untouched, nullptr, nullptr), 0);
    EXPECT_EQ(untouched, 42);
    EXPECT_EQ(f.ParseNumber(nullptr, &untouched, nullptr, nullptr), -1);
    int start = -1;
    EXPECT_EQ(f.ParseNumber(L"ab 17", &untouched, nullptr, &start), 2);
    EXPECT_EQ(start, 3);
    EXPECT_EQ(untouched, 17);
}

TEST_F(FormatterSettings, DisplayNamesByKindOfIdentifier) {
    UnitsFormatter f(L"de-DE");
    wchar_t buffer[64];
    unsigned long length = 0;
    ASSERT_EQ(f.GetDisplayName(0x2000, buffer, 64), 0);
    EXPECT_STREQ(buffer, L"L\u00E4nge");
    ASSERT_EQ(f.GetDisplayNameLength(0x2000, length), 0);
    EXPECT_EQ(length, 6u);
    ASSERT_EQ(f.GetDisplayName(0x201C, buffer, 64), 0);
    EXPECT_STREQ(buffer, L"Fu\u00DF (US-Vermessung)");
    EXPECT_EQ(f.GetDisplayName(0x2000, nullptr, 64), 1);
    ASSERT_EQ(f.GetDisplayNameLength(0x4A000, length), 0);
    EXPECT_EQ(length, 0u) << "an unknown group has an empty name";

    ASSERT_EQ(f.GetNumberFormatDisplayName(units::eNFExponential, buffer, 64), 0);
    std::wstring const upper = buffer;
    ASSERT_EQ(f.GetNumberFormatDisplayName(units::eNFExponentialLower, buffer, 64), 0);
    EXPECT_NE(upper, std::wstring(buffer)) << "two formats, two names";
    EXPECT_EQ(f.GetNumberFormatDisplayName(units::eNFNumber, nullptr, 64), 1);
}

TEST_F(FormatterSettings, DefaultUnitsByGroup) {
    UnitsFormatter f(L"en-US");
    EXPECT_EQ(f.GetDefaultUnit(0x2000), 0x2001);
    EXPECT_EQ(f.GetDefaultUnit(0x2017), 0) << "not a pure group";
    EXPECT_EQ(f.GetDefaultUnit(0xFF000), 0) << "no such group";
    EXPECT_EQ(f.SetDefaultUnit(0x2FFF), 1);
    EXPECT_EQ(f.SetDefaultUnit(0x10002017), 0) << "high bits are not part of the identity";
    EXPECT_EQ(f.GetDefaultUnit(0x2000), 0x2017);
}
