// The unit catalogue: groups, unit types, symbols, their converters and global names.
#pragma once

#include <cstddef>

#include "KxCoreUnits/UnitConverter.h"
#include "KxCoreUnits/UnitsEnums.h"
#include "KxCoreUnits/UnitsExport.h"

namespace kxnorth::platform::core::units {

// Read-only after construction; every member is safe to call from any thread.
class KXCOREUNITS_EXPORT UnitsConfig {
public:
    static UnitsConfig* GetInstance();

    // Two-call protocol: with a null `out` each returns the count; with an array
    // of at least that many ints it also fills the identifiers, in catalogue order.
    std::size_t GetUnitGroups(int* out) const;
    std::size_t GetUnitTypes(int group, int* out) const;
    std::size_t GetUnitSymbols(int unitType, int* out) const;

    // The converter of a unit type (or of the unit of a symbol identifier), or null.
    UnitConverter const* FindConverter(int unitType) const;

    // The group whose quantities have `dims`. Several groups share a dimension
    // vector (dimensionless, angle, solid angle, parts-per and computer storage;
    // energy and torque; frequency and bit rate; ...): the first in group order
    // wins. Unknown dimensions give 0, which is no group, unit or symbol.
    int FindUnitGroup(int const (&dims)[kDimensionCount]) const;

    // The global name of a symbol (without the "eS" of its key), or of a group or
    // unit type; an empty string for an unknown identifier. Owned by the catalogue.
    wchar_t const* GetGlobalName(int id) const;

    UnitsConfig(UnitsConfig const&) = delete;
    UnitsConfig& operator=(UnitsConfig const&) = delete;

private:
    UnitsConfig();
    ~UnitsConfig();
};

}  // namespace kxnorth::platform::core::units
