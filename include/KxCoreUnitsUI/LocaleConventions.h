// A locale's conventions for writing numbers, applied to a formatter in one call.
// A formatter starts with fixed number settings whatever its locale ("," between
// groups of three, "." before the decimals, "-"); these helpers give it the
// separators, group sizes, signs and, on request, the digits of a locale instead,
// taken from Qt's locale data. Everything goes through the formatter's public
// setters, so a formatter set up this way reads back what it writes.
#pragma once

#include "KxCoreUnitsUI/KxCoreUnitsUIExport.h"

namespace kxnorth::platform::core::units {

class UnitsFormatter;

// Latin digits 0-9 are what most software reads and writes, so they are the default
// even where the locale has a native numbering system (Arabic, Persian, Devanagari).
enum class LocaleDigits { eLatin, eNative };

// Texts are NUL-terminated; nativeDigits holds exactly ten characters, "0" to "9".
struct LocaleConventions {
    static constexpr int kMaxText = 8;
    wchar_t decimalSeparator[kMaxText];
    wchar_t groupSeparator[kMaxText];
    // Sizes from the decimal separator leftwards, the last one repeating: {3} for
    // "1,234,567", {3, 2} for the Indian "12,34,567".
    int groupSizes[2];
    int groupSizeCount;
    wchar_t positiveSign[kMaxText];
    wchar_t negativeSign[kMaxText];
    wchar_t nativeDigits[10];
};

// The conventions of a locale named as the formatter names it ("fr-FR", "de-CH").
// A null, empty or unknown name gives the conventions of Qt's C locale, which are
// the formatter's defaults apart from the positive sign "+".
KXCOREUNITSUI_EXPORT LocaleConventions GetLocaleConventions(wchar_t const* locale);

// Applies the conventions of `locale` (null: the formatter's own locale) to the
// formatter. Positive numbers stay unsigned; the locale's plus sign is what a typed
// "+5" may start with. Returns 0 when applied, 1 when the formatter refused a
// setting, in which case every setting is back as it was.
KXCOREUNITSUI_EXPORT int ApplyLocaleConventions(UnitsFormatter& formatter, wchar_t const* locale = nullptr,
                                                LocaleDigits digits = LocaleDigits::eLatin);

}  // namespace kxnorth::platform::core::units
