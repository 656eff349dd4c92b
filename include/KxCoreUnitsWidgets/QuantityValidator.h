// A QValidator for fields that take a quantity as a person types it.
#pragma once

#include <QString>
#include <QStringList>
#include <QValidator>

#include "KxCoreUnitsWidgets/KxCoreUnitsWidgetsExport.h"

namespace kxnorth::platform::core::units {

class UnitsFormatter;

// Text is Acceptable when the formatter reads it as a quantity of the unit's group;
// Intermediate while a continuation could still make it readable (empty text, "-",
// "5 f" on its way to "5 ft", "(1.7", "1 1/", "2 m/" in a velocity field); Invalid
// when none of the continuations tried does: a number, a closing parenthesis or the
// rest of one of the locale's symbol texts. A QLineEdit refuses keys that make its
// text Invalid, so the judgement errs towards Intermediate: text longer than 256
// characters that does not read is Intermediate without trying continuations.
//
// The formatter is the host's and must outlive the validator (or be replaced first).
class KXCOREUNITSWIDGETS_EXPORT QuantityValidator : public QValidator {
    Q_OBJECT
public:
    explicit QuantityValidator(QObject* parent = nullptr);
    QuantityValidator(UnitsFormatter const* formatter, int unit, QObject* parent = nullptr);
    ~QuantityValidator() override;

    void setFormatter(UnitsFormatter const* formatter);
    UnitsFormatter const* formatter() const { return m_formatter; }
    // The unit that readable text is converted into; its group decides what reads.
    void setUnit(int unit);
    int unit() const { return m_unit; }
    // The symbol fixup() writes in; 0: GroupDefaultSymbol() of the unit.
    void setDisplaySymbol(int symbol);
    int displaySymbol() const { return m_displaySymbol; }

    State validate(QString& input, int& pos) const override;
    // Rewrites Acceptable text in the display symbol ("5' 6\"" becomes "5'-6\""); leaves
    // other text as it is.
    void fixup(QString& input) const override;

    // The value in unit() of Acceptable text; false, leaving `value`, otherwise.
    bool read(QString const& text, double& value) const;

    // Forget the symbol texts learnt from the formatter: call after changing its
    // custom symbol strings.
    void resetSymbolTexts();

private:
    bool completes(QString const& text) const;
    QStringList const& symbolTexts() const;

    UnitsFormatter const* m_formatter = nullptr;
    int m_unit = 0;
    int m_displaySymbol = 0;
    mutable QString m_symbolTextsLocale;
    mutable QStringList m_symbolTexts;  // every symbol text of the locale, sorted, unique
};

}  // namespace kxnorth::platform::core::units
