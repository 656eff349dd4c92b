// kxunits: formats values with units, reads typed quantities and converts between
// units from the command line, on the public interface of KxCoreUnitsUI.
#include <QCoreApplication>
#include <QStringList>

#include "Commands.h"
#include "Session.h"
#include "Text.h"

#ifndef KXUNITS_VERSION
#define KXUNITS_VERSION "unknown"
#endif

namespace {

using namespace kxunits;

QString MainHelp() {
    QString text = QStringLiteral(
        "Usage: kxunits COMMAND [ARGUMENTS] [OPTIONS]\n\n"
        "Formats values with units, reads quantities as people type them, and converts\n"
        "between units, in the locales whose translations are installed.\n\n"
        "Commands:\n");
    for (Command const& command : AllCommands()) {
        QString const left = QLatin1String(command.syntax.name) + QLatin1Char(' ') + QLatin1String(command.syntax.arguments);
        text += QStringLiteral("  ") + left.leftJustified(20) + QString::fromUtf8(command.syntax.summary) + QLatin1Char('\n');
    }
    text += QStringLiteral(
        "\nUnits, symbols and groups are named by global name (Foot, Length,\n"
        "Inch_FootPrimeInchDoublePrime_Fraction) or by identifier in hex (0x2017) or decimal\n"
        "(8215); 'kxunits units' lists them. 'kxunits COMMAND --help' describes a command.\n\n"
        "Exit status: 0 done; 1 the library could not do it; 2 the command line, a name or\n"
        "a text to read was not understood.\n");
    return text;
}

Command const* FindCommand(QString const& name) {
    for (Command const& command : AllCommands()) {
        if (name == QLatin1String(command.syntax.name)) return &command;
    }
    return nullptr;
}

int Main(QStringList args) {
    args.removeFirst();  // the program
    if (args.isEmpty()) {
        Write(stderr, MainHelp());
        return kExitBadInput;
    }
    QString const first = args.takeFirst();
    if (first == QLatin1String("--help") || first == QLatin1String("-h") || first == QLatin1String("help")) {
        if (!args.isEmpty()) {
            if (Command const* command = FindCommand(args.front())) {
                Write(stdout, HelpText(command->syntax));
                return kExitOk;
            }
            Error(QStringLiteral("help: unknown command %1").arg(Quoted(args.front())));
            return kExitBadInput;
        }
        Write(stdout, MainHelp());
        return kExitOk;
    }
    if (first == QLatin1String("--version")) {
        Out(QStringLiteral("kxunits " KXUNITS_VERSION));
        return kExitOk;
    }
    Command const* command = FindCommand(first);
    if (command == nullptr) {
        QStringList names;
        for (Command const& c : AllCommands()) names << QLatin1String(c.syntax.name);
        Error(QStringLiteral("unknown command %1; the commands are %2 ('kxunits --help')")
                  .arg(Quoted(first), names.join(QStringLiteral(", "))));
        return kExitBadInput;
    }

    Arguments parsed;
    QString const error = ParseArguments(command->syntax, args, parsed);
    if (!error.isEmpty()) {
        Error(error);
        return kExitBadInput;
    }
    if (parsed.help) {
        Write(stdout, HelpText(command->syntax));
        return kExitOk;
    }
    Session session;
    return command->run(session, parsed);
}

}  // namespace

int main(int argc, char** argv) {
    // The units manager requires the application object.
    QCoreApplication app(argc, argv);
    return Main(QCoreApplication::arguments());
}
