// The symbol configuration: which object each identifier finds, and the fixed texts
// of the parse dictionary.
#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <typeinfo>
#include <vector>

#include "CatalogueSymbols.h"
#include "KxCoreUnitsUI/UnitsFormatter.h"
#include "KxCoreUnitsUI/UnitsManager.h"
#include "KxUnitsSymbols.h"
#include "KxUnitsUIConfig.h"
#include "ManagerTest.h"

namespace units = kxnorth::platform::core::units;
using units::UnitsUIConfig;

namespace {

class SymbolConfiguration : public kxtest::ManagerTest<> {
protected:
    static void SetUpTestSuite() {
        ManagerTest::SetUpTestSuite();
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

// Kind questions are answered from what each constructor recorded, falling back to
// the virtual Self; both must agree for every object evaluation can meet.
TEST_F(SymbolConfiguration, KindShortcutsAgreeWithTheClasses) {
    std::vector<units::IParseSymbol const*> symbols;
    // Every catalogue symbol's typing face.
    for (int id : kxtest::AllSymbols()) {
        units::SymbolInfo const* info = config->FindSymbolInfo(id, locale);
        if (info != nullptr && info->parse != nullptr) symbols.push_back(info->parse);
    }
    // The fixed texts of the dictionary.
    for (wchar_t const* text : {L"'", L"\"", L"-", L" ", L"/", L"\u00B7", L"\u00B2", L"\u00B3", L"^", L"(", L")",
                                L"\u00B0", L"d", L"g", L"N", L"S", L"E", L"W"}) {
        unsigned long length = 0;
        units::IParseSymbol const* symbol = config->FindSymbol(text, &length);
        ASSERT_NE(symbol, nullptr) << QString::fromWCharArray(text).toStdString();
        symbols.push_back(symbol);
    }
    // What evaluation makes.
    int const length[units::kDimensionCount] = {1, 0, 0, 0, 0, 0, 0};
    units::GenericConverter const converter(0.3048, length);
    units::NumberSymbol const number(5, 0);
    units::ResultSymbol const result(converter);
    units::GenericOperand const operand(converter);
    units::EastSymbol const east(units::BearingReference::eFromNorth);
    units::WestSymbol const west(units::BearingReference::eFromSouth);
    units::PrimeSymbol const prime;
    units::DoublePrimeSymbol const doublePrime;
    units::DegreeSymbol const degree;
    units::MultiplicationSymbol const times;
    for (units::IParseSymbol const* made : std::initializer_list<units::IParseSymbol const*>{
             &number, &result, &operand, &east, &west, &prime, &doublePrime, &degree, &times}) {
        symbols.push_back(made);
    }
    for (units::IParseSymbol const* symbol : symbols) {
        for (int kind = 0; kind <= static_cast<int>(units::ParseKind::eSpace); ++kind) {
            auto const k = static_cast<units::ParseKind>(kind);
            EXPECT_EQ(symbol->AsKind(k), symbol->Self(k)) << typeid(*symbol).name() << " kind " << kind;
        }
    }
    EXPECT_GT(symbols.size(), 1900u);
}
