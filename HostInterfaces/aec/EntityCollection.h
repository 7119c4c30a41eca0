#pragma once

namespace aec
{

// The project's entity collections, one behind each group of the explorer.
enum class EntityCollection
{
    Sheets,
    Tables,
    Assemblies,
    Materials,
    DoorStyles,
    WindowStyles,
    ReinforcementStyles,
    Topics,
    LinkedModels,
    Images,
};

inline constexpr int entityCollectionCount = 10;

} // namespace aec
