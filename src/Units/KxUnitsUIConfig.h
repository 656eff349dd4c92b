// The process-wide symbol configuration: per locale, the symbol object of every
// catalogue symbol, and the one parse dictionary that typed text is cut with.
#pragma once

#include <QString>
#include <string>

#include "KxCoreUnits/UnitsEnums.h"
#include "KxCoreUnitsUI/KxCoreUnitsUIExport.h"

namespace kxnorth::platform::core::units {

class ISymbol;
class IParseSymbol;
class UnitsDisplayNames;

class KXCOREUNITSUI_EXPORT UnitsUIConfig {
public:
    static UnitsUIConfig* GetInstance();

    // Builds the locale's table on its first request; later requests do nothing.
    void LoadSymbols(QString const& locale, UnitsDisplayNames const& names);

    ISymbol* FindSymbol(int id, QString const& locale) const;
    // A unit identifier stands for its default symbol.
    ISymbol* FindSymbol(int id, UnitsDisplayNames const& names) const;
    // The longest parse symbol at the start of `text`; `length` gets the characters matched.
    IParseSymbol const* FindSymbol(wchar_t const* text, unsigned long* length) const;

    int GetDisplayNameLength(int id, unsigned long& length, QString const& locale) const;
    int GetDisplayName(int id, wchar_t* buffer, unsigned long size, QString const& locale) const;

    static std::wstring ConvertString(QString const& text);

    UnitsUIConfig(UnitsUIConfig const&) = delete;
    UnitsUIConfig& operator=(UnitsUIConfig const&) = delete;

private:
    UnitsUIConfig();
    ~UnitsUIConfig();
};

}  // namespace kxnorth::platform::core::units
