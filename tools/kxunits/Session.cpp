#include "Session.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <algorithm>

#include "KxCoreUnitsUI/LocaleConventions.h"
#include "KxCoreUnitsUI/LocaleUtil.h"
#include "KxCoreUnitsUI/UnitsManager.h"
#include "Text.h"
#include "UnitNames.h"

#ifndef KXUNITS_TRANSLATIONS_RELATIVE_DIR
#define KXUNITS_TRANSLATIONS_RELATIVE_DIR "../share/KxCoreUnitsUI/translations"
#endif

namespace kxunits {

namespace units = kxnorth::platform::core::units;
using kxnorth::platform::core::locale::LocaleUtil;

OptionSpec const kLocaleOption{"--locale", "L", "locale of names, symbols and separators (see 'kxunits locales')"};
OptionSpec const kGroupSeparatorOption{"--group-separator", "S", "text between digit groups (default: the locale's)"};
OptionSpec const kDecimalSeparatorOption{"--decimal-separator", "S", "text before the decimals (default: the locale's)"};
OptionSpec const kPrecisionOption{"--precision", "N",
                                  "decimals, 0 to 99 (default 2); for fractions of an inch the power of two "
                                  "of the denominator (3: eighths)"};
OptionSpec const kNumberFormatOption{"--number-format", "NAME",
                                     "Number (default), Fixed Point, General, general, Exponential, "
                                     "exponential or Fraction; or 0 to 6"};

namespace {

// The library loads these modules for every locale; a folder without one of them is no locale.
char const* const kModules[] = {"KxCoreUnitsUI", "KxCoreUnitsUI_units_symbols",
                                "KxCoreUnitsUI_units_parsing_alternate_symbols"};

bool HoldsTranslations(QDir const& folder) {
    for (char const* module : kModules) {
        if (!folder.exists(QLatin1String(module) + QLatin1String(".qm"))) return false;
    }
    return true;
}

QString Normalised(QString name) { return name.trimmed().replace(QLatin1Char('_'), QLatin1Char('-')); }

}  // namespace

Session::Session() {
    units::UnitsManager::Initialize();
    units::UnitsManager::GetInstance();

    for (QString const& root : SearchedFolders()) {
        QDir const dir(root);
        for (QString const& name : dir.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
            QDir const folder(dir.filePath(name));
            if (!name.contains(QLatin1Char('-')) || !HoldsTranslations(folder)) continue;
            bool const seen = std::any_of(m_locales.begin(), m_locales.end(), [&](ShippedLocale const& l) {
                return l.name.compare(name, Qt::CaseInsensitive) == 0;
            });
            if (!seen) m_locales.push_back({name, QDir::cleanPath(folder.absolutePath())});
        }
    }
}

Session::~Session() { units::UnitsManager::Uninitialize(); }

QStringList Session::SearchedFolders() const {
    QString const app = QCoreApplication::applicationDirPath();
    return {QDir::cleanPath(app), QDir::cleanPath(app + QLatin1Char('/') + QLatin1String(KXUNITS_TRANSLATIONS_RELATIVE_DIR))};
}

QString Session::DefaultLocale() const {
    for (QString const& candidate : {LocaleUtil::GetCurrentSystemLocale(), QStringLiteral("en-US")}) {
        for (ShippedLocale const& locale : m_locales) {
            if (locale.name.compare(candidate, Qt::CaseInsensitive) == 0) return locale.name;
        }
    }
    return m_locales.empty() ? QString() : m_locales.front().name;
}

QString Session::UseLocale(QString const& requested) {
    if (m_locales.empty()) {
        return QStringLiteral("no translations found; looked for <locale>/KxCoreUnitsUI.qm in ") +
               SearchedFolders().join(QStringLiteral(" and "));
    }
    QString const wanted = requested.trimmed().isEmpty() ? DefaultLocale() : Normalised(requested);
    ShippedLocale const* found = nullptr;
    for (ShippedLocale const& locale : m_locales) {
        if (locale.name.compare(wanted, Qt::CaseInsensitive) == 0) found = &locale;
    }
    if (found == nullptr) {
        QStringList names;
        for (ShippedLocale const& locale : m_locales) names << locale.name;
        return QStringLiteral("no translations for locale %1; shipped locales: %2")
            .arg(Quoted(requested), names.join(QStringLiteral(", ")));
    }

    // Next to the program the manager finds the files by itself; elsewhere it is told
    // the folder, which holds the files of one locale only.
    QString const beside = QDir::cleanPath(QCoreApplication::applicationDirPath() + QLatin1Char('/') + found->name);
    QString const path = beside.compare(found->folder, Qt::CaseInsensitive) == 0 ? QString() : found->folder;
    units::UnitsManager* manager = units::UnitsManager::GetInstance();
    manager->SetTranslatorFilesPath(ToWide(path).c_str());
    manager->SetCurrentLocale(ToWide(found->name).c_str());
    m_locale = found->name;
    return QString();
}

std::unique_ptr<units::UnitsFormatter> Session::MakeFormatter() const {
    return std::make_unique<units::UnitsFormatter>(ToWide(m_locale).c_str());
}

QString Session::ReadNumberOptions(Arguments const& args, NumberOptions& out) {
    if (args.Has(kPrecisionOption.name)) {
        bool ok = false;
        int const precision = args.Value(kPrecisionOption.name).toInt(&ok);
        if (!ok || precision < 0 || precision > 99) {
            return QStringLiteral("--precision must be a whole number from 0 to 99, not %1")
                .arg(Quoted(args.Value(kPrecisionOption.name)));
        }
        out.precision = precision;
    }
    if (args.Has(kNumberFormatOption.name)) {
        QString error;
        if (!FindNumberFormat(args.Value(kNumberFormatOption.name), out.format, error)) return error;
        out.formatGiven = true;
    }
    for (OptionSpec const* option : {&kGroupSeparatorOption, &kDecimalSeparatorOption}) {
        if (!args.Has(option->name)) continue;
        QString const value = args.Value(option->name);
        if (value.isEmpty()) return QStringLiteral("%1 must not be empty").arg(QLatin1String(option->name));
        if (std::any_of(value.begin(), value.end(), [](QChar c) { return c.isDigit(); })) {
            return QStringLiteral("%1 must not contain digits: %2").arg(QLatin1String(option->name), Quoted(value));
        }
        (option == &kGroupSeparatorOption ? out.groupSeparator : out.decimalSeparator) = value;
    }
    if (!out.groupSeparator.isEmpty() && out.groupSeparator == out.decimalSeparator) {
        return QStringLiteral("the group and decimal separators must differ (both are %1)").arg(Quoted(out.groupSeparator));
    }
    return QString();
}

QString Session::ApplyNumberOptions(NumberOptions const& options, units::UnitsFormatter& formatter) const {
    std::wstring const localeName = ToWide(m_locale);
    units::LocaleConventions const conventions = units::GetLocaleConventions(localeName.c_str());
    QString const group = options.groupSeparator.isEmpty() ? QString::fromWCharArray(conventions.groupSeparator)
                                                           : options.groupSeparator;
    QString const decimal = options.decimalSeparator.isEmpty() ? QString::fromWCharArray(conventions.decimalSeparator)
                                                               : options.decimalSeparator;
    if (group == decimal) {
        // Only one of the two was given, and it equals the locale's other separator.
        return QStringLiteral("the group and decimal separators must differ (both are %1)").arg(Quoted(group));
    }
    if (units::ApplyLocaleConventions(formatter, localeName.c_str()) != 0) {
        return QStringLiteral("the formatter refused the number conventions of %1").arg(m_locale);
    }
    // Each setter erases its old text only while that text still has its own kind,
    // so swapping "," and "." works in either order.
    std::wstring const wideGroup = ToWide(group), wideDecimal = ToWide(decimal);
    if (formatter.SetNumberGroupSeparator(wideGroup.c_str()) != 0) {
        return QStringLiteral("the formatter refused the group separator %1").arg(Quoted(group));
    }
    if (formatter.SetNumberDecimalSeparator(wideDecimal.c_str()) != 0) {
        return QStringLiteral("the formatter refused the decimal separator %1").arg(Quoted(decimal));
    }
    if (options.precision >= 0 && formatter.SetNumberDecimalPrecision(options.precision) != 0) {
        return QStringLiteral("the formatter refused the precision %1").arg(options.precision);
    }
    if (options.formatGiven) formatter.SetNumericFormat(options.format);
    return QString();
}

}  // namespace kxunits
