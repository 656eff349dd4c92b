// Shared by the locale, manager and translator tests: a scoped locale environment
// and translation files compiled from tests/fixtures/translations at test time.
#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QString>

namespace kxtest {

// Sets LC_ALL, LC_MESSAGES and LANG (null: unset); restores them on destruction.
class ScopedLocaleEnvironment {
public:
    ScopedLocaleEnvironment(char const* lcAll, char const* lcMessages, char const* lang) {
        char const* const values[3] = {lcAll, lcMessages, lang};
        for (int i = 0; i < 3; ++i) {
            m_wasSet[i] = qEnvironmentVariableIsSet(kNames[i]);
            m_saved[i] = qgetenv(kNames[i]);
            values[i] != nullptr ? qputenv(kNames[i], values[i]) : qunsetenv(kNames[i]);
        }
    }
    ~ScopedLocaleEnvironment() {
        for (int i = 0; i < 3; ++i) m_wasSet[i] ? qputenv(kNames[i], m_saved[i]) : qunsetenv(kNames[i]);
    }
    ScopedLocaleEnvironment(ScopedLocaleEnvironment const&) = delete;
    ScopedLocaleEnvironment& operator=(ScopedLocaleEnvironment const&) = delete;

private:
    static constexpr char const* kNames[3] = {"LC_ALL", "LC_MESSAGES", "LANG"};
    bool m_wasSet[3] = {};
    QByteArray m_saved[3];
};

// Compiles tests/fixtures/translations/<tsName>.ts into `qmPath`, creating its folder.
inline bool CompileTranslation(QString const& tsName, QString const& qmPath) {
    QDir().mkpath(QFileInfo(qmPath).absolutePath());
    QString const ts = QStringLiteral(KX_TEST_FIXTURES_DIR "/translations/") + tsName + QStringLiteral(".ts");
    return QProcess::execute(QStringLiteral(KX_TEST_LRELEASE), {QStringLiteral("-silent"), ts, QStringLiteral("-qm"), qmPath}) == 0
        && QFile::exists(qmPath);
}

// An empty file: enough for a search that only asks whether a file exists.
inline bool TouchFile(QString const& path) {
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    return file.open(QIODevice::WriteOnly);
}

}  // namespace kxtest
