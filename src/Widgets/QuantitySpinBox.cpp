#include "KxCoreUnitsWidgets/QuantitySpinBox.h"

#include <QLineEdit>
#include <QPalette>
#include <QStyle>
#include <QStyleOptionSpinBox>
#include <cmath>
#include <limits>
#include <string>

#include "KxCoreUnits/UnitsConfig.h"
#include "KxCoreUnitsUI/LocaleConventions.h"
#include "KxCoreUnitsUI/UnitsFormatter.h"
#include "KxCoreUnitsUI/UnitsManager.h"
#include "KxCoreUnitsWidgets/QuantityText.h"
#include "KxCoreUnitsWidgets/QuantityValidator.h"

namespace kxnorth::platform::core::units {

namespace {

constexpr int kMetre = 0x2001;
constexpr double kUnlimited = std::numeric_limits<double>::max();

// Symbols whose last place is a fraction of an inch (1/2^P) rather than a decimal.
bool WritesInchFractions(int symbol) {
    switch (symbol & kIdentityMask) {
        case 0x702016:  // feet and fractional inches
        case 0x802016:  // the same with dashes
        case 0x902016:  // fractional inches
        case 0xA02016:  // the same with a dash
            return true;
        default:
            return false;
    }
}

// Degrees, minutes and seconds (also as a bearing): the precision picks the last part.
bool WritesMinutesAndSeconds(int symbol) {
    switch (symbol & kIdentityMask) {
        case 0x408002:
        case 0x508002:
        case 0x608002:
            return true;
        default:
            return false;
    }
}

UnitConverter const* ConverterOf(int id) { return UnitsConfig::GetInstance()->FindConverter(id & kUnitMask); }

bool SameGroup(int a, int b) { return (a & kGroupMask) == (b & kGroupMask); }

// `value` in unit `from` as a value in unit `to` (same dimensions).
bool Convert(double value, int from, int to, double& out) {
    UnitConverter const* source = ConverterOf(from);
    UnitConverter const* target = ConverterOf(to);
    if (source == nullptr || target == nullptr) return false;
    double base = 0.0;
    if (source->ConvertToBase(&base, source->GetDimTag(), value) != 0) return false;
    return target->ConvertFromBase(source->GetDimTag(), out, base) == 0;
}

QString CurrentManagerLocale() {
    UnitsManager* manager = UnitsManager::GetInstance();
    int const length = manager->GetCurrentLocale(nullptr, 0);
    std::wstring buffer(static_cast<std::size_t>(length) + 1, L'\0');
    manager->GetCurrentLocale(buffer.data(), length + 1);
    return QString::fromWCharArray(buffer.c_str());
}

}  // namespace

QuantitySpinBox::QuantitySpinBox(QWidget* parent)
    : QAbstractSpinBox(parent), m_unit(kMetre), m_minimum(-kUnlimited), m_maximum(kUnlimited) {
    // The value is read when editing finishes, never while the person types.
    setKeyboardTracking(false);
    setAccelerated(false);
    m_validator = new QuantityValidator(this);
    m_validator->setUnit(m_unit);
    connect(lineEdit(), &QLineEdit::textEdited, this, &QuantitySpinBox::onTextEdited);
    connect(this, &QAbstractSpinBox::editingFinished, this, &QuantitySpinBox::commitText);
    setLocaleName(QString());
}

QuantitySpinBox::~QuantitySpinBox() = default;

void QuantitySpinBox::setLocaleName(QString const& locale) {
    QString const name = locale.trimmed().isEmpty() ? CurrentManagerLocale() : locale.trimmed();
    bool const changed = m_formatter == nullptr || name != m_localeName;
    auto formatter = std::make_unique<UnitsFormatter>(name.toStdWString().c_str());
    ApplyLocaleConventions(*formatter);  // the locale's separators and signs
    m_validator->setFormatter(formatter.get());
    m_formatter = std::move(formatter);
    m_localeName = name;
    refresh();
    if (changed) Q_EMIT localeNameChanged(m_localeName);
}

void QuantitySpinBox::refresh() {
    m_validator->resetSymbolTexts();
    setErrorText(QString());
    showValue();
}

// Units of one group measure the same quantity; groups that share dimensions (energy
// and torque, angle and ratio) do not, so a value is not carried between them.
void QuantitySpinBox::setUnit(int unit) {
    if (unit == m_unit || ConverterOf(unit) == nullptr) return;
    bool const sameQuantity = SameGroup(unit, m_unit);
    double value = m_value;
    double minimum = -kUnlimited, maximum = kUnlimited;
    if (sameQuantity) {
        if (!Convert(m_value, m_unit, unit, value)) value = m_value;
        if (m_minimum == -kUnlimited || !Convert(m_minimum, m_unit, unit, minimum)) minimum = m_minimum;
        if (m_maximum == kUnlimited || !Convert(m_maximum, m_unit, unit, maximum)) maximum = m_maximum;
    } else if (m_displaySymbol != 0) {
        m_displaySymbol = 0;
        m_validator->setDisplaySymbol(0);
        Q_EMIT displaySymbolChanged(0);
    }
    bool const rangeMoved = minimum != m_minimum || maximum != m_maximum;
    bool const valueMoved = value != m_value;
    m_unit = unit;
    m_value = value;
    m_minimum = minimum;
    m_maximum = maximum;
    m_validator->setUnit(unit);
    Q_EMIT unitChanged(unit);
    if (rangeMoved) Q_EMIT rangeChanged(m_minimum, m_maximum);
    if (valueMoved) Q_EMIT valueChanged(m_value);
    setErrorText(QString());
    showValue();
}

void QuantitySpinBox::setDisplaySymbol(int symbol) {
    if (symbol == m_displaySymbol) return;
    if (symbol != 0 && (!SameGroup(symbol, m_unit) || FormatQuantity(*m_formatter, 0.0, m_unit, symbol).isEmpty())) {
        return;
    }
    m_displaySymbol = symbol;
    m_validator->setDisplaySymbol(symbol);
    Q_EMIT displaySymbolChanged(symbol);
    setErrorText(QString());
    showValue();
}

int QuantitySpinBox::effectiveDisplaySymbol() const {
    return m_displaySymbol != 0 ? m_displaySymbol : GroupDefaultSymbol(*m_formatter, m_unit);
}

void QuantitySpinBox::setValue(double value) {
    if (std::isnan(value)) return;
    setErrorText(QString());
    setValueAndShow(value, true);
}

void QuantitySpinBox::setRange(double minimum, double maximum) {
    if (std::isnan(minimum) || std::isnan(maximum)) return;
    if (maximum < minimum) maximum = minimum;
    if (minimum == m_minimum && maximum == m_maximum) return;
    m_minimum = minimum;
    m_maximum = maximum;
    Q_EMIT rangeChanged(m_minimum, m_maximum);
    setValueAndShow(m_value, true);
}

void QuantitySpinBox::setMinimum(double minimum) { setRange(minimum, std::max(minimum, m_maximum)); }

void QuantitySpinBox::setMaximum(double maximum) { setRange(std::min(m_minimum, maximum), maximum); }

void QuantitySpinBox::setSingleStep(double step) {
    if (std::isnan(step)) return;
    double const stored = step > 0.0 ? step : 0.0;
    if (stored == m_singleStep) return;
    m_singleStep = stored;
    Q_EMIT singleStepChanged(singleStep());
}

double QuantitySpinBox::singleStep() const { return m_singleStep > 0.0 ? m_singleStep : displayResolution(); }

double QuantitySpinBox::displayResolution() const {
    int const precision = m_formatter->GetNumberDecimalPrecision();
    int const symbol = effectiveDisplaySymbol();
    if (WritesInchFractions(symbol) || m_formatter->GetNumericFormat() == eNFFraction) {
        return std::ldexp(1.0, -precision);
    }
    if (WritesMinutesAndSeconds(symbol)) {
        if (precision == 0) return 1.0;
        if (precision <= 2) return 1.0 / 60.0;
        if (precision <= 4) return 1.0 / 3600.0;
        return std::pow(10.0, -(precision - 4)) / 3600.0;
    }
    return std::pow(10.0, -precision);
}

bool QuantitySpinBox::toDisplayUnit(double value, double& inDisplay) const {
    return Convert(value, m_unit, effectiveDisplaySymbol(), inDisplay);
}

bool QuantitySpinBox::fromDisplayUnit(double inDisplay, double& value) const {
    return Convert(inDisplay, effectiveDisplaySymbol(), m_unit, value);
}

// From the value as shown, rounded to the step's grid, by whole steps: 1.6891 m
// shown as 1.69 m steps to 1.70 m and 1.68 m. The shown text is read back rather than
// the value rounded here, so that 9.95 ft shown as 10.0 ft steps to 10.1 ft.
void QuantitySpinBox::stepBy(int steps) {
    double const step = singleStep();
    if (steps == 0 || !(step > 0.0)) return;
    double asShown = m_value;
    if (!m_validator->read(m_shownText, asShown)) asShown = m_value;
    double shown = 0.0;
    if (!toDisplayUnit(asShown, shown)) return;
    double const next = (std::round(shown / step) + steps) * step;
    double value = 0.0;
    if (!std::isfinite(next) || !fromDisplayUnit(next, value)) return;
    // Wrapping jumps to the other end of a limited range.
    if (wrapping() && m_minimum != -kUnlimited && m_maximum != kUnlimited) {
        if (value > m_maximum && m_value >= m_maximum) value = m_minimum;
        if (value < m_minimum && m_value <= m_minimum) value = m_maximum;
    }
    setErrorText(QString());
    setValueAndShow(value, true);
    selectAll();
}

QAbstractSpinBox::StepEnabled QuantitySpinBox::stepEnabled() const {
    if (isReadOnly()) return StepNone;
    StepEnabled enabled = StepNone;
    if (wrapping() || m_value < m_maximum) enabled |= StepUpEnabled;
    if (wrapping() || m_value > m_minimum) enabled |= StepDownEnabled;
    return enabled;
}

// Keys are never refused: text that cannot become readable is marked instead (see
// onTextEdited), so the person sees why rather than a key that does nothing.
QValidator::State QuantitySpinBox::validate(QString& input, int& pos) const {
    QValidator::State const state = m_validator->validate(input, pos);
    return state == QValidator::Invalid ? QValidator::Intermediate : state;
}

void QuantitySpinBox::fixup(QString& input) const { m_validator->fixup(input); }

void QuantitySpinBox::onTextEdited(QString const& text) {
    QString copy = text;
    int pos = lineEdit()->cursorPosition();
    if (m_validator->validate(copy, pos) == QValidator::Invalid) {
        setErrorText(ParseFailureText(*m_formatter, text, m_unit));
    } else {
        setErrorText(QString());
    }
}

void QuantitySpinBox::commitText() {
    QString const text = lineEdit()->text();
    // The text written from the value reads back only to the value as shown; leaving
    // it unedited must not round the value.
    if (text == m_shownText) {
        setErrorText(QString());
        return;
    }
    double value = 0.0;
    if (!m_validator->read(text, value)) {
        setErrorText(ParseFailureText(*m_formatter, text, m_unit));
        return;
    }
    setErrorText(QString());
    setValueAndShow(value, true);
}

void QuantitySpinBox::setValueAndShow(double value, bool emitSignal) {
    double const clamped = std::min(std::max(value, m_minimum), m_maximum);
    bool const changed = clamped != m_value;
    m_value = clamped;
    showValue();
    if (changed && emitSignal) Q_EMIT valueChanged(m_value);
}

void QuantitySpinBox::showValue() {
    QString const text = FormatQuantity(*m_formatter, m_value, m_unit, effectiveDisplaySymbol());
    m_shownText = text;
    if (lineEdit()->text() != text) lineEdit()->setText(text);
    if (m_errorText.isEmpty()) setToolTip(SiQuantityText(*m_formatter, m_value, m_unit));
    updateGeometry();
}

void QuantitySpinBox::setErrorText(QString const& text) {
    if (text == m_errorText) return;
    bool const wasError = !m_errorText.isEmpty();
    m_errorText = text;
    if (text.isEmpty()) {
        // Back to the colours the field had before, the host's own where it set them.
        lineEdit()->setPalette(m_normalPalette);
        setToolTip(SiQuantityText(*m_formatter, m_value, m_unit));
    } else {
        if (!wasError) m_normalPalette = lineEdit()->palette();
        // A light red field, whatever the style: the text stays legible.
        QPalette colours = m_normalPalette;
        colours.setColor(QPalette::Base, QColor(0xFF, 0xDD, 0xDD));
        colours.setColor(QPalette::Text, QColor(0x80, 0x00, 0x00));
        lineEdit()->setPalette(colours);
        setToolTip(text);
    }
    Q_EMIT errorTextChanged(m_errorText);
}

QSize QuantitySpinBox::sizeHint() const {
    ensurePolished();
    QFontMetrics const metrics(fontMetrics());
    int const width = std::max(metrics.horizontalAdvance(m_shownText), metrics.horizontalAdvance(QStringLiteral("5'-11 15/16\""))) +
                      metrics.horizontalAdvance(QLatin1Char(' ')) * 2;
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    QSize const content(width, lineEdit()->sizeHint().height());
    return style()->sizeFromContents(QStyle::CT_SpinBox, &option, content, this);
}

}  // namespace kxnorth::platform::core::units
