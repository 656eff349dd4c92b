// A small host application for the translator tests. The search for translation
// files starts next to the executable, so the tests copy this program into folder
// trees of their own and run it there.
//
// Each argument is one command; commands that answer print one line:
//   init               create the units manager (system locale from the environment)
//   locale=NAME        UnitsManager::SetCurrentLocale
//   resolve=LOCALE     the "KxUICore" file found next to the application, or empty
//   tr=TEXT            TEXT translated in context "KxTest" by the installed translators
//   toggle=N:A:B       switch the locale N times between A and B, ending on B if N is odd
//   uninit             UnitsManager::Uninitialize
#include <QCoreApplication>
#include <QStringList>
#include <cstdio>
#include <string>

#include "KxCoreUnitsUI/LocaleUtil.h"
#include "KxCoreUnitsUI/UnitsManager.h"

namespace units = kxnorth::platform::core::units;
using kxnorth::platform::core::locale::LocaleUtil;

namespace {

void SetLocale(QString const& name) {
    std::wstring const wide = name.toStdWString();
    units::UnitsManager::GetInstance()->SetCurrentLocale(wide.c_str());
}

void PrintLine(QString const& text) { std::printf("%s\n", text.toUtf8().constData()); }

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    QStringList const commands = app.arguments().mid(1);
    for (QString const& command : commands) {
        QString const argument = command.section(QLatin1Char('='), 1);
        if (command == QLatin1String("init")) {
            units::UnitsManager::GetInstance();
        } else if (command == QLatin1String("uninit")) {
            units::UnitsManager::Uninitialize();
        } else if (command.startsWith(QLatin1String("locale="))) {
            SetLocale(argument);
        } else if (command.startsWith(QLatin1String("resolve="))) {
            PrintLine(LocaleUtil::ResolveTranslatorFile(QStringLiteral("KxUICore"), QStringLiteral("KxUICore"), argument,
                                                        QString()));
        } else if (command.startsWith(QLatin1String("tr="))) {
            PrintLine(QCoreApplication::translate("KxTest", argument.toUtf8().constData()));
        } else if (command.startsWith(QLatin1String("toggle="))) {
            QStringList const parts = argument.split(QLatin1Char(':'));
            if (parts.size() != 3) return 2;
            int const count = parts[0].toInt();
            for (int i = 0; i < count; ++i) SetLocale(parts[i % 2 == 0 ? 2 : 1]);
        } else {
            std::fprintf(stderr, "unknown command: %s\n", command.toUtf8().constData());
            return 2;
        }
    }
    units::UnitsManager::Uninitialize();
    return 0;
}
