// The symbol configuration: which object each identifier finds, and the fixed texts
// of the parse dictionary.
#include <gtest/gtest.h>

#include <string>

#include "KxCoreUnitsUI/UnitsFormatter.h"
#include "KxCoreUnitsUI/UnitsManager.h"
#include "KxUnitsSymbols.h"
#include "KxUnitsUIConfig.h"

namespace units = kxnorth::platform::core::units;
using units::UnitsUIConfig;

namespace {

class SymbolConfiguration : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        units::UnitsManager::Initialize();
        units::UnitsManager::GetInstance();
        units::UnitsFormatter load(L"en-US");
    }
    UnitsUIConfig const* config = UnitsUIConfig::GetInstance();
    QString const locale = QStringLiteral("en-US");
};

}  // namespace

TEST_F(SymbolConfiguration, IdentifiersFindTheirObjects) {
    EXPECT_NE(config->FindSymbol(0x102017, locale), nullptr);
    EXPECT_NE(config->FindSymbol(0xA02016, locale), nullptr) << "the last inch style";
    EXPECT_EQ(config->FindSymbol(0x2000, locale), nullptr) << "a pure group";
    EXPECT_EQ(config->FindSymbol(0x402017, locale), nullptr) << "beyond the foot's three symbols";
    EXPECT_EQ(config->FindSymbol(0x10A005, locale), nullptr) << "a group with fewer units";
    EXPECT_EQ(config->FindSymbol(0x1FF001, locale), nullptr) << "no such group";
    EXPECT_EQ(config->FindSymbol(0x102017, QStringLiteral("xx-YY")), nullptr) << "a locale with no table";
}

TEST_F(SymbolConfiguration, EveryWayOfTypingAMarkFindsTheSameSymbol) {
    struct Family {
        char const* label;
        std::wstring texts;
    } const families[] = {
        {"primes", L"\u2032'\u02B9\u2019\u02BC\u2018"},
        {"double primes", L"\u2033\"\u02BA\u201D\u201C"},
        {"dashes", L"\u2010\u2012\u2013\u2014\u2015-\u2043"},
        {"left parentheses", L"(\uFF08"},
        {"right parentheses", L")\uFF09"},
    };
    for (Family const& family : families) {
        SCOPED_TRACE(family.label);
        unsigned long length = 0;
        wchar_t const first[2] = {family.texts[0], L'\0'};
        units::IParseSymbol const* expected = config->FindSymbol(first, &length);
        ASSERT_NE(expected, nullptr);
        for (wchar_t c : family.texts) {
            wchar_t const text[3] = {c, L'5', L'\0'};
            length = 99;
            EXPECT_EQ(config->FindSymbol(text, &length), expected);
            EXPECT_EQ(length, 1u);
        }
    }
    unsigned long length = 7;
    EXPECT_EQ(config->FindSymbol(L"\u00A7", &length), nullptr);
    EXPECT_EQ(length, 7u) << "no match leaves the length alone";
    EXPECT_EQ(config->FindSymbol(nullptr, &length), nullptr);
}

TEST_F(SymbolConfiguration, SymbolDisplayNamesThroughTheFormatter) {
    units::UnitsFormatter f(L"en-US");
    wchar_t name[64];
    unsigned long length = 0;
    ASSERT_EQ(f.GetDisplayName(0x202017, name, 64), 0);
    EXPECT_STREQ(name, L"ft");
    ASSERT_EQ(f.GetDisplayNameLength(0x202017, length), 0);
    EXPECT_EQ(length, 3u);
    ASSERT_EQ(f.GetDisplayName(0x130001, name, 64), 0);
    EXPECT_STREQ(name, L"meter per second squared") << "a default symbol is named by its unit";
    ASSERT_EQ(f.GetDisplayName(0x302036, name, 64), 0);
    EXPECT_STREQ(name, L"mil (Sweden and Norway)");
    EXPECT_EQ(f.GetDefaultSymbol(0x2017), 0x102017);
    EXPECT_EQ(f.GetDefaultSymbol(0x2000), 0) << "a group is no unit";
}
