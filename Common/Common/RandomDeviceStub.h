#pragma once

// TEMPORARY stand-in for Common/RandomDevice.h, which is being written on another branch. It
// declares the same interface so that the order keys build against it; it is to be deleted and its
// one include switched to Common/RandomDevice.h when the two branches meet.

#include "Common/CommonApi.h"

#include <cstdint>
#include <random>

namespace common
{

class IRandomDevice
{
public:
    virtual ~IRandomDevice() = default;
    virtual std::uint32_t next() = 0;
    virtual std::uint32_t operator()() = 0;
};

class CRandomDevice;

COMMON_API inline IRandomDevice& defaultRandomDevice()
{
    class CMersenneTwisterDevice final : public IRandomDevice
    {
    public:
        std::uint32_t next() override { return engine_(); }
        std::uint32_t operator()() override { return engine_(); }

    private:
        std::mt19937 engine_{std::random_device{}()};
    };
    static CMersenneTwisterDevice device;
    return device;
}

} // namespace common
