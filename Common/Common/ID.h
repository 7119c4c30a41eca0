#pragma once

#include "Common/UUID.h"

#include <compare>
#include <cstddef>
#include <functional>

namespace common
{

// A UUID that names one kind of thing. The tag type only keeps identifiers of different kinds
// apart at compile time; the value, its order and its hash are those of the wrapped UUID.
template <class Tag>
class ID
{
public:
    // The nil identifier, which names nothing.
    constexpr ID() noexcept = default;
    constexpr explicit ID(const UUID& uuid) noexcept : uuid_(uuid) {}

    constexpr const UUID& uuid() const noexcept { return uuid_; }
    constexpr bool isNull() const noexcept { return uuid_.isNull(); }

    friend constexpr bool operator==(const ID&, const ID&) noexcept = default;
    friend constexpr std::strong_ordering operator<=>(const ID&, const ID&) noexcept = default;

private:
    UUID uuid_;
};

// Tag of the identifiers of project entities.
struct tagGlobalEntityId;

} // namespace common

template <class Tag>
struct std::hash<common::ID<Tag>>
{
    std::size_t operator()(const common::ID<Tag>& id) const noexcept
    {
        return std::hash<common::UUID>{}(id.uuid());
    }
};
