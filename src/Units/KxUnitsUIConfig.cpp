#include "KxUnitsUIConfig.h"

#include "KxUnitsDisplayNames.h"

namespace kxnorth::platform::core::units {

// The symbol tables arrive with the symbol classes; until then no locale has
// symbols, so lookups find nothing and the formatter reports failure.

UnitsUIConfig::UnitsUIConfig() = default;
UnitsUIConfig::~UnitsUIConfig() = default;

UnitsUIConfig* UnitsUIConfig::GetInstance() {
    static UnitsUIConfig instance;
    return &instance;
}

void UnitsUIConfig::LoadSymbols(QString const&, UnitsDisplayNames const&) {}

ISymbol* UnitsUIConfig::FindSymbol(int, QString const&) const { return nullptr; }

ISymbol* UnitsUIConfig::FindSymbol(int id, UnitsDisplayNames const& names) const {
    if ((id & kUnitIndexMask) != 0 && (id & 0xFF00000) == 0) id |= kDefaultSymbolBit;
    return FindSymbol(id, names.locale());
}

IParseSymbol const* UnitsUIConfig::FindSymbol(wchar_t const*, unsigned long*) const { return nullptr; }

int UnitsUIConfig::GetDisplayNameLength(int, unsigned long&, QString const&) const { return 1; }

int UnitsUIConfig::GetDisplayName(int, wchar_t*, unsigned long, QString const&) const { return 1; }

std::wstring UnitsUIConfig::ConvertString(QString const& text) { return text.toStdWString(); }

}  // namespace kxnorth::platform::core::units
