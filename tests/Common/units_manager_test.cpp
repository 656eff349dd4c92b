// UnitsManager: lifecycle, current locale and Qt's default locale, the wide-buffer
// getters, and translators loaded from an explicit translator files path.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QLocale>
#include <QTemporaryDir>
#include <string>

#include "KxCoreUnitsUI/LocaleUtil.h"
#include "KxCoreUnitsUI/UnitsManager.h"
#include "translation_test_support.h"

using kxnorth::platform::core::locale::LocaleUtil;
using kxnorth::platform::core::units::UnitsManager;
using kxtest::ScopedLocaleEnvironment;

namespace {

UnitsManager* Mgr() { return UnitsManager::GetInstance(); }
bool SetLocale(QString const& name) { return Mgr()->SetCurrentLocale(name.toStdWString().c_str()); }
bool SetPath(QString const& path) { return Mgr()->SetTranslatorFilesPath(path.toStdWString().c_str()); }
QString Tr(char const* sourceText) { return QCoreApplication::translate("KxTest", sourceText); }

QString CurrentLocale() {
    wchar_t buffer[64];
    Mgr()->GetCurrentLocale(buffer, 64);
    return QString::fromWCharArray(buffer);
}

QString CurrentPath() {
    std::wstring buffer(1024, L'\0');
    Mgr()->GetTranslatorFilesPath(buffer.data(), static_cast<int>(buffer.size()));
    return QString::fromWCharArray(buffer.c_str());
}

// Each test starts without a manager, in the user's locale "fr_FR" (so that neither
// the system locale nor the fallback LCID is "en-US"), and leaves Qt's default
// locale as it found it.
class UnitsManagerTest : public ::testing::Test {
protected:
    void SetUp() override { UnitsManager::Uninitialize(); }
    void TearDown() override {
        UnitsManager::Uninitialize();
        QLocale::setDefault(m_savedDefaultLocale);
    }

    ScopedLocaleEnvironment m_environment{"fr_FR.UTF-8", nullptr, nullptr};
    QLocale m_savedDefaultLocale;
};
using UnitsManagerDeathTest = UnitsManagerTest;

// German and French "KxUICore" folders (the French one also holding a German file
// under the upper-case module name) and a folder without files.
class UnitsManagerTranslationTest : public UnitsManagerTest {
protected:
    void SetUp() override {
        UnitsManagerTest::SetUp();
        ASSERT_TRUE(kxtest::CompileTranslation("KxUICore_de-DE", m_german + "/KxUICore.qm"));
        ASSERT_TRUE(kxtest::CompileTranslation("KxUICore_fr-FR", m_french + "/KxUICore.qm"));
        ASSERT_TRUE(kxtest::CompileTranslation("KxUICore_de-DE", m_french + "/KXUICORE.qm"));
        ASSERT_TRUE(QDir().mkpath(m_none));
    }

    QTemporaryDir m_root;
    QString const m_german = m_root.path() + "/de";
    QString const m_french = m_root.path() + "/fr";
    QString const m_none = m_root.path() + "/none";
};

}  // namespace

TEST_F(UnitsManagerTest, LifecycleFromInitializeToAFreshInstance) {
    EXPECT_TRUE(UnitsManager::Initialize());
    EXPECT_FALSE(UnitsManager::Initialize());

    UnitsManager* manager = Mgr();
    EXPECT_EQ(Mgr(), manager);
    EXPECT_EQ(CurrentLocale(), "fr-FR");
    EXPECT_STREQ(manager->GetCurrentLocaleThreeLetterISOLanguageName(), "fra");
    EXPECT_EQ(QLocale().name(), "fr_FR");
    EXPECT_TRUE(SetPath(QString()));
    EXPECT_EQ(CurrentPath(), QString());

    ASSERT_TRUE(SetLocale("de-DE") && SetPath("/opt/kx/de-DE"));
    EXPECT_TRUE(UnitsManager::Uninitialize());
    EXPECT_TRUE(UnitsManager::Uninitialize()) << "without an instance too";
    EXPECT_TRUE(UnitsManager::Initialize());

    ScopedLocaleEnvironment const swedish("sv_SE.UTF-8", nullptr, nullptr);
    EXPECT_EQ(CurrentLocale(), "sv-SE");
    EXPECT_STREQ(Mgr()->GetCurrentLocaleThreeLetterISOLanguageName(), "swe");
    EXPECT_EQ(CurrentPath(), QString());
}

TEST_F(UnitsManagerTest, SameLocaleInAnyCaseIsKeptAndEmptyMeansTheUserLocale) {
    ASSERT_TRUE(SetLocale("en-US"));
    EXPECT_TRUE(SetLocale("EN-us"));
    EXPECT_EQ(CurrentLocale(), "en-US") << "the stored spelling stays";
    EXPECT_TRUE(SetLocale("de-ch"));
    EXPECT_EQ(CurrentLocale(), "de-ch") << "a new name is stored as given";

    EXPECT_TRUE(SetLocale(QString()));
    EXPECT_EQ(CurrentLocale(), "fr-FR");
    ASSERT_TRUE(SetLocale("de-DE"));
    EXPECT_TRUE(Mgr()->SetCurrentLocale(nullptr));
    EXPECT_EQ(CurrentLocale(), "fr-FR");
}

TEST_F(UnitsManagerTest, LocaleBecomesQtDefaultAndNamesItsLanguage) {
    char const* const cases[][3] = {
        {"de-DE", "de_DE", "deu"},
        {"it-CH", "it_CH", "ita"},
        {"zh-SG", "zh_SG", "cht"},
        {"pt-PT", "pt_BR", "ptb"},  // the region repeats the language, and Qt's "pt" is Brazil
        {"de-BE", "de_BE", "eng"},  // Qt knows it, the locale table does not
        {"C", "C", "eng"},
    };
    for (auto const& c : cases) {
        SCOPED_TRACE(c[0]);
        EXPECT_TRUE(SetLocale(c[0]));
        EXPECT_EQ(QLocale().name(), c[1]);
        EXPECT_STREQ(Mgr()->GetCurrentLocaleThreeLetterISOLanguageName(), c[2]);
    }
}

// Both getters hand their text to the bounded copy (tested at every capacity with
// the string utilities); here only that they do.
TEST_F(UnitsManagerTest, GettersTruncateAndAlwaysTerminate) {
    ASSERT_TRUE(SetLocale("en-US") && SetPath("/opt/kx"));
    EXPECT_EQ(Mgr()->GetCurrentLocale(nullptr, 0), 5);
    EXPECT_EQ(Mgr()->GetTranslatorFilesPath(nullptr, 0), 7);
    wchar_t buffer[8];
    EXPECT_EQ(Mgr()->GetCurrentLocale(buffer, 5), 4);
    EXPECT_STREQ(buffer, L"en-U");
    EXPECT_EQ(Mgr()->GetTranslatorFilesPath(buffer, 4), 3);
    EXPECT_STREQ(buffer, L"/op");
}

TEST_F(UnitsManagerTranslationTest, PathChangesReloadAndAMissingFileKeepsTheLastOne) {
    ASSERT_TRUE(SetPath(m_german));
    EXPECT_EQ(Tr("Length"), QString::fromUtf8("Länge"));
    EXPECT_EQ(Tr("Angle"), "Winkel");

    ASSERT_TRUE(SetPath(m_french));
    EXPECT_EQ(Tr("Length"), "Longueur");
    EXPECT_EQ(Tr("Angle"), "Angle") << "the German file was replaced, not kept beside";
    EXPECT_TRUE(SetPath(m_french.toUpper()));
    EXPECT_EQ(CurrentPath(), m_french) << "a path differing only in case is the same path";
    // KXUICORE.qm (German) lies beside KxUICore.qm: a second translator would find it.
    EXPECT_TRUE(LocaleUtil::InstallTranslator("KXUICORE"));
    EXPECT_EQ(Tr("Length"), "Longueur");

    ASSERT_TRUE(SetPath(m_none));
    EXPECT_EQ(CurrentPath(), m_none);
    EXPECT_EQ(Tr("Length"), "Longueur");
    UnitsManager::Uninitialize();
    EXPECT_EQ(Tr("Length"), "Length") << "translators leave the application with the manager";
}

TEST_F(UnitsManagerTranslationTest, ThousandSwitchesLeaveNothingBehind) {
    for (int i = 0; i < 1000; ++i) {
        bool const german = i % 2 == 0;
        ASSERT_TRUE(SetPath(german ? m_german : m_french));
        ASSERT_TRUE(SetLocale(german ? "de-DE" : "fr-FR"));
        if (i % 100 < 2) {
            ASSERT_EQ(Tr("Length"), german ? QString::fromUtf8("Länge") : "Longueur") << i;
        }
    }
    QCoreApplication::sendPostedEvents();
    // Nothing of the switches may stay installed or allocated once the manager is
    // gone; the sanitizer build reports a leaked or stale translator.
    UnitsManager::Uninitialize();
    EXPECT_EQ(Tr("Length"), "Length");
}

TEST_F(UnitsManagerDeathTest, LocaleUnknownToQtIsAProgrammingError) {
    EXPECT_DEATH(SetLocale("xx-YY"), "locale != QLocale::c\\(\\)");
}

TEST_F(UnitsManagerDeathTest, TranslationFileThatCannotBeLoadedIsAProgrammingError) {
    QTemporaryDir root;
    QFile garbage(root.path() + "/KxUICore.qm");
    ASSERT_TRUE(garbage.open(QIODevice::WriteOnly) && garbage.write("not a translation file") > 0);
    garbage.close();
    EXPECT_DEATH(SetPath(root.path()), "bLoaded");
}
