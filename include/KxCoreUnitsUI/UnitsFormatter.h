// Formats values with units into wide text and parses typed text back into values.
#pragma once

#include "KxCoreUnits/UnitsEnums.h"
#include "KxCoreUnitsUI/KxCoreUnitsUIExport.h"

namespace kxnorth::platform::core::units {

class UnitsFormatterImp;

// Threads: any number of threads may each create, use and destroy their own
// formatters at the same time, for any locales, with no warm-up: the first formatter
// of a locale and the first UnitsManager::GetInstance() may happen on any thread, at
// once. One formatter is used by one thread at a time (its setters change it, and so
// does a degrees-minutes-seconds Format for the length of the call); hand it to
// another thread with the usual synchronisation. Format and Parse take no lock.
//
// A formatter keeps what it was created with: its locale (the manager's current one
// when created with an empty name), translations and symbol texts. Later calls of
// UnitsManager::SetCurrentLocale or SetTranslatorFilesPath apply only to formatters
// created afterwards. Parse reads the texts of every locale loaded in the process
// so far, including locales first loaded after this formatter was created.
//
// Setters that can refuse return 0 when done and 1 when refused, leaving every
// setting unchanged. Buffer sizes count wide characters, terminator included.
class KXCOREUNITSUI_EXPORT UnitsFormatter {
public:
    // The locale ("en-US") chooses display names and symbol texts; number settings
    // always start at the same defaults: digits 0-9, signs "" and "-", "," between
    // groups of three, "." before two decimals, format "Number".
    explicit UnitsFormatter(wchar_t const* locale);
    virtual ~UnitsFormatter();
    UnitsFormatter(UnitsFormatter const&) = delete;
    UnitsFormatter& operator=(UnitsFormatter const&) = delete;

    int Format(double value, int unit, wchar_t* buffer, unsigned long size, int symbol, double* rest) const;
    int Format(double baseValue, int const (&dimensions)[kDimensionCount], wchar_t* buffer, unsigned long size,
               int symbol, double* rest) const;
    int Parse(wchar_t const* text, double& value, int unit) const;
    int Parse(wchar_t const* text, double& baseValue, int const (&dimensions)[kDimensionCount], int group) const;

    void GetNativeDigits(wchar_t* out) const;  // exactly 10 characters, no terminator
    int SetNativeDigits(wchar_t const* digits);
    void GetPositiveSign(wchar_t* buffer, unsigned long size) const;
    void SetPositiveSign(wchar_t const* sign);
    void GetNegativeSign(wchar_t* buffer, unsigned long size) const;
    void SetNegativeSign(wchar_t const* sign);
    void GetNumberDecimalSeparator(wchar_t* buffer, unsigned long size) const;
    int SetNumberDecimalSeparator(wchar_t const* separator);
    void GetNumberGroupSeparator(wchar_t* buffer, unsigned long size) const;
    int SetNumberGroupSeparator(wchar_t const* separator);
    int GetNumberDecimalPrecision() const;
    int SetNumberDecimalPrecision(int precision);
    NumberFormat GetNumericFormat() const;
    void SetNumericFormat(NumberFormat format);
    int GetNumberGroupSizes(int* out) const;
    int SetNumberGroupSizes(int const* sizes, int count);
    bool AllowTwoDigitExponent() const;
    void SetAllowTwoDigitExponent(bool value);
    bool IncludePositiveSignInNumber() const;
    void SetIncludePositiveSignInNumber(bool value);
    bool IncludeNegativeSignInNumber() const;
    void SetIncludeNegativeSignInNumber(bool value);
    bool IncludePositiveSignInExponent() const;
    void SetIncludePositiveSignInExponent(bool value);
    bool IncludeNegativeSignInExponent() const;
    void SetIncludeNegativeSignInExponent(bool value);

    int GetSymbolFormattingString(int symbol, wchar_t* buffer, unsigned long size) const;
    int SetSymbolFormattingString(int symbol, wchar_t const* text);
    int GetSymbolParsingString(int symbol, wchar_t* buffer, unsigned long size) const;
    int SetSymbolParsingString(int symbol, wchar_t const* text);

    int GetDisplayNameLength(int id, unsigned long& length) const;
    int GetDisplayName(int id, wchar_t* buffer, unsigned long size) const;
    int GetNumberFormatDisplayNameLength(NumberFormat format, unsigned long& length) const;
    int GetNumberFormatDisplayName(NumberFormat format, wchar_t* buffer, unsigned long size) const;

    int GetDefaultSymbol(int unit) const;
    int SetDefaultSymbol(int symbol);
    int GetDefaultUnit(int group) const;
    int SetDefaultUnit(int unit);

    wchar_t const* GetLocale() const;

private:
    UnitsFormatterImp* m_pImpObj;
};

}  // namespace kxnorth::platform::core::units
