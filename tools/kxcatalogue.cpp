// Prints a summary of the unit catalogue: its groups with their unit and symbol
// counts, and a few conversions through base units.
#include <cstdio>
#include <cwchar>
#include <memory>

#include "KxCoreUnits/UnitsConfig.h"
#include "KxCoreUnits/UnitsUtilities.h"

namespace units = kxnorth::platform::core::units;

namespace {

int IdOf(wchar_t const* unitName) {
    kxp::IDesignPropertyUnits::teType type{};
    return units::UnitsUtilities::GetUnitType(unitName, type) == units::eEOk ? type : 0;
}

// Converts `value` from one unit to another through base units; false when either
// unit is unknown or their dimensions differ.
bool Convert(double value, wchar_t const* from, wchar_t const* to, double& out) {
    units::UnitsConfig const* config = units::UnitsConfig::GetInstance();
    units::UnitConverter const* a = config->FindConverter(IdOf(from));
    units::UnitConverter const* b = config->FindConverter(IdOf(to));
    double base = 0;
    return a != nullptr && b != nullptr && a->ConvertToBase(&base, a->GetDimTag(), value) == 0 &&
           b->ConvertFromBase(a->GetDimTag(), out, base) == 0;
}

}  // namespace

int main() {
    units::UnitsConfig const* config = units::UnitsConfig::GetInstance();
    std::size_t const groupCount = config->GetUnitGroups(nullptr);
    auto groups = std::make_unique<int[]>(groupCount);
    config->GetUnitGroups(groups.get());

    std::size_t unitTotal = 0, symbolTotal = 0;
    std::printf("%-8s %-36s %5s %7s  %s\n", "group", "global name", "units", "symbols", "first unit");
    for (std::size_t g = 0; g < groupCount; ++g) {
        std::size_t const unitCount = config->GetUnitTypes(groups[g], nullptr);
        auto unitIds = std::make_unique<int[]>(unitCount);
        config->GetUnitTypes(groups[g], unitIds.get());
        std::size_t symbols = 0;
        for (std::size_t u = 0; u < unitCount; ++u) symbols += config->GetUnitSymbols(unitIds[u], nullptr);
        unitTotal += unitCount;
        symbolTotal += symbols;
        std::printf("0x%05X  %-36ls %5zu %7zu  %ls\n", groups[g], config->GetGlobalName(groups[g]),
                    unitCount, symbols, unitCount ? config->GetGlobalName(unitIds[0]) : L"");
    }
    std::printf("\n%zu groups, %zu unit types, %zu symbols\n\n", groupCount, unitTotal, symbolTotal);

    struct Example {
        double value;
        wchar_t const* from;
        wchar_t const* to;
    };
    Example const examples[] = {
        {1, L"Mile", L"Kilometer"},          {100, L"DegreeFahrenheit", L"DegreeCelsius"},
        {1, L"Acre", L"SquareMeter"},        {1, L"GallonUSFluidWine", L"Liter"},
        {1, L"PoundForce", L"Newton"},       {1, L"BritishThermalUnitInternationalTable", L"Joule"},
        {1, L"HorsepowerImperialMechanical", L"Watt"}, {180, L"Degree", L"Radian"},
    };
    for (Example const& e : examples) {
        double out = 0;
        if (Convert(e.value, e.from, e.to, out)) {
            std::printf("%g %ls = %.12g %ls\n", e.value, e.from, out, e.to);
        } else {
            std::printf("%g %ls: no conversion to %ls\n", e.value, e.from, e.to);
        }
    }
    return 0;
}
