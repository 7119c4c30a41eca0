#pragma once

#include "aec/EntityId.h"

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace aec::model
{

// Hashes entity identifiers for the model's own hash tables, which every group rebuild of the
// explorer asks twice per entity (the entity, then its topic). The identifier's own hash is a fixed
// function that stored keys derive from, sixteen dependent steps long; the identifiers themselves
// are random (version 4), so two loads and two multiplications spread them as well. Mixing both
// halves keeps identifiers that differ in one byte only, as tests write them, apart too.
struct CEntityIdHash
{
    std::size_t operator()(const EntityId& id) const noexcept
    {
        const auto& bytes = id.uuid().bytes();
        std::uint64_t low = 0;
        std::uint64_t high = 0;
        std::memcpy(&low, bytes.data(), sizeof low);
        std::memcpy(&high, bytes.data() + sizeof low, sizeof high);
        const std::uint64_t mixed = (low ^ (high * 0x9e3779b97f4a7c15u)) * 0xff51afd7ed558ccdu;
        return static_cast<std::size_t>(mixed ^ (mixed >> 32));
    }
};

} // namespace aec::model
