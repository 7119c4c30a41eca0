#pragma once

#include "Common/RandomDevice.h"

#include <cstdint>
#include <span>

namespace fuzz
{

// Random numbers that the fuzz input chooses, so that the fuzzer steers the salt of new keys and
// a crash replays exactly. Each number takes one byte of the input; once the bytes are used up, a
// Mersenne Twister seeded from them goes on, since code that waits for a non-zero byte would wait
// forever on a source that only gives zeros.
class CFuzzRandomDevice final : public common::IRandomDevice
{
public:
    explicit CFuzzRandomDevice(std::span<const std::uint8_t> bytes);

    std::uint32_t next() override;
    std::uint32_t operator()() override;

private:
    std::span<const std::uint8_t> bytes_;
    std::size_t position_ = 0;
    common::CRandomDevice fallback_;
};

} // namespace fuzz
