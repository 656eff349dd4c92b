// The library as the tool uses it: the units manager, the shipped locales with their
// translation folders, and formatters with the number settings of the command line.
#pragma once

#include <QString>
#include <memory>
#include <vector>

#include "CommandLine.h"
#include "KxCoreUnits/UnitsEnums.h"
#include "KxCoreUnitsUI/UnitsFormatter.h"

namespace kxunits {

struct ShippedLocale {
    QString name;    // "de-DE", as its folder is named
    QString folder;  // the folder holding its .qm files
};

// Number settings given on the command line; unset ones keep the formatter's
// defaults, except the separators, which default to the locale's.
struct NumberOptions {
    int precision = -1;  // -1: not given
    bool formatGiven = false;
    kxnorth::platform::core::units::NumberFormat format = kxnorth::platform::core::units::eNFNumber;
    QString groupSeparator;    // empty: the locale's
    QString decimalSeparator;  // empty: the locale's
};

// The options every command that writes or reads numbers accepts.
extern OptionSpec const kLocaleOption;
extern OptionSpec const kGroupSeparatorOption;
extern OptionSpec const kDecimalSeparatorOption;
extern OptionSpec const kPrecisionOption;
extern OptionSpec const kNumberFormatOption;

class Session {
public:
    // Initialises the units manager; the QCoreApplication must exist.
    Session();
    ~Session();
    Session(Session const&) = delete;
    Session& operator=(Session const&) = delete;

    // Locales with all translation files of the library, found next to the program
    // (<dir>/<locale>/, as in the build tree) or in the installed share folder.
    std::vector<ShippedLocale> const& Locales() const { return m_locales; }
    QStringList SearchedFolders() const;
    // The user's locale when it is shipped, else en-US, else the first shipped one.
    QString DefaultLocale() const;

    // Makes the locale that `requested` names (case and '_' for '-' ignored; empty: the
    // default) the current one, with its translation folder. Returns the error text.
    QString UseLocale(QString const& requested);
    QString Locale() const { return m_locale; }

    // A formatter of the current locale.
    std::unique_ptr<kxnorth::platform::core::units::UnitsFormatter> MakeFormatter() const;

    // Reads --precision, --number-format and the separators (those the command has).
    static QString ReadNumberOptions(Arguments const& args, NumberOptions& out);
    // Applies them to `formatter`; separators not given become the current locale's.
    QString ApplyNumberOptions(NumberOptions const& options,
                               kxnorth::platform::core::units::UnitsFormatter& formatter) const;

private:
    std::vector<ShippedLocale> m_locales;
    QString m_locale;
};

}  // namespace kxunits
