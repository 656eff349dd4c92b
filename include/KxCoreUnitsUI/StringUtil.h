// Bridges between Qt strings and the wide-character (UCS-4) interface of the
// library and of the unit catalogue.
#pragma once

#include <QString>

#include "KxCoreUnits/UnitsEnums.h"
#include "KxCoreUnitsUI/KxCoreUnitsUIExport.h"

namespace kxnorth::platform::core::units {

class KXCOREUNITSUI_EXPORT StringUtil {
public:
    // Copies `str` into `dest` of `size` characters (-1: unlimited) and terminates it.
    // At most size - 1 characters are copied, so a string exactly as long as the
    // capacity loses its last character. A capacity of 0 still writes the
    // terminator at dest[0]. With a null `dest`, returns the string's length and
    // writes nothing. Returns the number of characters written, without the terminator.
    static int QStringToWchar(QString const& str, wchar_t* dest, int size);
    // As QStringToWchar, for a destination that must not be null; returns `dest`.
    static wchar_t* QStringToWchar2(QString const& str, wchar_t* dest, int size);

    // Identifiers by global name; an empty name gives 1 without asking the catalogue.
    static int GetUnitGroup(QString const& name, kxp::IDesignPropertyUnits::teGroup& group);
    static int GetUnitType(QString const& name, kxp::IDesignPropertyUnits::teType& type);
    static int GetUnitSymbol(QString const& name, UnitSymbol& symbol);
    static int GetNumberFormatId(QString const& name, NumberFormat& format);

    // Global names; an unknown identifier is a programming error and asserts.
    static QString GetUnitGlobalName(int id);
    static QString GetGlobalName(NumberFormat format);

    // Collation order of the user's locale: negative, zero or positive. An empty
    // string compares equal to every string, so sorting must not rely on empty
    // names coming first.
    static int LocaleAwareCompare(QString const& a, QString const& b);
};

}  // namespace kxnorth::platform::core::units
