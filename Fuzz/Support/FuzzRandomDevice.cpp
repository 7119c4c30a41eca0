#include "Support/FuzzRandomDevice.h"

#include <numeric>

namespace fuzz
{

CFuzzRandomDevice::CFuzzRandomDevice(std::span<const std::uint8_t> bytes)
    : bytes_(bytes),
      fallback_(std::accumulate(bytes.begin(), bytes.end(), std::uint32_t{0x2545f491u},
                                [](std::uint32_t seed, std::uint8_t byte) { return seed * 31u + byte; }))
{
}

std::uint32_t CFuzzRandomDevice::next()
{
    if (position_ < bytes_.size())
        return bytes_[position_++];
    return fallback_.next();
}

std::uint32_t CFuzzRandomDevice::operator()()
{
    return next();
}

} // namespace fuzz
