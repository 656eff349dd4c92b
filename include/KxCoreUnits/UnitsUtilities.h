// Lookups between identifiers and global names. Every function returns eEOk on
// success; on failure the output argument is left unchanged.
#pragma once

#include "KxCoreUnits/UnitsEnums.h"
#include "KxCoreUnits/UnitsExport.h"

namespace kxnorth::platform::core::units {

class KXCOREUNITS_EXPORT UnitsUtilities {
public:
    using teGroup = kxp::IDesignPropertyUnits::teGroup;
    using teType = kxp::IDesignPropertyUnits::teType;

    static int GetUnitType(wchar_t const* name, teType& out);
    static int GetUnitGroup(wchar_t const* name, teGroup& out);
    static int GetUnitSymbol(wchar_t const* name, UnitSymbol& out);
    static int GetNumericFormat(wchar_t const* name, NumberFormat& out);

    // Length of the global name of a group, unit or symbol, in wchar_t including the terminator.
    static int GetGlobalNameLength(int id, unsigned long& length);
    // Writes that name and its terminator into `buffer` of `size` characters.
    static int GetGlobalName(int id, wchar_t* buffer, unsigned long size);
    static int GetGlobalNameLength(NumberFormat format, unsigned long& length);
    static int GetGlobalName(NumberFormat format, wchar_t* buffer, unsigned long size);
};

}  // namespace kxnorth::platform::core::units
