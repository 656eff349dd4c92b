// The catalogue's rows, generated from the tables in data/, and the indexes built over them.
#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "KxCoreUnits/UnitConverter.h"

namespace kxnorth::platform::core::units::detail {

struct GroupRow {
    int id;
    int dims[kDimensionCount];
    wchar_t const* globalName;
};

struct UnitRow {
    int id;
    double factor;  // size of one unit in base units
    double offset;  // base value of the unit's zero
    wchar_t const* globalName;
};

struct SymbolRow {
    int id;
    wchar_t const* globalName;
};

// A unit whose zero is not the base unit's zero (degrees Celsius and Fahrenheit).
class OffsetConverter final : public UnitConverter {
public:
    OffsetConverter(double factor, double offset, int const (&dims)[kDimensionCount]);

    int ConvertFromBase(int const (&dims)[kDimensionCount], double& out,
                        double valueInBase) const override;
    int ConvertToBase(double* out, int const (&dims)[kDimensionCount],
                      double value) const override;
    double GetFactor() const override { return m_factor; }
    double GetOffset() const override { return m_offset; }
    bool IsCompatible(int const (&dims)[kDimensionCount]) const override;

private:
    double m_factor;
    double m_offset;
};

class Catalogue {
public:
    static Catalogue const& Get();

    struct Unit {
        UnitRow const* row;
        std::unique_ptr<UnitConverter> converter;
        std::vector<int> symbols;
    };
    struct Group {
        GroupRow const* row;
        std::vector<int> units;
        std::vector<Unit const*> byIndex;  // [unit index - 1]; null where there is no unit
    };

    std::vector<Group> groups;                     // in identifier order
    std::unordered_map<int, Unit> units;           // by unit identifier
    std::unordered_map<int, wchar_t const*> names;  // global names by identifier
    std::unordered_map<std::wstring_view, int> groupByName;
    std::unordered_map<std::wstring_view, int> unitByName;
    std::unordered_map<std::wstring_view, int> symbolByName;

    Group const* FindGroup(int id) const;
    Unit const* FindUnit(int id) const;

private:
    Catalogue();
};

}  // namespace kxnorth::platform::core::units::detail
