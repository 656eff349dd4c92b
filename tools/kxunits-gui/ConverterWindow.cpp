#include "ConverterWindow.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QSpinBox>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <iterator>

#include "../kxunits/Quantities.h"
#include "../kxunits/Session.h"
#include "../kxunits/UnitNames.h"
#include "KxCoreUnitsUI/LocaleConventions.h"
#include "KxCoreUnitsUI/LocaleUtil.h"
#include "KxCoreUnitsUI/StringUtil.h"
#include "KxCoreUnitsWidgets/QuantitySpinBox.h"
#include "KxCoreUnitsWidgets/QuantityText.h"

namespace kxunits {

namespace units = kxnorth::platform::core::units;
using kxnorth::platform::core::locale::LocaleUtil;

namespace {

constexpr int kLength = 0x2000;
constexpr int kDefaultPrecision = 4;

// The symbols the window shows a value in, for the groups people convert most; other
// groups show the short symbol of their first units.
struct GroupStyles {
    int group;
    int symbols[10];  // 0 ends the list early
};
// clang-format off
GroupStyles const kStyles[] = {
    {0x2000,  {0x202001, 0x20200E, 0x202009, 0x202016, 0x202017, 0x20201D, 0x202021, 0x602016, 0x802016, 0x902016}},
    {0x8000,  {0x208002, 0x408002, 0x508002, 0x208001, 0x208004, 0x208008}},
    {0x2A000, {0x22A002, 0x22A003, 0x22A001, 0x22A004}},
    {0x28000, {0x228001, 0x328009, 0x32800A, 0x228006, 0x228010}},
};
// clang-format on
constexpr std::size_t kGenericRows = 8;

std::vector<int> ResultSymbols(int group) {
    std::vector<int> symbols;
    for (GroupStyles const& styles : kStyles) {
        if (styles.group != group) continue;
        for (int const symbol : styles.symbols) {
            if (symbol != 0) symbols.push_back(symbol);
        }
        return symbols;
    }
    for (int const unit : CatalogueUnits(group)) {
        std::vector<int> const own = CatalogueSymbols(unit);
        if (own.empty()) continue;
        symbols.push_back(own.size() >= 2 ? own[1] : own[0]);
        if (symbols.size() == kGenericRows) break;
    }
    return symbols;
}

}  // namespace

ConverterWindow::ConverterWindow(Session& session, QWidget* parent) : QWidget(parent), m_session(session) {
    setWindowTitle(QStringLiteral("kxunits-gui"));
    // The field's formatter loads its translations when it is created: the manager
    // must know their folder first (installed, it is not next to the program).
    m_session.UseLocale(m_session.DefaultLocale());
    m_locales = new QComboBox(this);
    for (ShippedLocale const& locale : m_session.Locales()) {
        QLocale const qt(LocaleUtil::LocaleNameToQtLocaleName(locale.name));
        m_locales->addItem(QStringLiteral("%1  %2").arg(locale.name, qt.nativeLanguageName()), locale.name);
    }
    m_groups = new QComboBox(this);
    m_groups->setMaxVisibleItems(20);
    m_symbols = new QComboBox(this);
    m_precision = new QSpinBox(this);
    m_precision->setRange(0, 8);
    m_precision->setValue(kDefaultPrecision);
    m_field = new units::QuantitySpinBox(this);
    m_status = new QLabel(this);
    m_status->setWordWrap(true);
    m_results = new QTreeWidget(this);
    m_results->setColumnCount(2);
    m_results->setHeaderLabels({QStringLiteral("Shown as"), QStringLiteral("Value")});
    m_results->setRootIsDecorated(false);
    m_results->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);

    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("Locale"), m_locales);
    form->addRow(QStringLiteral("Quantity"), m_groups);
    form->addRow(QStringLiteral("Field shows"), m_symbols);
    form->addRow(QStringLiteral("Precision"), m_precision);
    form->addRow(QStringLiteral("Value"), m_field);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(m_status);
    layout->addWidget(m_results, 1);

    int const initial = m_locales->findData(m_session.DefaultLocale());
    m_locales->setCurrentIndex(std::max(initial, 0));
    onLocaleChosen();
    selectGroup(kLength);
    m_field->setValue(1.6891);

    connect(m_locales, &QComboBox::currentIndexChanged, this, &ConverterWindow::onLocaleChosen);
    connect(m_groups, &QComboBox::currentIndexChanged, this, &ConverterWindow::onGroupChosen);
    connect(m_symbols, &QComboBox::currentIndexChanged, this, &ConverterWindow::onSymbolChosen);
    connect(m_precision, &QSpinBox::valueChanged, this, [this](int precision) { setPrecision(precision); });
    connect(m_field, &units::QuantitySpinBox::valueChanged, this, &ConverterWindow::updateResults);
    connect(m_field, &units::QuantitySpinBox::errorTextChanged, this,
            [this](QString const& text) { m_status->setText(text); });
    resize(500, 470);
}

bool ConverterWindow::selectLocale(QString const& locale) {
    int const index = m_locales->findData(locale, Qt::UserRole, Qt::MatchFixedString);
    if (index < 0) return false;
    m_locales->setCurrentIndex(index);
    onLocaleChosen();
    return true;
}

bool ConverterWindow::selectGroup(int group) {
    int const index = m_groups->findData(group);
    if (index < 0) return false;
    m_groups->setCurrentIndex(index);
    onGroupChosen();
    return true;
}

bool ConverterWindow::selectSymbol(int symbol) {
    int const index = m_symbols->findData(symbol);
    if (index < 0) return false;
    m_symbols->setCurrentIndex(index);
    onSymbolChosen();
    return true;
}

void ConverterWindow::enterText(QString const& text) {
    m_field->setFocus();
    m_field->selectAll();
    // QAbstractSpinBox has no public text setter; the field reads text as it is typed.
    QLineEdit* edit = m_field->findChild<QLineEdit*>();
    edit->setText(text);
    Q_EMIT m_field->editingFinished();
}

void ConverterWindow::setPrecision(int precision) {
    if (m_precision->value() != precision) m_precision->setValue(precision);
    applyPrecision(m_field->formatter());
    m_field->refresh();
    if (m_formatter) applyPrecision(*m_formatter);
    updateResults();
}

QStringList ConverterWindow::resultTexts() const {
    QStringList texts;
    for (int i = 0; i < m_results->topLevelItemCount(); ++i) {
        texts << m_results->topLevelItem(i)->text(0) + QLatin1Char('\t') + m_results->topLevelItem(i)->text(1);
    }
    return texts;
}

void ConverterWindow::applyPrecision(units::UnitsFormatter& formatter) const {
    formatter.SetNumberDecimalPrecision(m_precision->value());
}

QString ConverterWindow::displayName(int id) const { return m_formatter ? DisplayName(*m_formatter, id) : QString(); }

void ConverterWindow::onLocaleChosen() {
    QString const locale = m_locales->currentData().toString();
    if (locale.isEmpty() || !m_session.UseLocale(locale).isEmpty()) return;
    m_formatter = m_session.MakeFormatter();
    units::ApplyLocaleConventions(*m_formatter);
    applyPrecision(*m_formatter);
    m_field->setLocaleName(locale);
    applyPrecision(m_field->formatter());
    m_field->refresh();
    int const group = m_groups->currentData().toInt();
    fillGroups();
    if (group != 0) selectGroup(group);
}

void ConverterWindow::fillGroups() {
    QSignalBlocker const blocker(m_groups);
    m_groups->clear();
    std::vector<std::pair<QString, int>> groups;
    for (int const group : CatalogueGroups()) groups.emplace_back(displayName(group), group);
    std::sort(groups.begin(), groups.end(), [](auto const& a, auto const& b) {
        return units::StringUtil::LocaleAwareCompare(a.first, b.first) < 0;
    });
    for (auto const& [name, group] : groups) m_groups->addItem(name, group);
}

void ConverterWindow::onGroupChosen() {
    int const group = m_groups->currentData().toInt();
    if (group == 0) return;
    m_resultSymbols = ResultSymbols(group);
    if ((m_field->unit() & 0xFF000) != group) m_field->setUnit(group | 1);
    fillSymbols();
    updateResults();
}

void ConverterWindow::fillSymbols() {
    QSignalBlocker const blocker(m_symbols);
    m_symbols->clear();
    m_symbols->addItem(QStringLiteral("(the locale's default)"), 0);
    for (int const symbol : m_resultSymbols) {
        m_symbols->addItem(units::FormatQuantity(*m_formatter, 0.0, symbol & 0xFFFFF, symbol).trimmed() +
                               QStringLiteral("  ") + displayName(symbol),
                           symbol);
    }
    int const index = m_symbols->findData(m_field->displaySymbol());
    m_symbols->setCurrentIndex(std::max(index, 0));
    if (index < 0) m_field->setDisplaySymbol(0);
}

void ConverterWindow::onSymbolChosen() { m_field->setDisplaySymbol(m_symbols->currentData().toInt()); }

void ConverterWindow::updateResults() {
    m_results->clear();
    if (!m_formatter) return;
    double const value = m_field->value();
    int const unit = m_field->unit();
    for (int const symbol : m_resultSymbols) {
        QString const text = units::FormatQuantity(*m_formatter, value, unit, symbol);
        if (text.isEmpty()) continue;
        // "inch (ft-in (dash, fraction))": the unit, and the style where it is more than a symbol.
        QString const unitName = displayName(symbol & 0xFFFFF);
        QString const symbolName = displayName(symbol);
        QString const name = symbolName.isEmpty() || symbolName == unitName
                                 ? unitName
                                 : QStringLiteral("%1 (%2)").arg(unitName, symbolName);
        auto* item = new QTreeWidgetItem(m_results, {name, text});
        item->setToolTip(1, GlobalName(symbol));
    }
    m_results->addTopLevelItem(new QTreeWidgetItem({QStringLiteral("SI"), units::SiQuantityText(*m_formatter, value, unit)}));
}

}  // namespace kxunits
