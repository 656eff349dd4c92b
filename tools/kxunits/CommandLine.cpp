#include "CommandLine.h"

#include <algorithm>

namespace kxunits {

namespace {

OptionSpec const* FindOption(CommandSpec const& command, QString const& name) {
    for (OptionSpec const& option : command.options) {
        if (name == QLatin1String(option.name)) return &option;
    }
    return nullptr;
}

QString OptionList(CommandSpec const& command) {
    QStringList names;
    for (OptionSpec const& option : command.options) names << QLatin1String(option.name);
    names << QStringLiteral("--help");
    return names.join(QStringLiteral(", "));
}

}  // namespace

QString ParseArguments(CommandSpec const& command, QStringList const& args, Arguments& out) {
    out = Arguments();
    for (QString const& arg : args) {
        if (arg == QLatin1String("--")) break;
        if (arg == QLatin1String("--help") || arg == QLatin1String("-h")) {
            out.help = true;
            return QString();
        }
    }

    bool optionsEnded = false;
    for (qsizetype i = 0; i < args.size(); ++i) {
        QString const& arg = args[i];
        if (optionsEnded || !arg.startsWith(QLatin1String("--"))) {
            out.positionals << arg;
            continue;
        }
        if (arg == QLatin1String("--")) {
            optionsEnded = true;
            continue;
        }
        qsizetype const equals = arg.indexOf(QLatin1Char('='));
        QString const name = equals < 0 ? arg : arg.left(equals);
        OptionSpec const* option = FindOption(command, name);
        if (option == nullptr) {
            return QStringLiteral("%1: unknown option %2 (options: %3)")
                .arg(QLatin1String(command.name), name, OptionList(command));
        }
        if (out.options.contains(name)) {
            return QStringLiteral("%1: %2 given twice").arg(QLatin1String(command.name), name);
        }
        if (option->valueName == nullptr) {
            if (equals >= 0) return QStringLiteral("%1: %2 takes no value").arg(QLatin1String(command.name), name);
            out.options.insert(name, QString());
        } else if (equals >= 0) {
            out.options.insert(name, arg.mid(equals + 1));
        } else if (i + 1 < args.size()) {
            out.options.insert(name, args[++i]);
        } else {
            return QStringLiteral("%1: %2 needs a value (%2 %3)")
                .arg(QLatin1String(command.name), name, QLatin1String(option->valueName));
        }
    }

    qsizetype const count = out.positionals.size();
    if (count < command.minPositionals) {
        return QStringLiteral("%1: missing arguments; usage: kxunits %1 %2")
            .arg(QLatin1String(command.name), QLatin1String(command.arguments));
    }
    if (count > command.maxPositionals) {
        return QStringLiteral("%1: too many arguments (%2 given, at most %3); usage: kxunits %1 %4")
            .arg(QLatin1String(command.name))
            .arg(count)
            .arg(command.maxPositionals)
            .arg(QLatin1String(command.arguments));
    }
    return QString();
}

QString HelpText(CommandSpec const& command) {
    QString text = QStringLiteral("Usage: kxunits %1 %2 [OPTIONS]\n\n%3\n")
                       .arg(QLatin1String(command.name), QLatin1String(command.arguments), QString::fromUtf8(command.summary));
    text += QStringLiteral("\nOptions:\n");
    int width = 6;  // "--help"
    for (OptionSpec const& option : command.options) {
        int const w = static_cast<int>(qstrlen(option.name)) +
                      (option.valueName ? 1 + static_cast<int>(qstrlen(option.valueName)) : 0);
        width = std::max(width, w);
    }
    auto line = [&](QString const& left, char const* help) {
        text += QStringLiteral("  ") + left.leftJustified(width + 2) + QString::fromUtf8(help) + QLatin1Char('\n');
    };
    for (OptionSpec const& option : command.options) {
        QString left = QLatin1String(option.name);
        if (option.valueName) left += QLatin1Char(' ') + QLatin1String(option.valueName);
        line(left, option.help);
    }
    line(QStringLiteral("--help"), "show this help");
    if (command.details) text += QLatin1Char('\n') + QString::fromUtf8(command.details);
    if (!text.endsWith(QLatin1Char('\n'))) text += QLatin1Char('\n');
    return text;
}

}  // namespace kxunits
