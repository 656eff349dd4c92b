#include "KxCoreUnitsUI/LCIDUtil.h"

#include "KxCoreUnitsUI/LocaleUtil.h"

namespace kxnorth::platform::core::locale {

char const* LCIDUtil::LCIDToLocaleName(unsigned long lcid) { return LocaleUtil::LCIDToLocaleName(lcid); }

}  // namespace kxnorth::platform::core::locale
