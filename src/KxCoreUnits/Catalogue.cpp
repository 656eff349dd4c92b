#include "Catalogue.h"

#include <algorithm>

namespace kxnorth::platform::core::units::detail {

namespace {

#include "KxCatalogueData.inc"

bool SameDims(int const (&a)[kDimensionCount], int const (&b)[kDimensionCount]) {
    return std::equal(a, a + kDimensionCount, b);
}

}  // namespace

OffsetConverter::OffsetConverter(double factor, double offset,
                                 int const (&dims)[kDimensionCount])
    : UnitConverter(dims), m_factor(factor), m_offset(offset) {}

int OffsetConverter::ConvertFromBase(int const (&dims)[kDimensionCount], double& out,
                                     double valueInBase) const {
    if (!SameDims(dims, m_dims)) return 1;
    out = (valueInBase - m_offset) / m_factor;
    return 0;
}

int OffsetConverter::ConvertToBase(double* out, int const (&dims)[kDimensionCount],
                                   double value) const {
    if (out == nullptr || !SameDims(dims, m_dims)) return 1;
    *out = value * m_factor + m_offset;
    return 0;
}

bool OffsetConverter::IsCompatible(int const (&dims)[kDimensionCount]) const {
    return SameDims(dims, m_dims);
}

Catalogue const& Catalogue::Get() {
    static Catalogue const catalogue;
    return catalogue;
}

Catalogue::Catalogue() {
    groups.reserve(std::size(kGroupRows));
    for (GroupRow const& g : kGroupRows) {
        groups.push_back({&g, {}, {}});
        names.emplace(g.id, g.globalName);
        groupByName.emplace(g.globalName, g.id);
    }
    for (UnitRow const& u : kUnitRows) {
        Group* group = const_cast<Group*>(FindGroup(u.id & kGroupMask));
        std::unique_ptr<UnitConverter> converter;
        if (u.offset != 0.0) {
            converter = std::make_unique<OffsetConverter>(u.factor, u.offset, group->row->dims);
        } else {
            converter = std::make_unique<GenericConverter>(u.factor, group->row->dims);
        }
        group->units.push_back(u.id);
        units.emplace(u.id, Unit{&u, std::move(converter), {}});
        names.emplace(u.id, u.globalName);
        unitByName.emplace(u.globalName, u.id);
    }
    for (SymbolRow const& s : kSymbolRows) {
        units.at(s.id & kUnitMask).symbols.push_back(s.id);
        names.emplace(s.id, s.globalName);
        symbolByName.emplace(s.globalName, s.id);
    }
    // Rows are generated sorted by identifier; symbols of a unit are ordered by index.
    for (auto& [id, unit] : units) {
        std::sort(unit.symbols.begin(), unit.symbols.end());
        // Converters are looked up on every Format and Parse: index them densely.
        auto& byIndex = const_cast<Group*>(FindGroup(id))->byIndex;
        std::size_t const index = static_cast<std::size_t>(id & kUnitIndexMask);
        if (byIndex.size() < index) byIndex.resize(index, nullptr);
        byIndex[index - 1] = &unit;
    }
}

Catalogue::Group const* Catalogue::FindGroup(int id) const {
    int const number = (id & kGroupMask) >> 12;
    if (number < 1 || static_cast<std::size_t>(number) > groups.size()) return nullptr;
    Group const& g = groups[number - 1];
    return g.row->id == (id & kGroupMask) ? &g : nullptr;
}

Catalogue::Unit const* Catalogue::FindUnit(int id) const {
    Group const* group = FindGroup(id);
    std::size_t const index = static_cast<std::size_t>(id & kUnitIndexMask);
    if (group == nullptr || index == 0 || index > group->byIndex.size()) return nullptr;
    return group->byIndex[index - 1];
}

}  // namespace kxnorth::platform::core::units::detail
