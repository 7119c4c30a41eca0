#include "Common/SequentialUuidProvider.h"

namespace common
{

CSequentialUuidProvider::CSequentialUuidProvider(std::uint64_t seed) : engine_(seed) {}

UUID CSequentialUuidProvider::generate(const std::string& /*hint*/)
{
    UUID::Bytes bytes{};
    for (std::size_t half = 0; half < 2; ++half)
    {
        // Spread each draw over its bytes by shifting, not by copying memory, so the result does
        // not depend on the machine's byte order.
        const std::uint64_t draw = engine_();
        for (std::size_t i = 0; i < 8; ++i)
            bytes[8 * half + i] = static_cast<std::uint8_t>(draw >> (8 * i));
    }
    return UUID::version4FromRandomBytes(bytes);
}

} // namespace common
