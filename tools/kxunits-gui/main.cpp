// kxunits-gui: a converter window on the widgets library. One quantity field, read in
// any unit of the chosen group, and its value in several units and styles below.
//
//   kxunits-gui [--locale L] [--group 0x2000] [--symbol 0x802016] [--precision N]
//               [--text T] [--screenshot FILE] [--print]
//
// With --screenshot the window is drawn into FILE (PNG), with --print its rows are
// written to standard output, and the program ends; on a machine without a display,
// QT_QPA_PLATFORM=offscreen draws it all the same.
#include <QApplication>
#include <QCommandLineParser>
#include <QPixmap>
#include <cstdio>

#include "../kxunits/Session.h"
#include "../kxunits/Text.h"
#include "ConverterWindow.h"
#include "KxCoreUnitsWidgets/QuantitySpinBox.h"

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("kxunits-gui"));
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Converts a typed quantity into several units and styles."));
    parser.addHelpOption();
    QCommandLineOption const locale(QStringLiteral("locale"), QStringLiteral("locale to start in"), QStringLiteral("L"));
    QCommandLineOption const group(QStringLiteral("group"), QStringLiteral("unit group identifier (0x2000: Length)"),
                                   QStringLiteral("ID"));
    QCommandLineOption const text(QStringLiteral("text"), QStringLiteral("text to enter into the field"),
                                  QStringLiteral("T"));
    QCommandLineOption const precision(QStringLiteral("precision"), QStringLiteral("decimals (fractions: power of two)"),
                                       QStringLiteral("N"));
    QCommandLineOption const symbol(QStringLiteral("symbol"), QStringLiteral("display symbol of the field"),
                                    QStringLiteral("ID"));
    QCommandLineOption const print(QStringLiteral("print"), QStringLiteral("write the rows to standard output and quit"));
    QCommandLineOption const screenshot(QStringLiteral("screenshot"), QStringLiteral("draw the window into a PNG and quit"),
                                        QStringLiteral("FILE"));
    parser.addOptions({locale, group, symbol, text, precision, screenshot, print});
    parser.process(app);

    kxunits::Session session;
    if (session.Locales().empty()) {
        kxunits::Error(session.UseLocale(QString()));
        return kxunits::kExitFailed;
    }
    int status = kxunits::kExitOk;
    {
        kxunits::ConverterWindow window(session);
        if (parser.isSet(locale) && !window.selectLocale(parser.value(locale))) {
            kxunits::Error(QStringLiteral("no translations for locale %1").arg(kxunits::Quoted(parser.value(locale))));
            return kxunits::kExitBadInput;
        }
        if (parser.isSet(group) && !window.selectGroup(parser.value(group).toInt(nullptr, 0))) {
            kxunits::Error(QStringLiteral("no unit group %1").arg(kxunits::Quoted(parser.value(group))));
            return kxunits::kExitBadInput;
        }
        if (parser.isSet(symbol) && !window.selectSymbol(parser.value(symbol).toInt(nullptr, 0))) {
            kxunits::Error(QStringLiteral("the field cannot show %1").arg(kxunits::Quoted(parser.value(symbol))));
            return kxunits::kExitBadInput;
        }
        if (parser.isSet(precision)) window.setPrecision(parser.value(precision).toInt());
        if (parser.isSet(text)) window.enterText(parser.value(text));
        if (parser.isSet(print)) {
            kxunits::Out(window.field()->text());
            for (QString const& row : window.resultTexts()) kxunits::Out(row);
        } else if (parser.isSet(screenshot)) {
            window.show();
            QApplication::processEvents();
            if (!window.grab().save(parser.value(screenshot), "PNG")) {
                kxunits::Error(QStringLiteral("cannot write %1").arg(kxunits::Quoted(parser.value(screenshot))));
                status = kxunits::kExitFailed;
            }
        } else {
            window.show();
            status = QApplication::exec();
        }
    }
    return status;
}
