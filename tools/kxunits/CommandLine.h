// The command line of each command: positional arguments and options with values,
// checked against the command's description, which also gives its --help text.
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <vector>

namespace kxunits {

struct OptionSpec {
    char const* name;       // with its dashes: "--precision"
    char const* valueName;  // "N"; null for an option without a value
    char const* help;
};

struct CommandSpec {
    char const* name;
    char const* arguments;  // "VALUE UNIT", shown in the usage line
    char const* summary;    // one line, for the command list
    int minPositionals;
    int maxPositionals;
    std::vector<OptionSpec> options;
    char const* details;  // paragraphs after the option list; may be null
};

struct Arguments {
    QStringList positionals;
    QMap<QString, QString> options;  // by name with dashes; an option without a value maps to ""
    bool help = false;

    bool Has(char const* name) const { return options.contains(QLatin1String(name)); }
    QString Value(char const* name) const { return options.value(QLatin1String(name)); }
};

// Reads `args` (the words after the command name). Options start with "--" and take
// their value from the next word or after "=" (--precision=3); every other word,
// including "-1.5" and "-6\"", is positional, and "--" ends the options. "-h" and
// "--help" ask for help and skip the checks. Returns the error text, empty when `out`
// is complete.
QString ParseArguments(CommandSpec const& command, QStringList const& args, Arguments& out);

// Usage line, summary, options and details of one command.
QString HelpText(CommandSpec const& command);

}  // namespace kxunits
