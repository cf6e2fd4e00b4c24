// The started module. Linking module.cpp into an executable keeps the module started while its tests run.
#pragma once

#include <gtest/gtest.h>

namespace test {

class Module : public testing::Environment {
public:
    void SetUp() override;
    void TearDown() override;
};

} // namespace test
