// Format and Parse drivers and custom symbol strings. They need the symbol objects
// of the locale's symbol table; until those exist every call reports failure with
// the documented result codes.
#include "KxUnitsFormatterImp.h"

#include "KxCoreUnits/UnitsConfig.h"
#include "KxUnitsDisplayNames.h"

namespace kxnorth::platform::core::units {

UnitsFormatterImp::~UnitsFormatterImp() = default;

UnitsFormatterImp::CustomSymbolDict::~CustomSymbolDict() = default;

int UnitsFormatterImp::Format(double value, int unit, wchar_t* buffer, unsigned long size, int symbol,
                              double* rest) const {
    UnitConverter const* converter = UnitsConfig::GetInstance()->FindConverter(unit);
    if (converter == nullptr) return 1;
    double base = 0;
    if (converter->ConvertToBase(&base, converter->GetDimTag(), value) != 0) return 1;
    return Format(base, converter->GetDimTag(), buffer, size, symbol != 0 ? symbol : unit, rest);
}

int UnitsFormatterImp::Format(double, int const (&)[kDimensionCount], wchar_t*, unsigned long, int,
                              double*) const {
    return 1;
}

int UnitsFormatterImp::Parse(wchar_t const* text, double& value, int unit) const {
    UnitConverter const* converter = UnitsConfig::GetInstance()->FindConverter(unit);
    if (converter == nullptr) return 2;
    double base = 0;
    if (Parse(text, base, converter->GetDimTag(), unit & kGroupMask) != 0) return 2;
    double out = 0;
    if (converter->ConvertFromBase(converter->GetDimTag(), out, base) != 0) return 2;
    value = out;
    return 0;
}

int UnitsFormatterImp::Parse(wchar_t const*, double&, int const (&)[kDimensionCount], int) const { return 2; }

int UnitsFormatterImp::GetSymbolFormattingString(int, wchar_t*, unsigned long) const { return 3; }
int UnitsFormatterImp::GetSymbolParsingString(int, wchar_t*, unsigned long) const { return 3; }
int UnitsFormatterImp::SetSymbolFormattingString(int symbol, wchar_t const* text) {
    return SetCustomSymbolString(symbol, text, eFormattingString);
}
int UnitsFormatterImp::SetSymbolParsingString(int symbol, wchar_t const* text) {
    return SetCustomSymbolString(symbol, text, eParsingString);
}
int UnitsFormatterImp::SetCustomSymbolString(int, wchar_t const*, CustomSymbolStringType) { return 1; }

}  // namespace kxnorth::platform::core::units
