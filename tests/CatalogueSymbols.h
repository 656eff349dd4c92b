// Every symbol identifier of the catalogue, group by group, unit by unit.
#pragma once

#include <vector>

#include "KxCoreUnits/UnitsConfig.h"

namespace kxtest {

inline std::vector<int> AllSymbols() {
    auto const* config = kxnorth::platform::core::units::UnitsConfig::GetInstance();
    std::vector<int> groups(config->GetUnitGroups(nullptr)), result;
    config->GetUnitGroups(groups.data());
    for (int g : groups) {
        std::vector<int> unitIds(config->GetUnitTypes(g, nullptr));
        config->GetUnitTypes(g, unitIds.data());
        for (int u : unitIds) {
            std::vector<int> symbols(config->GetUnitSymbols(u, nullptr));
            config->GetUnitSymbols(u, symbols.data());
            result.insert(result.end(), symbols.begin(), symbols.end());
        }
    }
    return result;
}

}  // namespace kxtest
