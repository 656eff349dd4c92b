// Translation files found next to the application: each step of the search, and
// translators following locale changes. The search starts at the running
// executable, so these tests copy a small host program (translator_probe_main.cpp)
// into folder trees and run it there.
#include <gtest/gtest.h>

#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QStringList>
#include <QTemporaryDir>

#include "translation_test_support.h"

namespace {

// root/up2/up1/app/probe. Locations start with a level: "app/de-DE/KxUICore.qm",
// "up1/KxUICore.qm"; "up3" is the root, beyond the search.
class ProbeTree {
public:
    ProbeTree() {
        QString const probe = Location("app/probe");
        m_valid = m_root.isValid() && QDir().mkpath(Location("app"))
               && QFile::copy(QStringLiteral(KX_TEST_TRANSLATOR_PROBE), probe)
               && QFile::setPermissions(probe, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    bool IsValid() const { return m_valid; }

    QString Location(QString relative) const {
        relative.replace(QRegularExpression("^app"), "up2/up1/app").replace(QRegularExpression("^up1"), "up2/up1");
        relative.replace(QRegularExpression("^up3/?"), "");
        return QFileInfo(m_root.path()).canonicalFilePath() + "/" + relative;
    }

    // The probe's output lines, run with the user's locale `lang`; a failed run
    // (exit code, crash, sanitizer report) fails the test.
    QStringList Run(QStringList const& commands, QString const& lang) const {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove("LC_ALL");
        environment.remove("LC_MESSAGES");
        environment.insert("LANG", lang);
        process.setProcessEnvironment(environment);
        process.start(Location("app/probe"), commands);
        bool const finished = process.waitForFinished(120000);
        QString const errors = QString::fromUtf8(process.readAllStandardError());
        EXPECT_TRUE(finished && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0) << "probe failed";
        EXPECT_EQ(errors.toStdString(), "");
        return QString::fromUtf8(process.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
    }

private:
    QTemporaryDir m_root;
    bool m_valid = false;
};

}  // namespace

TEST(TranslatorSearch, FirstExistingCandidateWinsUpToTwoFoldersAboveTheApplication) {
    struct Case {
        char const* label;
        QStringList files;
        QString winner;  // empty: nothing found
    } const cases[] = {
        {"beside the application, before its locale folder",
         {"app/KxUICore.qm", "app/de-DE/KxUICore.qm", "up1/KxUICore.qm"}, "app/KxUICore.qm"},
        {"locale folder beside the application",
         {"app/de-DE/KxUICore.qm", "up1/KxUICore.qm", "up1/de-DE/KxUICore.qm", "up2/KxUICore.qm"},
         "app/de-DE/KxUICore.qm"},
        {"one folder up",
         {"up1/KxUICore.qm", "up1/de-DE/KxUICore.qm", "up2/KxUICore.qm", "up2/de-DE/KxUICore.qm"},
         "up1/KxUICore.qm"},
        {"locale folder one up", {"up1/de-DE/KxUICore.qm", "up2/KxUICore.qm"}, "up1/de-DE/KxUICore.qm"},
        {"two folders up", {"up2/KxUICore.qm", "up2/de-DE/KxUICore.qm"}, "up2/KxUICore.qm"},
        {"locale folder two up", {"up2/de-DE/KxUICore.qm"}, "up2/de-DE/KxUICore.qm"},
        {"other locales' folders are not searched", {"app/fr-FR/KxUICore.qm", "up1/de/KxUICore.qm"}, ""},
        {"three folders up is too far", {"up3/KxUICore.qm", "up3/de-DE/KxUICore.qm"}, ""},
    };
    for (Case const& c : cases) {
        SCOPED_TRACE(c.label);
        ProbeTree const tree;
        ASSERT_TRUE(tree.IsValid());
        for (QString const& file : c.files) ASSERT_TRUE(kxtest::TouchFile(tree.Location(file)));
        QString const expected = c.winner.isEmpty() ? QString() : tree.Location(c.winner);
        EXPECT_EQ(tree.Run({"resolve=de-DE"}, "de_DE.UTF-8").join('|').toStdString(), expected.toStdString());
    }
}

TEST(TranslatorSearch, TranslatorsFollowTheLocaleAndKeepTheLastFileFound) {
    ProbeTree const tree;
    ASSERT_TRUE(tree.IsValid());
    ASSERT_TRUE(kxtest::CompileTranslation("KxUICore_de-DE", tree.Location("app/de-DE/KxUICore.qm")));
    ASSERT_TRUE(kxtest::CompileTranslation("KxUICore_fr-FR", tree.Location("up2/fr-FR/KxUICore.qm")));
    QStringList const commands = {
        "init",         "tr=Length", "tr=Angle",  // installed at first use, in the user's locale
        "locale=fr-FR", "tr=Length", "tr=Angle",  // reloaded, not merged
        "locale=it-IT", "tr=Length",              // no Italian file: French stays
        "locale=de-DE", "tr=Length", "uninit", "tr=Length",
    };
    EXPECT_EQ(tree.Run(commands, "de_DE.UTF-8").join('|').toStdString(),
              "Länge|Winkel|Longueur|Angle|Longueur|Länge|Length");
}

TEST(TranslatorSearch, ThousandLocaleSwitchesLeaveNothingBehind) {
    ProbeTree const tree;
    ASSERT_TRUE(tree.IsValid());
    ASSERT_TRUE(kxtest::CompileTranslation("KxUICore_de-DE", tree.Location("app/de-DE/KxUICore.qm")));
    ASSERT_TRUE(kxtest::CompileTranslation("KxUICore_fr-FR", tree.Location("app/fr-FR/KxUICore.qm")));
    // Each switch loads the other file into the same translator. After "uninit" no
    // translator may answer, and the probe exits without a leak or stale-memory
    // report in the sanitizer build.
    QStringList const commands = {"init", "toggle=1000:de-DE:fr-FR", "tr=Length", "toggle=1:de-DE:fr-FR",
                                  "tr=Length", "uninit", "tr=Length"};
    EXPECT_EQ(tree.Run(commands, "de_DE.UTF-8").join('|').toStdString(), "Länge|Longueur|Length");
}
