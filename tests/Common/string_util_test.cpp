// StringUtil: wide-buffer copies, lookups by global name and collation.
#include <gtest/gtest.h>

#include <QString>
#include <cwchar>

#include "KxCoreUnitsUI/StringUtil.h"
#include "translation_test_support.h"

namespace units = kxnorth::platform::core::units;
using units::StringUtil;

namespace {

struct CopyCase {
    char const* label;
    QString text;
    int capacity;
    int expectedCount;
    wchar_t const* expectedText;
};

}  // namespace

TEST(QStringToWchar, KeepsRoomForTheTerminatorAtEveryCapacity) {
    CopyCase const cases[] = {
        {"shorter than capacity", "abc", 4, 3, L"abc"},
        {"exactly the capacity loses one", "abc", 3, 2, L"ab"},
        {"capacity one holds only the terminator", "abc", 1, 0, L""},
        {"capacity zero still terminates", "abc", 0, 0, L""},
        {"unlimited", "abcdef", -1, 6, L"abcdef"},
        {"empty string", "", 5, 0, L""},
        {"non-ASCII stays one code point each", QString::fromUtf8("m²·°"), 8, 4, L"m\u00B2\u00B7\u00B0"},
    };
    for (CopyCase const& c : cases) {
        SCOPED_TRACE(c.label);
        wchar_t buffer[16];
        std::wmemset(buffer, L'#', 16);
        EXPECT_EQ(StringUtil::QStringToWchar(c.text, buffer, c.capacity), c.expectedCount);
        EXPECT_STREQ(buffer, c.expectedText);
        int const written = c.capacity == -1 ? c.expectedCount + 1 : std::max(c.capacity, 1);
        for (int i = written; i < 16; ++i) EXPECT_EQ(buffer[i], L'#') << "wrote past the capacity at " << i;
    }
}

TEST(QStringToWchar, NullDestinationAsksForTheLength) {
    EXPECT_EQ(StringUtil::QStringToWchar(QStringLiteral("kg/m³"), nullptr, 0), 5);
    EXPECT_EQ(StringUtil::QStringToWchar(QString(), nullptr, 10), 0);
}

TEST(QStringToWchar, CharacterOutsideTheBasicPlaneNeverOverflows) {
    // One code point, two UTF-16 units: a buffer sized from the null-destination
    // answer is always large enough.
    QString const text = QString::fromUcs4(U"x\U0001D400y");
    int const needed = StringUtil::QStringToWchar(text, nullptr, 0) + 1;
    std::vector<wchar_t> buffer(needed, L'#');
    int const count = StringUtil::QStringToWchar(text, buffer.data(), needed);
    EXPECT_EQ(count, 3);
    EXPECT_EQ(buffer[1], static_cast<wchar_t>(0x1D400));
    EXPECT_EQ(buffer[count], L'\0');
}

TEST(QStringToWchar2, ReturnsTheDestination) {
    wchar_t buffer[4];
    EXPECT_EQ(StringUtil::QStringToWchar2(QStringLiteral("ft"), buffer, 4), buffer);
    EXPECT_STREQ(buffer, L"ft");
}

TEST(QStringToWchar2Death, NullDestinationIsAProgrammingError) {
    EXPECT_DEATH(StringUtil::QStringToWchar2(QStringLiteral("ft"), nullptr, 4), "dest != NULL");
}

TEST(LookupsByGlobalName, FindKnownNamesAndRefuseOthers) {
    kxp::IDesignPropertyUnits::teGroup group{};
    kxp::IDesignPropertyUnits::teType type{};
    units::UnitSymbol symbol{};
    units::NumberFormat format{};
    for (auto [name, id] : {std::pair{"Length", 0x2000}, {"LinearWeight", 0x6000}}) {
        EXPECT_EQ(StringUtil::GetUnitGroup(QString::fromLatin1(name), group), units::eEOk);
        EXPECT_EQ(group, id);
    }
    EXPECT_EQ(StringUtil::GetUnitType(QStringLiteral("FootUSSurvey"), type), units::eEOk);
    EXPECT_EQ(type, 0x201C);
    for (auto [name, id] : {std::pair{"mPers2", 0x230001}, {"mil_SwedenNorway", 0x302036}}) {
        EXPECT_EQ(StringUtil::GetUnitSymbol(QString::fromLatin1(name), symbol), units::eEOk);
        EXPECT_EQ(symbol, id);
    }
    for (auto [name, id] : {std::pair{"exponential", units::eNFExponentialLower}, {"Exponential", units::eNFExponential}}) {
        EXPECT_EQ(StringUtil::GetNumberFormatId(QString::fromLatin1(name), format), units::eEOk);
        EXPECT_EQ(format, id);
    }
}

TEST(LookupsByGlobalName, EmptyOrUnknownNamesLeaveTheOutputAlone) {
    kxp::IDesignPropertyUnits::teType type = kxp::IDesignPropertyUnits::eUFoot;
    EXPECT_EQ(StringUtil::GetUnitType(QString(), type), 1);
    EXPECT_NE(StringUtil::GetUnitType(QStringLiteral("Furlongs per fortnight"), type), units::eEOk);
    EXPECT_NE(StringUtil::GetUnitType(QStringLiteral("length"), type), units::eEOk) << "names are case-sensitive";
    EXPECT_EQ(type, kxp::IDesignPropertyUnits::eUFoot);

    units::NumberFormat format = units::eNFNumber;
    EXPECT_EQ(StringUtil::GetNumberFormatId(QString(), format), 1);
    EXPECT_NE(StringUtil::GetNumberFormatId(QStringLiteral("Fixed"), format), units::eEOk);
    EXPECT_EQ(format, units::eNFNumber);
}

TEST(GlobalNames, RoundTripForEveryKindOfIdentifier) {
    EXPECT_EQ(StringUtil::GetUnitGlobalName(0x30000), QStringLiteral("Acceleration"));
    EXPECT_EQ(StringUtil::GetUnitGlobalName(0x30001), QStringLiteral("MeterPerSecondSquared"));
    EXPECT_EQ(StringUtil::GetUnitGlobalName(0x230001), QStringLiteral("mPers2"));
    EXPECT_EQ(StringUtil::GetUnitGlobalName(0x10230001), QStringLiteral("mPers2")) << "bits 28-31 are ignored";
    EXPECT_EQ(StringUtil::GetGlobalName(units::eNFFixedPoint), QStringLiteral("Fixed Point"));
    EXPECT_EQ(StringUtil::GetGlobalName(units::eNFGeneralLower), QStringLiteral("general"));
}

TEST(GlobalNamesDeath, UnknownIdentifierIsAProgrammingError) {
    EXPECT_DEATH(StringUtil::GetUnitGlobalName(0x2FFF), "result == eEOk && size > 0");
}

TEST(LocaleAwareCompare, EmptyStringEqualsEverything) {
    EXPECT_EQ(StringUtil::LocaleAwareCompare(QString(), QStringLiteral("x")), 0);
    EXPECT_EQ(StringUtil::LocaleAwareCompare(QStringLiteral("x"), QString()), 0);
    EXPECT_EQ(StringUtil::LocaleAwareCompare(QString(), QString()), 0);
}

TEST(LocaleAwareCompare, OrdersLikeADictionaryNotLikeCodePoints) {
    EXPECT_LT(StringUtil::LocaleAwareCompare(QStringLiteral("apple"), QStringLiteral("Banana")), 0);
    EXPECT_GT(StringUtil::LocaleAwareCompare(QStringLiteral("Banana"), QStringLiteral("apple")), 0);
    EXPECT_LT(StringUtil::LocaleAwareCompare(QString::fromUtf8("état"), QStringLiteral("zone")), 0);
    EXPECT_EQ(StringUtil::LocaleAwareCompare(QStringLiteral("same"), QStringLiteral("same")), 0);
}

// The order is the user's, not the one of the locale the library shows its texts in:
// Swedish sorts "ä" after "z", German beside "a"; an unknown user locale sorts as
// American English.
TEST(LocaleAwareCompare, FollowsTheUsersLocaleNotTheLibrarys) {
    QLocale const previous;
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    struct Case {
        char const* lang;
        int aeAgainstZ;  // sign of Compare("ä", "z")
    } const cases[] = {
        {"sv_SE.UTF-8", 1}, {"fi_FI.UTF-8", 1}, {"de_DE.UTF-8", -1}, {"en_US.UTF-8", -1}, {"C", -1}, {nullptr, -1},
    };
    for (Case const& c : cases) {
        SCOPED_TRACE(c.lang != nullptr ? c.lang : "unset");
        kxtest::ScopedLocaleEnvironment const env(nullptr, nullptr, c.lang);
        EXPECT_EQ(StringUtil::LocaleAwareCompare(QString::fromUtf8("\u00e4"), QStringLiteral("z")), c.aeAgainstZ);
        EXPECT_EQ(StringUtil::LocaleAwareCompare(QStringLiteral("z"), QString::fromUtf8("\u00e4")), -c.aeAgainstZ);
        EXPECT_EQ(StringUtil::LocaleAwareCompare(QStringLiteral("x"), QString()), 0) << "empty still equals all";
    }
    QLocale::setDefault(previous);
}
