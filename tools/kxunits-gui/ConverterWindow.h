// The converter window: one quantity field and its value in several units and styles.
#pragma once

#include <QWidget>
#include <memory>
#include <vector>

#include "KxCoreUnitsUI/UnitsFormatter.h"

class QComboBox;
class QLabel;
class QSpinBox;
class QTreeWidget;

namespace kxnorth::platform::core::units {
class QuantitySpinBox;
}

namespace kxunits {

class Session;

class ConverterWindow : public QWidget {
    Q_OBJECT
public:
    explicit ConverterWindow(Session& session, QWidget* parent = nullptr);

    // Each returns false, changing nothing, when the name is not one of the lists.
    bool selectLocale(QString const& locale);
    bool selectGroup(int group);
    // A symbol of the group's list, or 0 for the locale's default.
    bool selectSymbol(int symbol);
    // Types `text` into the field and presses Enter, as a person would.
    void enterText(QString const& text);
    void setPrecision(int precision);

    kxnorth::platform::core::units::QuantitySpinBox* field() const { return m_field; }
    // The rows below the field: display name and text, in order.
    QStringList resultTexts() const;

private:
    void onLocaleChosen();
    void onGroupChosen();
    void onSymbolChosen();
    void fillGroups();
    void fillSymbols();
    void updateResults();
    void applyPrecision(kxnorth::platform::core::units::UnitsFormatter& formatter) const;
    QString displayName(int id) const;

    Session& m_session;
    std::unique_ptr<kxnorth::platform::core::units::UnitsFormatter> m_formatter;  // the results'
    QComboBox* m_locales = nullptr;
    QComboBox* m_groups = nullptr;
    QComboBox* m_symbols = nullptr;
    QSpinBox* m_precision = nullptr;
    kxnorth::platform::core::units::QuantitySpinBox* m_field = nullptr;
    QLabel* m_status = nullptr;
    QTreeWidget* m_results = nullptr;
    std::vector<int> m_resultSymbols;
};

}  // namespace kxunits
