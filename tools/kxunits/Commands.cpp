#include "Commands.h"

#include <QLocale>
#include <QStringList>
#include <cmath>

#include "KxCoreUnits/UnitsConfig.h"
#include "KxCoreUnitsUI/LocaleUtil.h"
#include "KxCoreUnitsUI/ParseDiagnostics.h"
#include "Quantities.h"
#include "Session.h"
#include "Text.h"
#include "UnitNames.h"

namespace kxunits {

namespace units = kxnorth::platform::core::units;
using kxnorth::platform::core::locale::LocaleUtil;

namespace {

OptionSpec const kSymbolOption{"--symbol", "ID|NAME", "symbol to write with (default: the unit's default symbol)"};

// Locale and number options of a command, applied to a new formatter. Prints the error.
std::unique_ptr<units::UnitsFormatter> PrepareFormatter(Session& session, Arguments const& args) {
    NumberOptions options;
    QString error = Session::ReadNumberOptions(args, options);
    if (error.isEmpty()) error = session.UseLocale(args.Value(kLocaleOption.name));
    if (!error.isEmpty()) {
        Error(error);
        return nullptr;
    }
    std::unique_ptr<units::UnitsFormatter> formatter = session.MakeFormatter();
    error = session.ApplyNumberOptions(options, *formatter);
    if (!error.isEmpty()) {
        Error(error);
        return nullptr;
    }
    return formatter;
}

// The symbol of --symbol, checked against the unit's dimensions; 0 when not given, -1 on error.
int SymbolOption(Arguments const& args, int unit) {
    if (!args.Has(kSymbolOption.name)) return 0;
    IdLookup const symbol = FindId(args.Value(kSymbolOption.name), {IdKind::Symbol, IdKind::Unit});
    if (!symbol.error.isEmpty()) {
        Error(QStringLiteral("--symbol: ") + symbol.error);
        return -1;
    }
    if (!SameDimensions(symbol.id, unit)) {
        Error(QStringLiteral("--symbol %1 writes %2, but %3 measures %4")
                  .arg(GlobalName(symbol.id), GroupWord(symbol.id), GlobalName(UnitOf(unit)), GroupWord(unit)));
        return -1;
    }
    return symbol.id;
}

bool ReadValue(QString const& text, double& value) {
    bool ok = false;
    value = text.trimmed().toDouble(&ok);
    return ok && std::isfinite(value);
}

// The text on one line and a caret under the character at `offset` below it.
void PointAt(QString const& text, int offset) {
    std::wstring const wide = ToWide(text);
    WriteLine(stderr, QStringLiteral("  ") + text);
    // One column per character; a tab keeps its width by staying a tab.
    QString marker = QStringLiteral("  ");
    for (int i = 0; i < offset && i < static_cast<int>(wide.size()); ++i) {
        marker += wide[static_cast<std::size_t>(i)] == L'\t' ? QLatin1Char('\t') : QLatin1Char(' ');
    }
    WriteLine(stderr, marker + QLatin1Char('^'));
}

// Reads `text` as a quantity in `unit`. On failure prints where and why, and the
// list of units that may be used; a warning is printed whatever the result.
bool ReadQuantity(units::UnitsFormatter const& formatter, QString const& text, int unit, double& value) {
    std::wstring const wide = ToWide(text);
    units::ParseDiagnostics diagnostics;
    int const result = units::DiagnoseParse(formatter, wide.c_str(), value, unit, diagnostics);
    if ((diagnostics.warnings & units::eGroupSeparatorInsideGroup) != 0) {
        Error(QStringLiteral("warning: %1: %2")
                  .arg(Quoted(text), QLatin1String(units::ParseWarningText(units::eGroupSeparatorInsideGroup))));
        PointAt(text, diagnostics.warningOffset);
    }
    if (result == 0) return true;
    QString reason = QLatin1String(units::ParseFailureReasonText(diagnostics.reason));
    if (diagnostics.reason == units::ParseFailureReason::eWrongQuantity) {
        int const found = units::UnitsConfig::GetInstance()->FindUnitGroup(diagnostics.foundDimensions);
        if (found != 0) reason += QStringLiteral(" (%1)").arg(GroupWord(found));
    }
    Error(QStringLiteral("cannot read %1 as %2: %3; 'kxunits units %2' lists the units it may use")
              .arg(Quoted(text), GroupWord(unit), reason));
    if (!text.isEmpty()) PointAt(text, diagnostics.offset);
    return false;
}

}  // namespace

int RunFormat(Session& session, Arguments const& args) {
    double value = 0;
    if (!ReadValue(args.positionals[0], value)) {
        Error(QStringLiteral("format: VALUE must be a finite number such as 1.5, -2e3 or 0.25, not %1; "
                             "to read text with units use 'kxunits convert'")
                  .arg(Quoted(args.positionals[0])));
        return kExitBadInput;
    }
    IdLookup const unit = FindId(args.positionals[1], {IdKind::Unit, IdKind::Symbol});
    if (!unit.error.isEmpty()) {
        Error(QStringLiteral("format: ") + unit.error);
        return kExitBadInput;
    }
    int const symbol = SymbolOption(args, unit.id);
    if (symbol < 0) return kExitBadInput;
    std::unique_ptr<units::UnitsFormatter> formatter = PrepareFormatter(session, args);
    if (!formatter) return kExitBadInput;

    QString text;
    int result = 0;
    if (!FormatValue(*formatter, value, unit.id, symbol, text, result)) {
        Error(QStringLiteral("cannot format %1 %2 with symbol %3 (result %4)")
                  .arg(NumberText(value), GlobalName(unit.id), GlobalName(symbol != 0 ? symbol : unit.id))
                  .arg(result));
        return kExitFailed;
    }
    Out(text);
    return kExitOk;
}

int RunParse(Session& session, Arguments const& args) {
    QString const text = args.positionals[0];
    IdLookup const unit = FindId(args.positionals[1], {IdKind::Unit, IdKind::Symbol});
    if (!unit.error.isEmpty()) {
        Error(QStringLiteral("parse: ") + unit.error);
        return kExitBadInput;
    }
    std::unique_ptr<units::UnitsFormatter> formatter = PrepareFormatter(session, args);
    if (!formatter) return kExitBadInput;

    int const unitId = UnitOf(unit.id);
    double value = 0;
    if (!ReadQuantity(*formatter, text, unitId, value)) return kExitBadInput;
    Out(NumberText(value) + QLatin1Char(' ') + GlobalName(unitId));
    QString si;
    if (SiText(value, unitId, si)) Out(si);
    return kExitOk;
}

int RunConvert(Session& session, Arguments const& args) {
    QString const text = args.positionals[0];
    IdLookup const target = FindId(args.positionals[1], {IdKind::Unit, IdKind::Symbol});
    if (!target.error.isEmpty()) {
        Error(QStringLiteral("convert: ") + target.error);
        return kExitBadInput;
    }
    int symbol = SymbolOption(args, target.id);
    if (symbol < 0) return kExitBadInput;
    if (symbol == 0 && target.kind == IdKind::Symbol) symbol = target.id;
    std::unique_ptr<units::UnitsFormatter> formatter = PrepareFormatter(session, args);
    if (!formatter) return kExitBadInput;

    int const unitId = UnitOf(target.id);
    double value = 0;
    if (!ReadQuantity(*formatter, text, unitId, value)) return kExitBadInput;
    QString written;
    int result = 0;
    if (!FormatValue(*formatter, value, unitId, symbol, written, result)) {
        Error(QStringLiteral("read %1 as %2 %3, but cannot write it with symbol %4 (result %5)")
                  .arg(Quoted(text), NumberText(value), GlobalName(unitId), GlobalName(symbol != 0 ? symbol : unitId))
                  .arg(result));
        return kExitFailed;
    }
    Out(written);
    return kExitOk;
}

namespace {

// One row of a listing: indentation, identifier, global name, display name.
struct ListingRow {
    int depth;
    int id;
    QString name;
    QString display;
};

void PrintRows(std::vector<ListingRow> const& rows) {
    constexpr int kIdWidth = 8;  // "0x102017"
    int nameColumn = 0, nameWidth = 0;
    for (ListingRow const& row : rows) {
        nameColumn = std::max(nameColumn, row.depth * 2 + kIdWidth + 2);
        nameWidth = std::max(nameWidth, static_cast<int>(row.name.size()));
    }
    for (ListingRow const& row : rows) {
        QString line = QString(row.depth * 2, QLatin1Char(' ')) + IdText(row.id).leftJustified(nameColumn - row.depth * 2) +
                       row.name.leftJustified(nameWidth + 2) + row.display;
        while (line.endsWith(QLatin1Char(' '))) line.chop(1);
        Out(line);
    }
}

void AddUnitRows(units::UnitsFormatter const& formatter, int unit, std::vector<ListingRow>& rows) {
    rows.push_back({1, unit, GlobalName(unit), DisplayName(formatter, unit)});
    for (int symbol : CatalogueSymbols(unit)) {
        rows.push_back({2, symbol, GlobalName(symbol), DisplayName(formatter, symbol)});
    }
}

}  // namespace

int RunUnits(Session& session, Arguments const& args) {
    QString const error = session.UseLocale(args.Value(kLocaleOption.name));
    if (!error.isEmpty()) {
        Error(error);
        return kExitBadInput;
    }
    std::unique_ptr<units::UnitsFormatter> formatter = session.MakeFormatter();

    std::vector<int> groups;
    int onlyUnit = 0;
    if (!args.positionals.isEmpty()) {
        IdLookup const found = FindId(args.positionals[0], {IdKind::Group, IdKind::Unit, IdKind::Symbol});
        if (!found.error.isEmpty()) {
            Error(QStringLiteral("units: ") + found.error);
            return kExitBadInput;
        }
        groups.push_back(GroupOf(found.id));
        if (found.kind != IdKind::Group) onlyUnit = UnitOf(found.id);
    } else if (args.Has("--all")) {
        groups = CatalogueGroups();
    }

    if (groups.empty()) {
        std::vector<ListingRow> rows;
        for (int group : CatalogueGroups()) {
            std::size_t const n = CatalogueUnits(group).size();
            QString const count = QStringLiteral("%1 unit%2").arg(n).arg(n == 1 ? "" : "s");
            rows.push_back({0, group, GlobalName(group), DisplayName(*formatter, group) + QStringLiteral("  (") + count + QLatin1Char(')')});
        }
        PrintRows(rows);
        return kExitOk;
    }
    for (int group : groups) {
        std::vector<int> const unitIds = CatalogueUnits(group);
        Out(QStringLiteral("%1 %2 %3: %4 unit%5")
                .arg(IdText(group), GlobalName(group), Quoted(DisplayName(*formatter, group)))
                .arg(unitIds.size())
                .arg(unitIds.size() == 1 ? "" : "s"));
        std::vector<ListingRow> rows;
        for (int unit : unitIds) {
            if (onlyUnit == 0 || unit == onlyUnit) AddUnitRows(*formatter, unit, rows);
        }
        PrintRows(rows);
    }
    return kExitOk;
}

int RunLocales(Session& session, Arguments const&) {
    if (session.Locales().empty()) {
        Error(QStringLiteral("no translations found; looked for <locale>/KxCoreUnitsUI.qm in ") +
              session.SearchedFolders().join(QStringLiteral(" and ")));
        return kExitFailed;
    }
    QString const defaultLocale = session.DefaultLocale();
    struct Row {
        QString mark, name, lcid, language, folder;
    };
    std::vector<Row> rows;
    int nameWidth = 0, languageWidth = 0;
    for (ShippedLocale const& locale : session.Locales()) {
        QLocale const qt(LocaleUtil::LocaleNameToQtLocaleName(locale.name));
        Row row{locale.name == defaultLocale ? QStringLiteral("*") : QStringLiteral(" "), locale.name,
                QStringLiteral("0x%1").arg(static_cast<qulonglong>(LocaleUtil::LocaleNameToLCID(locale.name)), 4, 16,
                                           QLatin1Char('0')),
                qt.nativeLanguageName() + QStringLiteral(" (") + qt.nativeTerritoryName() + QLatin1Char(')'),
                locale.folder};
        nameWidth = std::max(nameWidth, static_cast<int>(row.name.size()));
        languageWidth = std::max(languageWidth, static_cast<int>(row.language.size()));
        rows.push_back(row);
    }
    for (Row const& row : rows) {
        Out(QStringLiteral("%1 %2  %3  %4  %5")
                .arg(row.mark, row.name.leftJustified(nameWidth), row.lcid, row.language.leftJustified(languageWidth),
                     row.folder));
    }
    Out(QStringLiteral("(* the default: the user's locale when shipped, else en-US)"));
    return kExitOk;
}

std::vector<Command> const& AllCommands() {
    static std::vector<Command> const commands = {
        {{"format", "VALUE UNIT", "Write VALUE, a number in UNIT, as text with a unit symbol.", 2, 2,
          {kSymbolOption, kPrecisionOption, kNumberFormatOption, kLocaleOption, kGroupSeparatorOption,
           kDecimalSeparatorOption},
          "VALUE is a plain number in C notation (1.5, -2e3). Numbers are written with the locale's\n"
          "separators unless --group-separator or --decimal-separator say otherwise.\n\n"
          "Examples:\n"
          "  kxunits format 1.5 Meter                       1.50 m\n"
          "  kxunits format 1.68 Meter --symbol Inch_FootPrimeInchDoublePrime_Fraction --precision 3\n"
          "  kxunits format 1234.5 Meter --locale de-DE     1.234,50 m\n\n"
          "Exit status: 0 written; 1 the formatter refused; 2 a bad VALUE, name or option.\n"},
         RunFormat},
        {{"parse", "TEXT UNIT", "Read TEXT, a quantity as a person types it, and print its value in UNIT and in SI.",
          2, 2, {kLocaleOption, kGroupSeparatorOption, kDecimalSeparatorOption},
          "TEXT may hold numbers, unit symbols, feet and inches (5' 6 1/2\"), degrees, minutes and\n"
          "seconds, products, quotients, powers and parentheses. A bare number is read in the\n"
          "default unit of UNIT's group. The first line is the value in UNIT, the second in\n"
          "coherent SI base units.\n\n"
          "Examples:\n"
          "  kxunits parse \"5' 6 1/2\\\"\" Foot\n"
          "  kxunits parse \"10 kg/m^3\" KilogramPerCubicMeter\n"
          "  kxunits parse \"2,5 m\" Foot --locale de-DE\n\n"
          "Exit status: 0 read; 2 TEXT does not read as a quantity of UNIT's kind, or a bad\n"
          "name or option.\n"},
         RunParse},
        {{"convert", "TEXT UNIT", "Read TEXT in the units it names and write it in UNIT (and --symbol).", 2, 2,
          {kSymbolOption, kPrecisionOption, kNumberFormatOption, kLocaleOption, kGroupSeparatorOption,
           kDecimalSeparatorOption},
          "UNIT may be a symbol, which then also chooses how the value is written.\n\n"
          "Examples:\n"
          "  kxunits convert \"5 ft 6 in\" Meter\n"
          "  kxunits convert \"1.68 m\" Inch_FootPrimeInchDoublePrime_Fraction --precision 4\n"
          "  kxunits convert \"68 °F\" DegreeCelsius --locale fr-FR\n\n"
          "Exit status: 0 written; 1 the formatter refused; 2 TEXT does not read as a quantity\n"
          "of UNIT's kind, or a bad name or option.\n"},
         RunConvert},
        {{"units", "[GROUP]", "List the unit groups, or the units and symbols of GROUP (a group, unit or symbol).", 0, 1,
          {{"--all", nullptr, "list every group with its units and symbols"}, kLocaleOption},
          "Each line gives the identifier, the global name and the display name in the locale.\n\n"
          "Examples:\n"
          "  kxunits units\n"
          "  kxunits units Length --locale de-DE\n"
          "  kxunits units 0x2017\n"},
         RunUnits},
        {{"locales", "", "List the locales whose translations are installed.", 0, 0, {},
          "Each line gives the locale, its numeric identifier (LCID), its name and the folder\n"
          "of its translation files.\n"},
         RunLocales},
        {{"repl", "[UNIT]", "Read quantities from standard input, one per line, and answer each in several styles.",
          0, 1,
          {{kPrecisionOption.name, kPrecisionOption.valueName, "decimals of every style, 0 to 99 (default: 4 and sixteenths)"},
           kLocaleOption, kGroupSeparatorOption, kDecimalSeparatorOption},
          "UNIT (default Meter) chooses the kind of quantity; a group name takes its first unit.\n"
          "Every non-empty line gets exactly one line of answer on standard output: the value\n"
          "in the styles of its kind joined by \" = \" (a length: meters, feet and inches with\n"
          "fractions, decimal feet), or \"error: ...\". Lines starting with ':' are commands:\n"
          "  :unit UNIT     read later lines as quantities of UNIT's kind\n"
          "  :locale L      switch the locale\n"
          "  :help          list the commands\n"
          "  :quit          stop (as does the end of input)\n"
          "\n"
          "Example:\n"
          "  printf '%s\\n' \"5' 6 1/2\\\"\" '2.5 m' | kxunits repl Length\n\n"
          "Exit status: 0 when every line was read; 2 when some line was not, or a bad name\n"
          "or option.\n"},
         RunRepl},
    };
    return commands;
}

}  // namespace kxunits
