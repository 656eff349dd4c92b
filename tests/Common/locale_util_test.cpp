// LocaleUtil and LCIDUtil: the locale table, conversions and fallbacks, Qt locale
// names, the user's locale from the environment, and translation files in an
// explicit folder.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QSet>
#include <QTemporaryDir>
#include <QTranslator>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <string>

#include "KxCoreUnitsUI/LCIDUtil.h"
#include "KxCoreUnitsUI/LocaleUtil.h"
#include "translation_test_support.h"

using kxnorth::platform::core::locale::LCIDUtil;
using kxnorth::platform::core::locale::LocaleUtil;
using kxtest::ScopedLocaleEnvironment;

namespace {

struct TableRow {
    char name[16];
    char threeLetterName[4];
    std::uint32_t lcid;
};
constexpr TableRow kTable[] = {
#include "LocaleUtil_Locales.inc"
};

QString L1(char const* text) { return QString::fromLatin1(text); }

}  // namespace

TEST(LocaleTable, EveryRowIsUniqueAndRoundTripsThroughEveryConversion) {
    ASSERT_EQ(std::size(kTable), 234u);
    QSet<QString> names;
    QSet<std::uint32_t> lcids;
    int twoLetterRows = 0;
    for (TableRow const& row : kTable) {
        SCOPED_TRACE(row.name);
        QString const name = L1(row.name);
        EXPECT_FALSE(names.contains(name.toLower()) || lcids.contains(row.lcid)) << "first match would hide a row";
        names.insert(name.toLower());
        lcids.insert(row.lcid);
        if (std::strlen(row.threeLetterName) == 2) ++twoLetterRows;
        EXPECT_EQ(LocaleUtil::LocaleNameToLCID(name.toUpper()), row.lcid);
        EXPECT_STREQ(LocaleUtil::LCIDToLocaleName(row.lcid), row.name);
        EXPECT_STREQ(LCIDUtil::LCIDToLocaleName(row.lcid), row.name);
        EXPECT_STREQ(LocaleUtil::LCIDToThreeLetterISOLanguageName(row.lcid), row.threeLetterName);
        EXPECT_STREQ(LocaleUtil::LocaleNameToThreeLetterISOLanguageName(name.toLower()), row.threeLetterName);
    }
    EXPECT_EQ(twoLetterRows, 20);
}

TEST(LocaleTable, RowsFromEveryRegionAndTheKeptOddities) {
    struct Case {
        char const* name;
        unsigned long lcid;
        char const* threeLetterName;
    } const cases[] = {
        {"en-US", 0x0409, "eng"}, {"arn-CL", 0x047A, "arn"}, {"en-029", 0x2409, "eng"}, {"iu-Latn-CA", 0x085D, "iu"},
        {"kok", 0x0057, "kok"},   {"sma-SE", 0x1C3B, "sma"}, {"zh-CHS", 0x0004, "chs"}, {"zu-ZA", 0x0435, "zu"},
        // Kept as they are although they look wrong.
        {"zh-SG", 0x1004, "cht"},  {"pt-PT", 0x0816, "ptb"},  {"hr-BA", 0x101A, "hr"},
        {"hr-HR", 0x041A, "hrv"},  {"sr", 0x7C1A, "srp"},     {"zh-CHT", 0x7C04, "cht"},
    };
    for (auto const& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(LocaleUtil::LocaleNameToLCID(L1(c.name)), c.lcid);
        EXPECT_STREQ(LocaleUtil::LocaleNameToThreeLetterISOLanguageName(L1(c.name)), c.threeLetterName);
    }
}

TEST(LocaleTable, MissesFallBackToEnglishUSOrTheUserDefault) {
    for (unsigned long lcid : {0x0000ul, 0x0400ul, 0x7C00ul, 0x10409ul, 0xFFFFFFFFul}) {
        SCOPED_TRACE(lcid);
        EXPECT_STREQ(LocaleUtil::LCIDToLocaleName(lcid), "en-US");
        EXPECT_STREQ(LCIDUtil::LCIDToLocaleName(lcid), "en-US");
        EXPECT_STREQ(LocaleUtil::LCIDToThreeLetterISOLanguageName(lcid), "eng");
    }
    // A user locale other than "en-US" tells the fallback apart from a hit on "en-US".
    ScopedLocaleEnvironment const env("de_CH.UTF-8", nullptr, nullptr);
    for (char const* name : {"", "C", "c", "xx-YY", "de_DE", "en-U", "en-USA", " en-US", "de-DE-x"}) {
        SCOPED_TRACE(name);
        EXPECT_EQ(LocaleUtil::LocaleNameToLCID(L1(name)), 0x0807u);
        EXPECT_STREQ(LocaleUtil::LocaleNameToThreeLetterISOLanguageName(L1(name)), "eng");
    }
}

TEST(QtLocaleNames, LanguageAloneForItsOwnCountryOtherwiseUnderscores) {
    char const* const cases[][2] = {
        {"it-IT", "it"}, {"it-CH", "it_CH"}, {"en", "en"},           {"en-US", "en_US"},
        {"DE-de", "DE"}, {"fr_FR", "fr"},    {"de-DE-x", "de"},      {"sr-Latn-CS", "sr_Latn_CS"},
        {"a--b", "a__b"}, {"-", ""},         {"", ""},
    };
    for (auto const& c : cases) {
        SCOPED_TRACE(c[0]);
        EXPECT_EQ(LocaleUtil::LocaleNameToQtLocaleName(L1(c[0])), L1(c[1]));
    }
}

TEST(SystemLocale, ComesFromTheMessageCategoryOfTheEnvironment) {
    std::string const fits(63, 'x');
    std::string const tooLong(64, 'x');
    std::string const tooLongBeforeEncoding = tooLong + ".UTF-8";
    std::string const longEncoding = "en_US." + std::string(200, 'u');
    struct Case {
        char const* label;
        char const* lcAll;
        char const* lcMessages;
        char const* lang;
        char const* identifier;
        char const* systemLocale;
        unsigned long lcid;
    } const cases[] = {
        {"LANG with encoding", nullptr, nullptr, "en_US.UTF-8", "en_US", "en-US", 0x0409},
        {"LC_ALL wins", "de_DE.UTF-8@euro", "it_IT", "fr_FR.UTF-8", "de_DE", "de-DE", 0x0407},
        {"empty LC_ALL is skipped", "", "fr_CA", "de_DE", "fr_CA", "fr-CA", 0x0C0C},
        {"LC_MESSAGES wins over LANG", nullptr, "sv_FI.ISO-8859-1", "de_DE", "sv_FI", "sv-FI", 0x081D},
        {"system spelling is kept", nullptr, nullptr, "zh_tw", "zh_tw", "zh-tw", 0x0404},
        {"modifier alone", nullptr, nullptr, "ca_ES@valencia", "ca_ES", "ca-ES", 0x0403},
        {"script form", nullptr, nullptr, "sr_Latn_CS", "sr_Latn_CS", "sr-Latn-CS", 0x081A},
        {"region not in the table", nullptr, nullptr, "sr_RS@latin", "sr_RS", "en-US", 0x0409},
        {"C with encoding", nullptr, nullptr, "C.UTF-8", "C", "en-US", 0x0409},
        {"POSIX", "POSIX", nullptr, "de_DE", "POSIX", "en-US", 0x0409},
        {"nothing set", nullptr, nullptr, nullptr, "", "en-US", 0x0409},
        {"63 bytes fit", nullptr, nullptr, fits.c_str(), fits.c_str(), "en-US", 0x0409},
        {"64 bytes are dropped", nullptr, nullptr, tooLong.c_str(), "", "en-US", 0x0409},
        {"length counts before the encoding", nullptr, nullptr, tooLongBeforeEncoding.c_str(), "", "en-US", 0x0409},
        {"a long encoding does not count", nullptr, nullptr, longEncoding.c_str(), "en_US", "en-US", 0x0409},
    };
    for (Case const& c : cases) {
        SCOPED_TRACE(c.label);
        ScopedLocaleEnvironment const env(c.lcAll, c.lcMessages, c.lang);
        EXPECT_STREQ(LocaleUtil::GetUserDefaultLocaleForMac(), c.identifier);
        EXPECT_EQ(LocaleUtil::GetCurrentSystemLocale(), L1(c.systemLocale));
        EXPECT_EQ(LocaleUtil::GetUserDefaultLocaleLCIDForMac(), c.lcid);
    }
}

TEST(ResolveTranslatorFile, ExplicitFolderIsTheOnlyCandidate) {
    QTemporaryDir root;
    ASSERT_TRUE(root.isValid());
    QString const dir = root.path();
    for (char const* file : {"/KxUICore.qm", "/de-DE/Other.qm", "/Named.v2"}) {
        ASSERT_TRUE(kxtest::TouchFile(dir + L1(file)));
    }
    struct Case {
        char const* label;
        char const* module;
        char const* baseName;
        char const* locale;
        char const* expected;  // relative to the folder; null: not found
    } const cases[] = {
        {"found", "KxUICore", "KxUICore", "de-DE", "/KxUICore.qm"},
        {"locale plays no part", "KxUICore", "KxUICore", "", "/KxUICore.qm"},
        {"locale subfolder is not searched", "Other", "Other", "de-DE", nullptr},
        {"dotted base name stands as it is", "Named", "Named.v2", "de-DE", "/Named.v2"},
        {"dotted base name gets no .qm", "KxUICore", "KxUICore.v1", "de-DE", nullptr},
        {"empty base name: module without extension", "KxUICore.ts", "", "de-DE", "/KxUICore.qm"},
    };
    for (Case const& c : cases) {
        SCOPED_TRACE(c.label);
        EXPECT_EQ(LocaleUtil::ResolveTranslatorFile(L1(c.module), L1(c.baseName), L1(c.locale), dir),
                  c.expected != nullptr ? dir + L1(c.expected) : QString());
    }
    EXPECT_EQ(LocaleUtil::GetSymbolicLinkTarget(dir), dir);
}

TEST(ResolveTranslatorFileDeath, EmptyModuleNameIsAProgrammingError) {
    EXPECT_DEATH(LocaleUtil::ResolveTranslatorFile(QString(), L1("KxUICore"), L1("de-DE"), L1("/tmp")),
                 "!moduleName.isEmpty\\(\\)");
}

TEST(Translate, UsesTheGivenOrElseTheInstalledTranslatorsAndFallsBackToTheSource) {
    QTemporaryDir root;
    QString const qm = root.path() + L1("/KxUICore.qm");
    ASSERT_TRUE(kxtest::CompileTranslation(L1("KxUICore_de-DE"), qm));
    QTranslator german;
    ASSERT_TRUE(german.load(qm));
    QTranslator const empty;

    EXPECT_EQ(LocaleUtil::Translate(german, L1("KxTest"), L1("Length")), QString::fromUtf8("Länge"));
    EXPECT_EQ(LocaleUtil::Translate(german, L1("KxTest"), L1("Mass")), L1("Mass"));
    EXPECT_EQ(LocaleUtil::Translate(german, L1("Other"), L1("Length")), L1("Length"));
    EXPECT_EQ(LocaleUtil::Translate(empty, L1("KxTest"), L1("Angle")), L1("Angle"));
    ASSERT_TRUE(QCoreApplication::installTranslator(&german));
    EXPECT_EQ(LocaleUtil::Translate(empty, L1("KxTest"), L1("Angle")), L1("Winkel"));
    QCoreApplication::removeTranslator(&german);
}
