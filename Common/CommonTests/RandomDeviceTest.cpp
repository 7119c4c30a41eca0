#include "Common/RandomDevice.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace
{

std::vector<std::uint32_t> draw(common::IRandomDevice& device)
{
    return {device.next(), device(), device.next(), device()};
}

TEST(RandomDeviceTest, SeededDeviceRunsOneMersenneTwisterThroughBothOperations)
{
    common::CRandomDevice device(2024);
    std::mt19937 reference(2024);
    for (int i = 0; i < 4; ++i)
    {
        EXPECT_EQ(device.next(), reference());
        EXPECT_EQ(device(), reference());
    }
}

TEST(RandomDeviceTest, UnseededDevicesAreReseededEachOnItsOwn)
{
    common::CRandomDevice first;
    common::CRandomDevice second;
    common::CRandomDevice defaultSeed(std::mt19937::default_seed);
    const std::vector<std::uint32_t> firstValues = draw(first);
    EXPECT_NE(firstValues, draw(second));
    EXPECT_NE(firstValues, draw(defaultSeed));

    EXPECT_EQ(&common::defaultRandomDevice(), &common::defaultRandomDevice());
    const int roll = std::uniform_int_distribution<int>(1, 6)(common::defaultRandomDevice());
    EXPECT_TRUE(roll >= 1 && roll <= 6);
}

} // namespace
