#include "KxCoreUnitsWidgets/QuantityValidator.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include <QTranslator>

#include "KxCoreUnits/UnitsConfig.h"
#include "KxCoreUnitsUI/LocaleUtil.h"
#include "KxCoreUnitsUI/UnitsFormatter.h"
#include "KxCoreUnitsUI/UnitsManager.h"
#include "KxCoreUnitsWidgets/QuantityText.h"

namespace kxnorth::platform::core::units {

namespace {

// Characters that end a symbol text being typed: what follows them starts afresh.
bool IsBoundary(QChar c) {
    return c.isSpace() || c.isDigit() || QStringLiteral("+-*/^()").contains(c);
}

// Splits formatted text into the runs between numbers: "N 45°0' E" gives "N", "°",
// "'", "E"; "1.00 m/s" gives "m/s" (after the separator and the digits).
void CollectRuns(QString const& text, QString const& decimal, QString const& group, QStringList& out) {
    QString run;
    auto flush = [&] {
        QString const trimmed = run.trimmed();
        if (!trimmed.isEmpty()) out << trimmed;
        run.clear();
    };
    for (int i = 0; i < text.size();) {
        if (text[i].isDigit() || text[i].isSpace()) {
            flush();
            ++i;
        } else if (!decimal.isEmpty() && text.mid(i).startsWith(decimal) && i + decimal.size() < text.size() &&
                   text[i + decimal.size()].isDigit()) {
            flush();
            i += static_cast<int>(decimal.size());
        } else if (!group.isEmpty() && text.mid(i).startsWith(group) && i + group.size() < text.size() &&
                   text[i + group.size()].isDigit()) {
            flush();
            i += static_cast<int>(group.size());
        } else {
            run += text[i++];
        }
    }
    flush();
}

// The locale's alternate spellings that the formatter reads but never writes ("metre"
// beside "meter"), from the same translation file the formatter loads. Keys are
// "eS<global name>_Alternate<n>" in the context "UnitSymbol_<group>", n from 1 to 10.
QTranslator* LoadAlternates(QString const& locale, QTranslator& translator) {
    constexpr char kModule[] = "KxCoreUnitsUI_units_parsing_alternate_symbols";
    UnitsManager const* manager = UnitsManager::GetInstance();
    int const length = manager->GetTranslatorFilesPath(nullptr, 0);
    std::vector<wchar_t> path(static_cast<std::size_t>(length) + 1, L'\0');
    manager->GetTranslatorFilesPath(path.data(), length + 1);
    QString const file = kxnorth::platform::core::locale::LocaleUtil::ResolveTranslatorFile(
        QLatin1String(kModule), QLatin1String(kModule), locale, QString::fromWCharArray(path.data()));
    return !file.isEmpty() && translator.load(file) ? &translator : nullptr;
}

void CollectAlternates(QTranslator const& translator, int group, int symbol, QStringList& out) {
    UnitsConfig const* config = UnitsConfig::GetInstance();
    QByteArray const context = "UnitSymbol_" + QString::fromWCharArray(config->GetGlobalName(group)).toUtf8();
    QByteArray const stem = "eS" + QString::fromWCharArray(config->GetGlobalName(symbol)).toUtf8() + "_Alternate";
    for (int n = 1; n <= 10; ++n) {
        QString const text = translator.translate(context.constData(), (stem + QByteArray::number(n)).constData());
        if (!text.isEmpty()) out << text;
    }
}

QString Separator(UnitsFormatter const& formatter, bool decimal) {
    wchar_t buffer[64] = {};
    if (decimal) {
        formatter.GetNumberDecimalSeparator(buffer, 64);
    } else {
        formatter.GetNumberGroupSeparator(buffer, 64);
    }
    return QString::fromWCharArray(buffer);
}

}  // namespace

QuantityValidator::QuantityValidator(QObject* parent) : QValidator(parent) {}

QuantityValidator::QuantityValidator(UnitsFormatter const* formatter, int unit, QObject* parent)
    : QValidator(parent), m_formatter(formatter), m_unit(unit) {}

QuantityValidator::~QuantityValidator() = default;

void QuantityValidator::setFormatter(UnitsFormatter const* formatter) {
    m_formatter = formatter;
    resetSymbolTexts();
    Q_EMIT changed();
}

void QuantityValidator::setUnit(int unit) {
    if (unit == m_unit) return;
    m_unit = unit;
    Q_EMIT changed();
}

void QuantityValidator::setDisplaySymbol(int symbol) { m_displaySymbol = symbol; }

void QuantityValidator::resetSymbolTexts() {
    m_symbolTextsLocale.clear();
    m_symbolTexts.clear();
}

bool QuantityValidator::read(QString const& text, double& value) const {
    return m_formatter != nullptr && ParseQuantity(*m_formatter, text, m_unit, value);
}

QValidator::State QuantityValidator::validate(QString& input, int& /*pos*/) const {
    if (m_formatter == nullptr) return Invalid;
    double value = 0.0;
    if (read(input, value)) return Acceptable;
    if (input.trimmed().isEmpty()) return Intermediate;
    // Continuations are tried only on text of a length people type: each try reads the
    // whole text again, and a long paste must not stall every key that follows.
    constexpr qsizetype kLongestJudgedText = 256;
    if (input.size() > kLongestJudgedText) return Intermediate;
    return completes(input) ? Intermediate : Invalid;
}

void QuantityValidator::fixup(QString& input) const {
    double value = 0.0;
    if (!read(input, value)) return;
    int const symbol = m_displaySymbol != 0 ? m_displaySymbol : GroupDefaultSymbol(*m_formatter, m_unit);
    QString const text = FormatQuantity(*m_formatter, value, m_unit, symbol);
    if (!text.isEmpty()) input = text;
}

// Whether one of the continuations tried makes `text` readable. Each try is one Parse
// of a short text, a few microseconds; a symbol being typed narrows the symbol texts
// to those it begins, and only text ending at a boundary tries them all.
bool QuantityValidator::completes(QString const& text) const {
    static QString const kNumberEndings[] = {
        QStringLiteral("1"),  QStringLiteral("0"),   QStringLiteral(")"),   QStringLiteral("1)"),
        QStringLiteral("))"), QStringLiteral("1))"), QStringLiteral("0)"),  QStringLiteral("1\""),
        QStringLiteral(" 1"), QStringLiteral("0\""), QStringLiteral("1/2"), QStringLiteral("1/2\"")};
    static QString const kClosings[] = {QString(), QStringLiteral(")"), QStringLiteral("))"), QStringLiteral("1"),
                                        QStringLiteral("1\"")};
    double value = 0.0;
    for (QString const& ending : kNumberEndings) {
        if (read(text + ending, value)) return true;
    }

    int start = static_cast<int>(text.size());
    while (start > 0 && !IsBoundary(text[start - 1])) --start;
    QString const fragment = text.mid(start);
    QString const head = text.left(start);
    QStringList const& symbols = symbolTexts();
    // Symbol texts that begin with the fragment sort together from its lower bound.
    auto it = std::lower_bound(symbols.begin(), symbols.end(), fragment);
    // Where every symbol text is a candidate, only the commonest closings are tried: a
    // few milliseconds for the ~1,500 texts of a locale.
    std::size_t const closings = fragment.isEmpty() ? 2 : std::size(kClosings);
    for (; it != symbols.end() && it->startsWith(fragment); ++it) {
        for (std::size_t i = 0; i < closings; ++i) {
            if (read(head + *it + kClosings[i], value)) return true;
            // A symbol after a number at a boundary may need a space: "2 m/" + "s".
            if (fragment.isEmpty() && read(head + QLatin1Char(' ') + *it + kClosings[i], value)) return true;
        }
    }
    return false;
}

// Every text the formatter writes around numbers in its locale, learnt once per
// locale by writing 1 in each symbol of the catalogue (1,912 short Format calls),
// and the alternate spellings it reads.
QStringList const& QuantityValidator::symbolTexts() const {
    QString const locale = QString::fromWCharArray(m_formatter->GetLocale());
    if (!m_symbolTexts.isEmpty() && locale == m_symbolTextsLocale) return m_symbolTexts;

    QString const decimal = Separator(*m_formatter, true);
    QString const group = Separator(*m_formatter, false);
    UnitsConfig const* config = UnitsConfig::GetInstance();
    QTranslator translator;
    QTranslator const* alternates = LoadAlternates(locale, translator);
    QStringList texts;
    std::vector<int> groups(config->GetUnitGroups(nullptr));
    config->GetUnitGroups(groups.data());
    for (int const g : groups) {
        std::vector<int> units(config->GetUnitTypes(g, nullptr));
        config->GetUnitTypes(g, units.data());
        for (int const unit : units) {
            std::vector<int> symbols(config->GetUnitSymbols(unit, nullptr));
            config->GetUnitSymbols(unit, symbols.data());
            for (int const symbol : symbols) {
                CollectRuns(FormatQuantity(*m_formatter, 1.0, unit, symbol), decimal, group, texts);
                if (alternates != nullptr) CollectAlternates(*alternates, g, symbol, texts);
            }
        }
    }
    std::sort(texts.begin(), texts.end());
    texts.erase(std::unique(texts.begin(), texts.end()), texts.end());
    m_symbolTexts = texts;
    m_symbolTextsLocale = locale;
    return m_symbolTexts;
}

}  // namespace kxnorth::platform::core::units
