#pragma once

#include "Common/CommonApi.h"
#include "Common/UuidProvider.h"

#include <cstdint>
#include <random>

namespace common
{

// Deterministic UUIDs for reproducible runs: the same seed gives the same sequence on every
// platform (std::mt19937_64 is fully specified by the standard). The values carry the version-4
// and variant bits, so they look like any other random UUID. Not thread-safe.
class COMMON_API CSequentialUuidProvider : public IUuidProvider
{
public:
    explicit CSequentialUuidProvider(std::uint64_t seed);

    UUID generate(const std::string& hint) override;

private:
    std::mt19937_64 engine_;
};

} // namespace common
