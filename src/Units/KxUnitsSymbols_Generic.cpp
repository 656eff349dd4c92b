// Symbols of ordinary units: the symbol text alone, a number and a unit's text, a
// unit with a name of its own, and units whose zero is offset. One template per kind
// serves both families (text from wchar_t here, from QString in KxUnitsSymbols2).
#include <cwchar>
#include <iterator>

#include "KxUnitsSymbols.h"
#include "KxUnitsSymbols2.h"
#include "KxUnitsSymbols_Internal.h"

namespace kxnorth::platform::core::units {

using namespace symbols_detail;

namespace {

std::wstring TextOf(wchar_t const* text) { return text != nullptr ? std::wstring(text) : std::wstring(); }

// The converter of a symbol whose unit the catalogue does not know: every conversion
// fails, so such a symbol neither writes nor reads a value.
class UnknownUnitConverter final : public UnitConverter {
public:
    int ConvertFromBase(int const (&)[kDimensionCount], double&, double) const override { return eENotFound; }
    int ConvertToBase(double*, int const (&)[kDimensionCount], double) const override { return eENotFound; }
    double GetFactor() const override { return 0.0; }
    double GetOffset() const override { return 0.0; }
    bool IsCompatible(int const (&)[kDimensionCount]) const override { return false; }
};

UnitConverter const& UnknownUnit() {
    static UnknownUnitConverter const converter;
    return converter;
}

// The number in `unit` that `value` (base units of `dims`) is, written by the formatter.
int FormatInUnit(UnitConverter const& converter, double value, DimensionVector const& dims, wchar_t* buffer,
                 unsigned long size, UnitsFormatterImp const& formatter) {
    double inUnit = 0.0;
    int const code = converter.ConvertFromBase(dims, inUnit, value);
    if (code != 0) return -code;
    return formatter.FormatNumber(inUnit, buffer, size, kModeDecimal);
}

// The number leading `list` read in the unit of `converter` becomes the result.
int ParseLeadingNumber(UnitConverter const& converter, ParseList& list, int form) {
    if (form != 0 || list.empty()) return 1;
    NumberSymbol const* number = As<NumberSymbol>(list.begin());
    if (number == nullptr) return 1;
    double base = 0.0;
    if (converter.ConvertToBase(&base, converter.GetDimTag(), number->GetNumber()) != 0) return 1;
    list.front() = MakeParseSymbol<ResultSymbol>(list, GenericConverter(base, converter.GetDimTag()));
    return 0;
}

}  // namespace

// ---------------------------------------------------------------------------------
// Symbol text

SimpleFormatSymbolBase::SimpleFormatSymbolBase(std::wstring text, int flags) : m_text(std::move(text)), m_flags(flags) {}
SimpleFormatSymbolBase::~SimpleFormatSymbolBase() = default;

int SimpleFormatSymbolBase::AppendText(wchar_t* buffer, unsigned long size) const {
    if (buffer == nullptr || size == 0) return -1;
    unsigned long pos = 0;
    if ((m_flags & eNoSpace) == 0) buffer[pos++] = L' ';
    for (std::size_t i = 0; i <= m_text.size(); ++i) {
        if (pos >= size) return -1;
        buffer[pos++] = m_text.c_str()[i];
    }
    return static_cast<int>(pos);
}

int SimpleFormatSymbolBase::AppendTextAfterNumber(int written, wchar_t* buffer, unsigned long size) const {
    if (written <= 0) return written;
    unsigned long const terminator = static_cast<unsigned long>(written) - 1;
    return AppendText(buffer + terminator, size - terminator);
}

int SimpleFormatSymbolBase::Format(double, DimensionVector const&, wchar_t* buffer, unsigned long size,
                                   UnitsFormatterImp const&) const {
    return AppendText(buffer, size);
}

int SimpleFormatSymbolBase::FormatNumber(int, double, DimensionVector const&, wchar_t*, unsigned long,
                                         UnitsFormatterImp const&) const {
    return -1;
}

int SimpleFormatSymbolBase::ParseNumber(ParseList&, int) const { return 1; }

int SimpleFormatSymbolBase::GetMaxIndex(int form) const { return form == 0 ? 0 : -1; }

int SimpleFormatSymbolBase::GenerateCustomSymbols(std::vector<CustomSymbol*>& out,
                                                  std::vector<std::wstring> const& pieces,
                                                  std::vector<int> const& indices) const {
    out.clear();
    auto* custom = new CustomSymbol(this, pieces, indices, 0);
    if (!custom->IsValid()) {
        delete custom;
        return 1;
    }
    out.push_back(custom);
    return 0;
}

SimpleFormatSymbol::SimpleFormatSymbol(wchar_t const* text, int flags) : SimpleFormatSymbolBase(TextOf(text), flags) {}
SimpleFormatSymbol::SimpleFormatSymbol(std::wstring text, int flags) : SimpleFormatSymbolBase(std::move(text), flags) {}
SimpleFormatSymbol::~SimpleFormatSymbol() = default;

// ---------------------------------------------------------------------------------
// Unit symbols

template <typename TextBase>
BasicGenericSymbol<TextBase>::BasicGenericSymbol(std::wstring text, int unitSymbol, int flags)
    : TextBase(std::move(text), flags),
      m_unitSymbol(unitSymbol),
      m_converter(UnitsConfig::GetInstance()->FindConverter(unitSymbol)) {}

template <typename TextBase>
BasicGenericSymbol<TextBase>::~BasicGenericSymbol() = default;

template <typename TextBase>
UnitConverter const& BasicGenericSymbol<TextBase>::GetConverter() const {
    return m_converter != nullptr ? *m_converter : UnknownUnit();
}

template <typename TextBase>
int BasicGenericSymbol<TextBase>::FormatNumber(int index, double value, DimensionVector const& dims, wchar_t* buffer,
                                               unsigned long size, UnitsFormatterImp const& formatter) const {
    if (index != 0) return -1;
    return FormatInUnit(GetConverter(), value, dims, buffer, size, formatter);
}

template <typename TextBase>
int BasicGenericSymbol<TextBase>::Format(double value, DimensionVector const& dims, wchar_t* buffer,
                                         unsigned long size, UnitsFormatterImp const& formatter) const {
    return this->AppendTextAfterNumber(this->FormatNumber(0, value, dims, buffer, size, formatter), buffer, size);
}

template <typename TextBase>
int BasicGenericSymbol<TextBase>::ParseNumber(ParseList& list, int form) const {
    return ParseLeadingNumber(GetConverter(), list, form);
}

GenericSymbol::GenericSymbol(wchar_t const* text, int unitSymbol, int flags)
    : BasicGenericSymbol<SimpleFormatSymbol>(TextOf(text), unitSymbol, flags) {}
GenericSymbol::GenericSymbol(std::wstring text, int unitSymbol, int flags)
    : BasicGenericSymbol<SimpleFormatSymbol>(std::move(text), unitSymbol, flags) {}
GenericSymbol::~GenericSymbol() = default;

template <typename GenericBase>
BasicGenericSymbolEx<GenericBase>::BasicGenericSymbolEx(std::wstring text, int unitSymbol, int flags, bool hasName,
                                                        std::wstring name)
    : GenericBase(std::move(text), unitSymbol, flags), m_name(std::move(name)), m_hasName(hasName) {}

template <typename GenericBase>
BasicGenericSymbolEx<GenericBase>::~BasicGenericSymbolEx() = default;

template <typename GenericBase>
wchar_t const* BasicGenericSymbolEx<GenericBase>::GetSymbolName() const {
    return m_hasName ? m_name.c_str() : GenericBase::GetSymbolName();
}

GenericSymbolEx::GenericSymbolEx(wchar_t const* text, int unitSymbol, int flags, wchar_t const* name)
    : BasicGenericSymbolEx<GenericSymbol>(TextOf(text), unitSymbol, flags, name != nullptr, TextOf(name)) {}
GenericSymbolEx::~GenericSymbolEx() = default;

// ---------------------------------------------------------------------------------
// Units with an offset zero

template <typename TextBase>
BasicLinearSymbol<TextBase>::BasicLinearSymbol(std::wstring text, int unitSymbol, int operandUnitSymbol, int flags)
    : TextBase(std::move(text), flags),
      m_unitSymbol(unitSymbol),
      m_operandUnitSymbol(operandUnitSymbol),
      m_converter(UnitsConfig::GetInstance()->FindConverter(unitSymbol)) {}

template <typename TextBase>
BasicLinearSymbol<TextBase>::~BasicLinearSymbol() = default;

template <typename TextBase>
UnitConverter const& BasicLinearSymbol<TextBase>::GetConverter() const {
    return m_converter != nullptr ? *m_converter : UnknownUnit();
}

template <typename TextBase>
int BasicLinearSymbol<TextBase>::FormatNumber(int index, double value, DimensionVector const& dims, wchar_t* buffer,
                                              unsigned long size, UnitsFormatterImp const& formatter) const {
    if (index != 0) return -1;
    return FormatInUnit(GetConverter(), value, dims, buffer, size, formatter);
}

template <typename TextBase>
int BasicLinearSymbol<TextBase>::Format(double value, DimensionVector const& dims, wchar_t* buffer,
                                        unsigned long size, UnitsFormatterImp const& formatter) const {
    return this->AppendTextAfterNumber(this->FormatNumber(0, value, dims, buffer, size, formatter), buffer, size);
}

template <typename TextBase>
int BasicLinearSymbol<TextBase>::ParseNumber(ParseList& list, int form) const {
    return ParseLeadingNumber(GetConverter(), list, form);
}

template <typename TextBase>
int BasicLinearSymbol<TextBase>::Calculate(ParseList& list, ParseIterator& it, bool asOperand,
                                           DimensionVector const&) const {
    if (!asOperand) {
        // After its number: the offset conversion (`20 °C` is 293.15 K).
        if (it == list.begin()) return 1;
        ParseIterator const numberAt = std::prev(it);
        NumberSymbol const* number = As<NumberSymbol>(numberAt);
        if (number == nullptr) return 1;
        GenericConverter result;
        if (ToBase(m_unitSymbol, number->GetNumber(), nullptr, result) != 0) return 1;
        *numberAt = MakeParseSymbol<ResultSymbol>(list, result);
        list.erase(it);
        it = numberAt;
        return 0;
    }
    // Next to another unit, or with units after it, the symbol is an operand of
    // arithmetic and stands for a temperature difference.
    bool operand = it != list.begin() && As<OperandSymbol>(std::prev(it)) != nullptr;
    for (ParseIterator p = std::next(it); !operand && p != list.end(); ++p) {
        operand = As<OperandSymbol>(p) != nullptr;
    }
    ParseIterator const self = it;
    ++it;
    if (!operand) return 0;
    UnitConverter const* difference = UnitsConfig::GetInstance()->FindConverter(m_operandUnitSymbol);
    if (difference == nullptr) return 1;
    *self = MakeParseSymbol<GenericOperand>(list, CopyConverter(*difference));
    return 0;
}

LinearSymbol::LinearSymbol(wchar_t const* text, int unitSymbol, int operandUnitSymbol, int flags)
    : BasicLinearSymbol<SimpleFormatSymbol>(TextOf(text), unitSymbol, operandUnitSymbol, flags) {}
LinearSymbol::~LinearSymbol() = default;

template class BasicGenericSymbol<SimpleFormatSymbol>;
template class BasicGenericSymbol<SimpleFormatSymbol2>;
template class BasicGenericSymbolEx<GenericSymbol>;
template class BasicGenericSymbolEx<GenericSymbol2>;
template class BasicLinearSymbol<SimpleFormatSymbol>;
template class BasicLinearSymbol<SimpleFormatSymbol2>;

}  // namespace kxnorth::platform::core::units
