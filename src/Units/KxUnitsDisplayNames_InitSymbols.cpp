// Symbol name rows, generated from the catalogue tables: kind 0 rows carry the
// translation key, kind 1 rows are named by their unit.
#include "KxUnitsDisplayNames_Tables.h"

namespace kxnorth::platform::core::units::detail {

#include "KxDisplayNameRows.inc"

// clang-format off
SymbolNameRow const symbolNames[] = {
    KX_SYMBOL_NAME_ROWS
    {0, 3, ""},
};
// clang-format on

}  // namespace kxnorth::platform::core::units::detail
