#include "KxCoreUnits/UnitsConfig.h"

#include <algorithm>

#include "Catalogue.h"

namespace kxnorth::platform::core::units {

using detail::Catalogue;

UnitsConfig::UnitsConfig() = default;
UnitsConfig::~UnitsConfig() = default;

UnitsConfig* UnitsConfig::GetInstance() {
    // Building the catalogue's indexes here keeps every later call a const lookup.
    static UnitsConfig* const instance = (Catalogue::Get(), new UnitsConfig());
    return instance;
}

namespace {

std::size_t CopyIds(std::vector<int> const& ids, int* out) {
    if (out != nullptr) std::copy(ids.begin(), ids.end(), out);
    return ids.size();
}

}  // namespace

std::size_t UnitsConfig::GetUnitGroups(int* out) const {
    Catalogue const& c = Catalogue::Get();
    if (out != nullptr) {
        for (std::size_t i = 0; i < c.groups.size(); ++i) out[i] = c.groups[i].row->id;
    }
    return c.groups.size();
}

std::size_t UnitsConfig::GetUnitTypes(int group, int* out) const {
    group &= kIdentityMask;
    if ((group & ~kGroupMask) != 0) return 0;
    Catalogue::Group const* g = Catalogue::Get().FindGroup(group);
    return g == nullptr ? 0 : CopyIds(g->units, out);
}

std::size_t UnitsConfig::GetUnitSymbols(int unitType, int* out) const {
    unitType &= kIdentityMask;
    if ((unitType & ~kUnitMask) != 0) return 0;
    Catalogue::Unit const* u = Catalogue::Get().FindUnit(unitType);
    return u == nullptr ? 0 : CopyIds(u->symbols, out);
}

UnitConverter const* UnitsConfig::FindConverter(int unitType) const {
    Catalogue::Unit const* u = Catalogue::Get().FindUnit(unitType & kIdentityMask);
    return u == nullptr ? nullptr : u->converter.get();
}

int UnitsConfig::FindUnitGroup(int const (&dims)[kDimensionCount]) const {
    for (Catalogue::Group const& g : Catalogue::Get().groups) {
        if (std::equal(dims, dims + kDimensionCount, g.row->dims)) return g.row->id;
    }
    return 0;
}

wchar_t const* UnitsConfig::GetGlobalName(int id) const {
    Catalogue const& c = Catalogue::Get();
    auto it = c.names.find(id & kIdentityMask);
    return it == c.names.end() ? L"" : it->second;
}

}  // namespace kxnorth::platform::core::units
