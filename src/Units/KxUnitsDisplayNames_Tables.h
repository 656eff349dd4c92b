// The static name tables behind UnitsDisplayNames; each ends with a terminator row.
#pragma once

#include "KxCoreUnits/UnitsEnums.h"

namespace kxnorth::platform::core::units::detail {

struct NameRow {
    int id;
    char const* name;
};

struct SymbolNameRow {
    int id;
    int kind;
    char const* name;
};

extern NameRow const GroupNames[];     // ends with id 0
extern NameRow const unitNames[];      // ends with id 0
extern NameRow const formatNames[];    // ends with a negative id
extern SymbolNameRow const symbolNames[];  // ends with id 0, kind 3

}  // namespace kxnorth::platform::core::units::detail
