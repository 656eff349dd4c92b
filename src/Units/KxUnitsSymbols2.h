// The symbol classes built from Qt strings, as the symbol configuration creates them.
// Each is the same template as its twin without the 2 (KxUnitsSymbols.h); only the
// constructors differ.
#pragma once

#include <QString>

#include "KxUnitsSymbols.h"

namespace kxnorth::platform::core::units {

class KXCOREUNITSUI_EXPORT SimpleFormatSymbol2 : public SimpleFormatSymbolBase {
public:
    SimpleFormatSymbol2(QString const& text, int flags);
    ~SimpleFormatSymbol2() override;

protected:
    SimpleFormatSymbol2(std::wstring text, int flags);
};

class KXCOREUNITSUI_EXPORT GenericSymbol2 : public BasicGenericSymbol<SimpleFormatSymbol2> {
public:
    GenericSymbol2(QString const& text, int unitSymbol, int flags);
    ~GenericSymbol2() override;

protected:
    GenericSymbol2(std::wstring text, int unitSymbol, int flags);
};

class KXCOREUNITSUI_EXPORT GenericSymbolEx2 : public BasicGenericSymbolEx<GenericSymbol2> {
public:
    // `name` may be null.
    GenericSymbolEx2(QString const& text, int unitSymbol, int flags, QString const* name);
    ~GenericSymbolEx2() override;
};

class KXCOREUNITSUI_EXPORT LinearSymbol2 : public BasicLinearSymbol<SimpleFormatSymbol2> {
public:
    LinearSymbol2(QString const& text, int unitSymbol, int operandUnitSymbol, int flags);
    ~LinearSymbol2() override;
};

class KXCOREUNITSUI_EXPORT DegreePrimeDoublePrimeSymbol2 : public BasicDegreePrimeDoublePrimeSymbol<GenericSymbol2> {
public:
    // `degreeSign` false writes the letter d for degrees (`45d30'`).
    DegreePrimeDoublePrimeSymbol2(QString const& text, bool bearing, bool degreeSign);
    ~DegreePrimeDoublePrimeSymbol2() override;
};

class KXCOREUNITSUI_EXPORT PrimeDoublePrimeSymbol2 : public BasicPrimeDoublePrimeSymbol<GenericSymbol2> {
public:
    PrimeDoublePrimeSymbol2(QString const& text, int symbol, bool showFeet, bool fraction, bool dash);
    ~PrimeDoublePrimeSymbol2() override;
};

extern template class BasicGenericSymbol<SimpleFormatSymbol2>;
extern template class BasicGenericSymbolEx<GenericSymbol2>;
extern template class BasicLinearSymbol<SimpleFormatSymbol2>;
extern template class BasicDegreePrimeDoublePrimeSymbol<GenericSymbol2>;
extern template class BasicPrimeDoublePrimeSymbol<GenericSymbol2>;

}  // namespace kxnorth::platform::core::units
