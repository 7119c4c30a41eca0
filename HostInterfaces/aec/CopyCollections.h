#pragma once

#include "aec/EntityId.h"

#include <array>
#include <cstddef>

namespace aec
{

// The kinds of objects that a copy carries, one collection each.
enum class CopyCollection : std::size_t
{
    Sheets,
    Tables,
    Assemblies,
    Materials,
    DoorStyles,
    WindowStyles,
    ReinforcementStyles,
    Topics,
    Images,
};

inline constexpr std::size_t copyCollectionCount = 9;

// The entities of one copy, sorted into the nine collections.
using CopyCollections = std::array<EntityIdList, copyCollectionCount>;

} // namespace aec
