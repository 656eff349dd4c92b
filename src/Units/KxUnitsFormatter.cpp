// The exported formatter forwards every call to its implementation unchanged.
#include "KxCoreUnitsUI/UnitsFormatter.h"

#include "KxUnitsFormatterImp.h"

namespace kxnorth::platform::core::units {

UnitsFormatter::UnitsFormatter(wchar_t const* locale) : m_pImpObj(new UnitsFormatterImp(locale)) {}

UnitsFormatter::~UnitsFormatter() {
    delete m_pImpObj;
    m_pImpObj = nullptr;
}

int UnitsFormatter::Format(double value, int unit, wchar_t* buffer, unsigned long size, int symbol, double* rest) const { return m_pImpObj->Format(value, unit, buffer, size, symbol, rest); }

int UnitsFormatter::Format(double baseValue, int const (&dimensions)[kDimensionCount], wchar_t* buffer,
                           unsigned long size, int symbol, double* rest) const {
    return m_pImpObj->Format(baseValue, dimensions, buffer, size, symbol, rest);
}

int UnitsFormatter::Parse(wchar_t const* text, double& value, int unit) const { return m_pImpObj->Parse(text, value, unit); }

int UnitsFormatter::Parse(wchar_t const* text, double& baseValue, int const (&dimensions)[kDimensionCount],
                          int group) const {
    return m_pImpObj->Parse(text, baseValue, dimensions, group);
}

void UnitsFormatter::GetNativeDigits(wchar_t* out) const { m_pImpObj->GetNativeDigits(out); }

int UnitsFormatter::SetNativeDigits(wchar_t const* digits) { return m_pImpObj->SetNativeDigits(digits); }

void UnitsFormatter::GetPositiveSign(wchar_t* buffer, unsigned long size) const { m_pImpObj->GetPositiveSign(buffer, size); }

void UnitsFormatter::SetPositiveSign(wchar_t const* sign) { m_pImpObj->SetPositiveSign(sign); }

void UnitsFormatter::GetNegativeSign(wchar_t* buffer, unsigned long size) const { m_pImpObj->GetNegativeSign(buffer, size); }

void UnitsFormatter::SetNegativeSign(wchar_t const* sign) { m_pImpObj->SetNegativeSign(sign); }

void UnitsFormatter::GetNumberDecimalSeparator(wchar_t* buffer, unsigned long size) const { m_pImpObj->GetNumberDecimalSeparator(buffer, size); }

int UnitsFormatter::SetNumberDecimalSeparator(wchar_t const* separator) { return m_pImpObj->SetNumberDecimalSeparator(separator); }

void UnitsFormatter::GetNumberGroupSeparator(wchar_t* buffer, unsigned long size) const { m_pImpObj->GetNumberGroupSeparator(buffer, size); }

int UnitsFormatter::SetNumberGroupSeparator(wchar_t const* separator) { return m_pImpObj->SetNumberGroupSeparator(separator); }

int UnitsFormatter::GetNumberDecimalPrecision() const { return m_pImpObj->GetNumberDecimalPrecision(); }

int UnitsFormatter::SetNumberDecimalPrecision(int precision) { return m_pImpObj->SetNumberDecimalPrecision(precision); }

NumberFormat UnitsFormatter::GetNumericFormat() const { return m_pImpObj->GetNumericFormat(); }

void UnitsFormatter::SetNumericFormat(NumberFormat format) { m_pImpObj->SetNumericFormat(format); }

int UnitsFormatter::GetNumberGroupSizes(int* out) const { return m_pImpObj->GetNumberGroupSizes(out); }

int UnitsFormatter::SetNumberGroupSizes(int const* sizes, int count) { return m_pImpObj->SetNumberGroupSizes(sizes, count); }

bool UnitsFormatter::AllowTwoDigitExponent() const { return m_pImpObj->AllowTwoDigitExponent(); }

void UnitsFormatter::SetAllowTwoDigitExponent(bool value) { m_pImpObj->SetAllowTwoDigitExponent(value); }

bool UnitsFormatter::IncludePositiveSignInNumber() const { return m_pImpObj->IncludePositiveSignInNumber(); }

void UnitsFormatter::SetIncludePositiveSignInNumber(bool value) { m_pImpObj->SetIncludePositiveSignInNumber(value); }

bool UnitsFormatter::IncludeNegativeSignInNumber() const { return m_pImpObj->IncludeNegativeSignInNumber(); }

void UnitsFormatter::SetIncludeNegativeSignInNumber(bool value) { m_pImpObj->SetIncludeNegativeSignInNumber(value); }

bool UnitsFormatter::IncludePositiveSignInExponent() const { return m_pImpObj->IncludePositiveSignInExponent(); }

void UnitsFormatter::SetIncludePositiveSignInExponent(bool value) { m_pImpObj->SetIncludePositiveSignInExponent(value); }

bool UnitsFormatter::IncludeNegativeSignInExponent() const { return m_pImpObj->IncludeNegativeSignInExponent(); }

void UnitsFormatter::SetIncludeNegativeSignInExponent(bool value) { m_pImpObj->SetIncludeNegativeSignInExponent(value); }

int UnitsFormatter::GetSymbolFormattingString(int symbol, wchar_t* buffer, unsigned long size) const { return m_pImpObj->GetSymbolFormattingString(symbol, buffer, size); }

int UnitsFormatter::SetSymbolFormattingString(int symbol, wchar_t const* text) { return m_pImpObj->SetSymbolFormattingString(symbol, text); }

int UnitsFormatter::GetSymbolParsingString(int symbol, wchar_t* buffer, unsigned long size) const { return m_pImpObj->GetSymbolParsingString(symbol, buffer, size); }

int UnitsFormatter::SetSymbolParsingString(int symbol, wchar_t const* text) { return m_pImpObj->SetSymbolParsingString(symbol, text); }

int UnitsFormatter::GetDisplayNameLength(int id, unsigned long& length) const { return m_pImpObj->GetDisplayNameLength(id, length); }

int UnitsFormatter::GetDisplayName(int id, wchar_t* buffer, unsigned long size) const { return m_pImpObj->GetDisplayName(id, buffer, size); }

int UnitsFormatter::GetNumberFormatDisplayNameLength(NumberFormat format, unsigned long& length) const { return m_pImpObj->GetNumberFormatDisplayNameLength(format, length); }

int UnitsFormatter::GetNumberFormatDisplayName(NumberFormat format, wchar_t* buffer, unsigned long size) const { return m_pImpObj->GetNumberFormatDisplayName(format, buffer, size); }

int UnitsFormatter::GetDefaultSymbol(int unit) const { return m_pImpObj->GetDefaultSymbol(unit); }

int UnitsFormatter::SetDefaultSymbol(int symbol) { return m_pImpObj->SetDefaultSymbol(symbol); }

int UnitsFormatter::GetDefaultUnit(int group) const { return m_pImpObj->GetDefaultUnit(group); }

int UnitsFormatter::SetDefaultUnit(int unit) { return m_pImpObj->SetDefaultUnit(unit); }

wchar_t const* UnitsFormatter::GetLocale() const { return m_pImpObj->GetLocale(); }

}  // namespace kxnorth::platform::core::units
