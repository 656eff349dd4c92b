// kxunits repl: one quantity per line in, one line of answers out.
#include <QStringList>
#include <algorithm>
#include <memory>
#include <cstdio>
#include <iostream>
#include <string>
#include <unistd.h>

#include "Commands.h"
#include "KxCoreUnits/UnitsUtilities.h"
#include "KxCoreUnitsUI/ParseDiagnostics.h"
#include "Quantities.h"
#include "Session.h"
#include "Text.h"
#include "UnitNames.h"

namespace kxunits {

namespace units = kxnorth::platform::core::units;

namespace {

constexpr int kDefaultPrecision = 4;

struct Style {
    int symbol;
    int precision;
};

struct StyleName {
    wchar_t const* symbol;  // global name
    int precision;
};

struct GroupStyles {
    int group;
    std::vector<StyleName> styles;
};

// The styles a person compares a quantity in. Symbols are named, not numbered, so the
// table survives renumbering; names the catalogue lacks are skipped.
std::vector<GroupStyles> const& StyleTable() {
    static std::vector<GroupStyles> const table = {
        {0x2000, {{L"m", kDefaultPrecision}, {L"Inch_FootPrimeInchDoublePrime_Fraction", 4}, {L"ft", kDefaultPrecision}}},
        {0x8000,
         {{L"degree_OneChar", kDefaultPrecision}, {L"Degree_DegreeDegreeMinutePrimeSecondDoublePrime", 2}, {L"rad", 6}}},
        {0x2A000, {{L"degreeC", 2}, {L"degreeF", 2}, {L"K", 2}}},
        {0x2C000, {{L"s", 3}, {L"Second_MinutePrimeSecondDoublePrime", 2}, {L"h", kDefaultPrecision}}},
    };
    return table;
}

// The unit's short symbol: its second one where it has one (the first writes the unit's name).
int ShortSymbol(int unit) {
    std::vector<int> const symbols = CatalogueSymbols(unit);
    if (symbols.empty()) return 0;
    return symbols.size() > 1 ? symbols[1] : symbols[0];
}

std::vector<Style> StylesFor(int unit, int precisionOverride) {
    auto precision = [precisionOverride](int p) { return precisionOverride >= 0 ? precisionOverride : p; };
    std::vector<Style> styles;
    auto add = [&styles](int symbol, int p) {
        if (symbol == 0) return;
        for (Style const& s : styles) {
            if ((s.symbol & units::kIdentityMask) == (symbol & units::kIdentityMask)) return;
        }
        styles.push_back({symbol, p});
    };
    int const group = GroupOf(unit);
    std::vector<StyleName> const* named = nullptr;
    for (GroupStyles const& entry : StyleTable()) {
        if (entry.group == group) named = &entry.styles;
    }
    std::vector<Style> fixed;
    if (named != nullptr) {
        for (StyleName const& style : *named) {
            units::UnitSymbol symbol{};
            if (units::UnitsUtilities::GetUnitSymbol(style.symbol, symbol) == units::eEOk) {
                fixed.push_back({symbol, precision(style.precision)});
            }
        }
    }
    // The unit asked for comes first unless one of the fixed styles already writes it.
    bool const unitCovered = std::any_of(fixed.begin(), fixed.end(), [unit](Style const& s) { return UnitOf(s.symbol) == unit; });
    if (!unitCovered) add(ShortSymbol(unit), precision(kDefaultPrecision));
    for (Style const& style : fixed) add(style.symbol, style.precision);
    if (named == nullptr) add(ShortSymbol(group | 1), precision(kDefaultPrecision));
    return styles;
}

class Repl {
public:
    Repl(Session& session, NumberOptions options, bool interactive)
        : m_session(session), m_options(std::move(options)), m_interactive(interactive) {}

    // Both return the error text, empty when done.
    QString SetUnit(QString const& name) {
        IdLookup const found = FindId(name, {IdKind::Unit, IdKind::Symbol, IdKind::Group});
        if (!found.error.isEmpty()) return found.error;
        m_unit = found.kind == IdKind::Group ? (found.id | 1) : UnitOf(found.id);
        m_styles = StylesFor(m_unit, m_options.precision);
        return QString();
    }

    QString SetLocale(QString const& name) {
        QString error = m_session.UseLocale(name);
        if (!error.isEmpty()) return error;
        std::unique_ptr<units::UnitsFormatter> formatter = m_session.MakeFormatter();
        NumberOptions separatorsOnly = m_options;
        separatorsOnly.precision = -1;  // each style sets its own
        error = m_session.ApplyNumberOptions(separatorsOnly, *formatter);
        if (!error.isEmpty()) return error;
        m_formatter = std::move(formatter);
        return QString();
    }

    // Reads standard input to its end (or :quit); returns the exit code.
    int Run() {
        if (m_interactive) {
            Out(QStringLiteral("Reading quantities of %1 in %2, locale %3. :help lists the commands.")
                    .arg(GroupWord(m_unit), GlobalName(m_unit), m_session.Locale()));
        }
        bool allRead = true;
        std::string line;
        for (;;) {
            if (m_interactive) {
                std::fputs("> ", stdout);
                std::fflush(stdout);
            }
            if (!std::getline(std::cin, line)) break;
            if (!line.empty() && line.back() == '\r') line.pop_back();
            QString const text = QString::fromUtf8(line.data(), static_cast<qsizetype>(line.size())).trimmed();
            if (text.isEmpty()) continue;
            if (text.startsWith(QLatin1Char(':'))) {
                if (!Command(text)) break;
            } else if (!Answer(text)) {
                allRead = false;
            }
            std::fflush(stdout);
        }
        if (m_interactive) std::fputc('\n', stdout);
        return allRead ? kExitOk : kExitBadInput;
    }

private:
    bool Report(QString const& error) {
        Out(QStringLiteral("error: ") + error);
        return false;
    }

    bool Answer(QString const& text) {
        double value = 0;
        std::wstring const wide = ToWide(text);
        units::ParseDiagnostics why;
        if (units::DiagnoseParse(*m_formatter, wide.c_str(), value, m_unit, why) != 0) {
            // One answer per line: where reading stopped is quoted rather than pointed at.
            QString const reason = QLatin1String(units::ParseFailureReasonText(why.reason));
            QString const rest = why.offset >= 0 && static_cast<std::size_t>(why.offset) < wide.size()
                                     ? QStringLiteral(" at %1").arg(Quoted(QString::fromStdWString(wide.substr(why.offset))))
                                     : QString();
            return Report(QStringLiteral("cannot read %1 as %2: %3%4").arg(Quoted(text), GroupWord(m_unit), reason, rest));
        }
        QStringList answers;
        for (Style const& style : m_styles) {
            m_formatter->SetNumberDecimalPrecision(style.precision);
            QString written;
            int result = 0;
            if (FormatValue(*m_formatter, value, m_unit, style.symbol, written, result)) answers << written;
        }
        if (answers.isEmpty()) {
            // Nothing would write it; the number itself still answers the line.
            answers << NumberText(value) + QLatin1Char(' ') + GlobalName(m_unit);
        }
        Out(answers.join(QStringLiteral(" = ")));
        return true;
    }

    // Returns false to stop reading.
    bool Command(QString const& text) {
        QString const name = text.section(QLatin1Char(' '), 0, 0, QString::SectionSkipEmpty);
        QString const argument = text.section(QLatin1Char(' '), 1, -1, QString::SectionSkipEmpty).trimmed();
        if (name == QLatin1String(":quit") || name == QLatin1String(":q")) return false;
        if (name == QLatin1String(":unit") && !argument.isEmpty()) {
            QString const error = SetUnit(argument);
            if (!error.isEmpty()) {
                Report(error);
                return true;
            }
            Out(QStringLiteral("unit: %1 (%2), group %3").arg(GlobalName(m_unit), IdText(m_unit), GroupWord(m_unit)));
        } else if (name == QLatin1String(":locale") && !argument.isEmpty()) {
            QString const error = SetLocale(argument);
            if (!error.isEmpty()) {
                Report(error);
                return true;
            }
            Out(QStringLiteral("locale: ") + m_session.Locale());
        } else if (name == QLatin1String(":help")) {
            Out(QStringLiteral(":unit UNIT | :locale L | :help | :quit; any other line is a quantity"));
        } else {
            Report(QStringLiteral("unknown command %1; :help lists the commands").arg(Quoted(text)));
        }
        return true;
    }

    Session& m_session;
    NumberOptions m_options;
    bool m_interactive;
    std::unique_ptr<units::UnitsFormatter> m_formatter;
    int m_unit = 0;
    std::vector<Style> m_styles;
};

}  // namespace

int RunRepl(Session& session, Arguments const& args) {
    NumberOptions options;
    QString const error = Session::ReadNumberOptions(args, options);
    if (!error.isEmpty()) {
        Error(error);
        return kExitBadInput;
    }
    Repl repl(session, options, isatty(STDIN_FILENO) != 0);
    // Errors of the start-up settings go to standard error: no line has been read yet.
    QString startError = repl.SetLocale(args.Value(kLocaleOption.name));
    if (startError.isEmpty()) startError = repl.SetUnit(args.positionals.isEmpty() ? QStringLiteral("Meter") : args.positionals[0]);
    if (!startError.isEmpty()) {
        Error(QStringLiteral("repl: ") + startError);
        return kExitBadInput;
    }
    return repl.Run();
}

}  // namespace kxunits
