// Numeric locale identifiers (LCIDs) to locale names.
#pragma once

#include "KxCoreUnitsUI/KxCoreUnitsUIExport.h"

namespace kxnorth::platform::core::locale {

class KXCOREUNITSUI_EXPORT LCIDUtil {
public:
    // Name of the first locale with this LCID ("en-US" for 0x0409); "en-US" if none.
    static char const* LCIDToLocaleName(unsigned long lcid);
};

}  // namespace kxnorth::platform::core::locale
