#pragma once

#include "Common/CommonApi.h"

#include <cstdint>
#include <limits>
#include <random>

namespace common
{

// A source of 32-bit pseudo-random numbers. It meets the standard's uniform random bit generator
// requirements, so a reference to it can drive the <random> distributions.
class COMMON_API IRandomDevice
{
public:
    using result_type = std::uint32_t;

    virtual ~IRandomDevice();

    virtual std::uint32_t next() = 0;
    virtual std::uint32_t operator()() = 0;

    static constexpr result_type min() { return std::numeric_limits<result_type>::min(); }
    static constexpr result_type max() { return std::numeric_limits<result_type>::max(); }
};

// A Mersenne Twister; both operations draw from the one engine. Not thread-safe.
class COMMON_API CRandomDevice : public IRandomDevice
{
public:
    // Seeded from the platform's non-deterministic source, so each instance runs its own sequence.
    CRandomDevice();
    // A reproducible sequence, for tests.
    explicit CRandomDevice(std::uint32_t seed);

    std::uint32_t next() override;
    std::uint32_t operator()() override;

private:
    std::mt19937 engine_;
};

// The process-wide device, made on first use; one copy for every library.
COMMON_API IRandomDevice& defaultRandomDevice();

} // namespace common
