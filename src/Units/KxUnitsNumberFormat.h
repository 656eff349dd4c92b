// Localised number text: the formatter's number settings and the functions that
// apply them. Kept apart from the formatter so that the fraction format can write
// its parts with the settings of a new formatter without building one.
#pragma once

#include <string>
#include <vector>

#include "KxCoreUnits/UnitsEnums.h"
#include "KxCoreUnitsUI/KxCoreUnitsUIExport.h"

namespace kxnorth::platform::core::units {

struct KXCOREUNITSUI_EXPORT NumberSettings {
    wchar_t digits[10] = {L'0', L'1', L'2', L'3', L'4', L'5', L'6', L'7', L'8', L'9'};
    std::wstring positiveSign;
    std::wstring negativeSign = L"-";
    std::wstring groupSeparator = L",";
    std::wstring decimalSeparator = L".";
    NumberFormat format = eNFNumber;
    int precision = 2;
    std::vector<int> groupSizes{3};
    bool allowTwoDigitExponent = true;
    bool includePositiveSignInNumber = true;
    bool includeNegativeSignInNumber = true;
    bool includePositiveSignInExponent = false;
    bool includeNegativeSignInExponent = true;

    // The settings every new formatter starts with, whatever its locale.
    static NumberSettings const& Defaults();
};

enum NumberFlags : int {
    kWholeNumberOnly = 1,  // precision 0, whatever the setting
    kNegativeZero = 2,     // a zero value gets the negative sign in front
};

// Writes `value` with `settings` into `buffer` of `size` wide characters. Returns the
// characters written including the terminator, or -1 when the text does not fit or
// the arguments are unusable.
KXCOREUNITSUI_EXPORT int FormatNumber(NumberSettings const& settings, double value, wchar_t* buffer,
                 unsigned long size, int flags);

// The "Fraction" format: the value rounded to a multiple of 1 / 2^precision, written
// as a whole part, a space and a reduced fraction ("3 1/4", "-1/4", "4 "), its numbers
// written with the defaults of a new formatter. Returns the text's length plus one;
// the buffer needs one more character than that.
KXCOREUNITSUI_EXPORT int FormatNumberAsFraction(NumberSettings const& settings, double value, wchar_t* buffer,
                           unsigned long size, int flags);

// Writes `source` reversed into `destination` (no terminator). 1 when the destination
// is null, `size` is 0 or the source is longer than `size`; else 0.
KXCOREUNITSUI_EXPORT int ReverseCopy(wchar_t* destination, std::wstring const& source, unsigned long size);

}  // namespace kxnorth::platform::core::units
