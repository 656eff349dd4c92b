// Constructors of the symbol classes built from Qt strings. Their behaviour is that of
// the templates they instantiate (KxUnitsSymbols_Generic, _Angle, _Length).
#include "KxUnitsSymbols2.h"

#include "KxUnitsUIConfig.h"

namespace kxnorth::platform::core::units {

SimpleFormatSymbol2::SimpleFormatSymbol2(QString const& text, int flags)
    : SimpleFormatSymbolBase(UnitsUIConfig::ConvertString(text), flags) {}
SimpleFormatSymbol2::SimpleFormatSymbol2(std::wstring text, int flags) : SimpleFormatSymbolBase(std::move(text), flags) {}
SimpleFormatSymbol2::~SimpleFormatSymbol2() = default;

GenericSymbol2::GenericSymbol2(QString const& text, int unitSymbol, int flags)
    : BasicGenericSymbol<SimpleFormatSymbol2>(UnitsUIConfig::ConvertString(text), unitSymbol, flags) {}
GenericSymbol2::GenericSymbol2(std::wstring text, int unitSymbol, int flags)
    : BasicGenericSymbol<SimpleFormatSymbol2>(std::move(text), unitSymbol, flags) {}
GenericSymbol2::~GenericSymbol2() = default;

GenericSymbolEx2::GenericSymbolEx2(QString const& text, int unitSymbol, int flags, QString const* name)
    : BasicGenericSymbolEx<GenericSymbol2>(UnitsUIConfig::ConvertString(text), unitSymbol, flags, name != nullptr,
                                           name != nullptr ? UnitsUIConfig::ConvertString(*name) : std::wstring()) {}
GenericSymbolEx2::~GenericSymbolEx2() = default;

LinearSymbol2::LinearSymbol2(QString const& text, int unitSymbol, int operandUnitSymbol, int flags)
    : BasicLinearSymbol<SimpleFormatSymbol2>(UnitsUIConfig::ConvertString(text), unitSymbol, operandUnitSymbol, flags) {}
LinearSymbol2::~LinearSymbol2() = default;

DegreePrimeDoublePrimeSymbol2::DegreePrimeDoublePrimeSymbol2(QString const& text, bool bearing, bool degreeSign)
    : BasicDegreePrimeDoublePrimeSymbol<GenericSymbol2>(UnitsUIConfig::ConvertString(text), bearing, degreeSign) {}
DegreePrimeDoublePrimeSymbol2::~DegreePrimeDoublePrimeSymbol2() = default;

PrimeDoublePrimeSymbol2::PrimeDoublePrimeSymbol2(QString const& text, int symbol, bool showFeet, bool fraction,
                                                 bool dash)
    : BasicPrimeDoublePrimeSymbol<GenericSymbol2>(UnitsUIConfig::ConvertString(text), symbol, showFeet, fraction,
                                                  dash) {}
PrimeDoublePrimeSymbol2::~PrimeDoublePrimeSymbol2() = default;

}  // namespace kxnorth::platform::core::units
