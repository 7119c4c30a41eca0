#pragma once

#include "Common/UUID.h"

#include <cstdint>
#include <cstring>
#include <string>

namespace aec
{

// The 16-byte identifier of a model entity type. Type lists compare many of these, so equality
// and ordering read the identifier as two 64-bit words.
class EntityTypeId
{
public:
    explicit EntityTypeId(const common::UUID& uuid) : uuid_(uuid) {}

    const common::UUID& uuid() const noexcept { return uuid_; }
    std::string toString() const { return uuid_.toString(); }

    friend bool operator==(const EntityTypeId& left, const EntityTypeId& right) noexcept
    {
        return left.high() == right.high() && left.low() == right.low();
    }
    friend bool operator<(const EntityTypeId& left, const EntityTypeId& right) noexcept
    {
        return left.high() != right.high() ? left.high() < right.high() : left.low() < right.low();
    }

private:
    std::uint64_t high() const noexcept { return word(0); }
    std::uint64_t low() const noexcept { return word(8); }
    std::uint64_t word(std::size_t offset) const noexcept
    {
        std::uint64_t value;
        std::memcpy(&value, uuid_.bytes().data() + offset, sizeof value);
        return value;
    }

    common::UUID uuid_;
};

} // namespace aec
