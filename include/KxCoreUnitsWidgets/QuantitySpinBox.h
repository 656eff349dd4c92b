// A spin box for one physical quantity: typed in any unit of its group, shown in one
// display symbol, stepped in that symbol's unit.
#pragma once

#include <QAbstractSpinBox>
#include <QPalette>
#include <QString>
#include <memory>

#include "KxCoreUnitsUI/UnitsFormatter.h"  // formatter() hands it to the host
#include "KxCoreUnitsWidgets/KxCoreUnitsWidgetsExport.h"

namespace kxnorth::platform::core::units {

class QuantityValidator;

// The value is kept in unit() and changes only when the person leaves the field or
// presses Enter (or steps, or the host sets it): text that reads sets the value,
// clamped to the range, and is rewritten in the display symbol; text that does not
// read keeps the value, puts the field into its error state (errorText() and the tool
// tip say why) and emits nothing. Typing is never refused key by key: text that no
// continuation can make readable shows the error state at once.
//
// Steps (arrows, Page keys, the wheel) move the value as shown by whole steps of
// singleStep() in the display symbol's unit, which is inches in the feet-and-inches
// styles, and never change the display symbol.
//
// The units manager must be initialised, and its translation files folder set, before
// the first spin box is created: the spin box creates a formatter of its locale.
class KXCOREUNITSWIDGETS_EXPORT QuantitySpinBox : public QAbstractSpinBox {
    Q_OBJECT
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged USER true)
    Q_PROPERTY(QString localeName READ localeName WRITE setLocaleName NOTIFY localeNameChanged)
    Q_PROPERTY(int unit READ unit WRITE setUnit NOTIFY unitChanged)
    Q_PROPERTY(int displaySymbol READ displaySymbol WRITE setDisplaySymbol NOTIFY displaySymbolChanged)
    Q_PROPERTY(double minimum READ minimum WRITE setMinimum NOTIFY rangeChanged)
    Q_PROPERTY(double maximum READ maximum WRITE setMaximum NOTIFY rangeChanged)
    Q_PROPERTY(double singleStep READ singleStep WRITE setSingleStep NOTIFY singleStepChanged)
    Q_PROPERTY(QString errorText READ errorText NOTIFY errorTextChanged)

public:
    explicit QuantitySpinBox(QWidget* parent = nullptr);
    ~QuantitySpinBox() override;

    // A new formatter of `locale` ("de-DE"; empty: the manager's current locale) with
    // Qt's separators of that locale; the text is rewritten in it. Number settings made
    // on the previous formatter are not carried over.
    void setLocaleName(QString const& locale);
    QString localeName() const { return m_localeName; }
    // The spin box's own formatter, for number settings and custom strings; call
    // refresh() after changing it.
    UnitsFormatter& formatter() { return *m_formatter; }
    UnitsFormatter const& formatter() const { return *m_formatter; }
    // Rewrites the text from the value with the formatter's current settings.
    void refresh();

    // Any unit identifier of the catalogue (default: metre). Within one group the
    // value and the range are converted into the new unit (valueChanged and
    // rangeChanged follow); into another group the value is kept as a number, the
    // range becomes unlimited and the display symbol 0.
    void setUnit(int unit);
    int unit() const { return m_unit; }
    // 0 (default): the formatter's default symbol of the unit's group. A symbol of
    // another group is refused and leaves the display symbol as it is.
    void setDisplaySymbol(int symbol);
    int displaySymbol() const { return m_displaySymbol; }
    // The symbol the text is written with.
    int effectiveDisplaySymbol() const;

    double value() const { return m_value; }
    // Clamped to the range; not-a-number is ignored.
    void setValue(double value);

    // In unit(); unlimited by default. A minimum above the maximum moves the maximum.
    void setRange(double minimum, double maximum);
    void setMinimum(double minimum);
    void setMaximum(double maximum);
    double minimum() const { return m_minimum; }
    double maximum() const { return m_maximum; }

    // In the display symbol's unit; 0 (default) or less: one unit of the last place
    // shown (0.01 m at two decimals, 1/16" in a fractional-inch field at precision 4).
    void setSingleStep(double step);
    double singleStep() const;

    // Why the text last committed did not read, or what no continuation can fix in the
    // text being typed; empty when the field is valid.
    QString errorText() const { return m_errorText; }

    QuantityValidator const& validator() const { return *m_validator; }

    void stepBy(int steps) override;
    QValidator::State validate(QString& input, int& pos) const override;
    void fixup(QString& input) const override;
    QSize sizeHint() const override;

Q_SIGNALS:
    void valueChanged(double value);
    void localeNameChanged(QString const& locale);
    void unitChanged(int unit);
    void displaySymbolChanged(int symbol);
    void rangeChanged(double minimum, double maximum);
    void singleStepChanged(double step);
    void errorTextChanged(QString const& text);

protected:
    StepEnabled stepEnabled() const override;

private:
    void commitText();
    void onTextEdited(QString const& text);
    void setValueAndShow(double value, bool emitSignal);
    void showValue();
    void setErrorText(QString const& text);
    double displayResolution() const;
    bool toDisplayUnit(double value, double& inDisplay) const;
    bool fromDisplayUnit(double inDisplay, double& value) const;

    std::unique_ptr<UnitsFormatter> m_formatter;
    QuantityValidator* m_validator = nullptr;  // owned as a child
    QString m_localeName;
    int m_unit = 0;
    int m_displaySymbol = 0;
    double m_value = 0.0;
    double m_minimum;
    double m_maximum;
    double m_singleStep = 0.0;
    QString m_shownText;  // the text last written from the value
    QString m_errorText;
    QPalette m_normalPalette;  // the editor's colours outside the error state
    bool m_committing = false;
};

}  // namespace kxnorth::platform::core::units
