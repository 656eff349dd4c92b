// Translated names of unit groups, unit types, symbols and number formats for one
// locale, and the alternate texts a user may type for a symbol.
//
// An object is used by one thread at a time, but any number of them may be made and
// used at once: the process-wide maps behind them are filled once, under a lock, by
// the first object that needs them, and never change after that.
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <QTranslator>
#include <map>
#include <memory>
#include <vector>

#include "KxCoreUnits/UnitsEnums.h"
#include "KxCoreUnitsUI/KxCoreUnitsUIExport.h"

namespace kxnorth::platform::core::units {

struct SymbolInfo;

class KXCOREUNITSUI_EXPORT UnitsDisplayNames {
public:
    using teGroup = kxp::IDesignPropertyUnits::teGroup;
    using teType = kxp::IDesignPropertyUnits::teType;

    // How a symbol's name is found.
    enum SymbolKind : int {
        eSKTranslationKey = 0,  // "eS" + global name, in the symbols translator
        eSKUnitName = 1,        // the name of the symbol's unit
        eSKText = 2,            // the stored text, untranslated
        eSKEnd = 3,
    };
    struct SymbolData {
        char const* name;
        int kind;
    };

    explicit UnitsDisplayNames(wchar_t const* locale);
    explicit UnitsDisplayNames(QString const& locale);
    UnitsDisplayNames(UnitsDisplayNames const&) = delete;
    UnitsDisplayNames& operator=(UnitsDisplayNames const&) = delete;

    QString const& locale() const { return m_locale; }

    QString unitName(teType unit) const;
    QString GroupName(teGroup group) const;
    QString symbolName(UnitSymbol symbol) const;
    QStringList const& symbolAlternateNames(UnitSymbol symbol) const;
    QString numberFormatName(NumberFormat format) const;
    QString translate(QString const& context, QString const& text) const;

    // "UnitSymbol_" + the global name of the symbol's group.
    static QString symbolContext(UnitSymbol symbol);

private:
    friend class UnitsUIConfig;

    void UseSystemLocale();
    void Initialize();
    void LoadTranslator(QTranslator& translator, QString const& module, QString const& translatorFilesPath);
    static void FillNameMaps();
    // The locale's alternates, read from its translator by the first object of the
    // locale; later objects share them.
    QMap<int, QStringList> const* FillAlternates() const;

    QString m_locale;
    QTranslator m_unitsTranslator;
    QTranslator m_symbolsTranslator;
    QTranslator m_alternatesTranslator;
    // The locale's symbol table, set when the object is made; tables live as long as
    // the process and never change.
    std::vector<std::vector<std::vector<std::unique_ptr<SymbolInfo>>>> const* m_symbolTable = nullptr;
    QMap<int, QStringList> const* m_alternates = nullptr;  // owned by s_symbolAlternatesMap

    static QMap<int, char const*> s_groupMap;
    static QMap<int, char const*> s_unitMap;
    static QMap<int, SymbolData> s_symbolMap;
    static QMap<int, char const*> s_numberFormatMap;
    // Entries are added under a lock and never changed or removed.
    static std::map<QString, std::unique_ptr<QMap<int, QStringList> const>> s_symbolAlternatesMap;
    static QStringList const s_emptyStringList;
};

}  // namespace kxnorth::platform::core::units
