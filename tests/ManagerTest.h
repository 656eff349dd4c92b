// A fixture whose tests need the units manager, initialised once before the suite.
#pragma once

#include <gtest/gtest.h>

#include "KxCoreUnitsUI/UnitsManager.h"

namespace kxtest {

template <class Base = ::testing::Test>
class ManagerTest : public Base {
protected:
    static void SetUpTestSuite() {
        kxnorth::platform::core::units::UnitsManager::Initialize();
        kxnorth::platform::core::units::UnitsManager::GetInstance();
    }
};

}  // namespace kxtest
