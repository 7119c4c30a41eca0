#include "Common/RandomDevice.h"

#include <algorithm>
#include <array>
#include <functional>

namespace common
{

IRandomDevice::~IRandomDevice() = default;

CRandomDevice::CRandomDevice()
{
    // A single 32-bit seed would reach only 2^32 of the engine's states; seeding the whole state
    // (624 words) from the non-deterministic source makes every instance independent.
    std::array<std::uint32_t, std::mt19937::state_size> entropy{};
    std::random_device source;
    std::generate(entropy.begin(), entropy.end(), std::ref(source));
    std::seed_seq seeds(entropy.begin(), entropy.end());
    engine_.seed(seeds);
}

CRandomDevice::CRandomDevice(std::uint32_t seed) : engine_(seed) {}

std::uint32_t CRandomDevice::next()
{
    return static_cast<std::uint32_t>(engine_());
}

std::uint32_t CRandomDevice::operator()()
{
    return next();
}

IRandomDevice& defaultRandomDevice()
{
    static CRandomDevice device;
    return device;
}

} // namespace common
