#pragma once

#include "aec/EntityTypeId.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

namespace project_explorer
{

// The fixed entity type lists of the explorer's entity operations. Each is built once, on first
// use, and never changes.

inline constexpr std::size_t handledTypeCount = 4;

// Types whose entities are created, removed and renamed through the project's type handlers:
// sheet, table, assembly, material. The order is that of the handlers given to the controller.
const std::array<aec::EntityTypeId, handledTypeCount>& handledEntityTypes();

// Types that the controller renames itself through the project's editing service: door, window
// and reinforcement styles. They have no type handler.
const std::array<aec::EntityTypeId, 3>& directRenameEntityTypes();

// The handled and the direct-rename types: the seven renamable, topic-bearing types that the
// explorer's groupable groups list.
const std::array<aec::EntityTypeId, 7>& explorerEntityTypes();

// Types whose properties are edited in the property editor although they are not explorer types:
// topics, linked models, images.
const std::array<aec::EntityTypeId, 3>& propertyEditingEntityTypes();

// The explorer types that are edited in the property editor too; sheets and tables are left out,
// because they are opened in a view of their own instead.
const std::array<aec::EntityTypeId, 5>& furtherPropertyEditingEntityTypes();

// The position of the type among the handled types, or nothing when it is not one of them.
std::optional<std::size_t> handledTypeIndex(const aec::EntityTypeId& type);

// Whether the list holds the type.
template <std::size_t Size>
bool listsType(const std::array<aec::EntityTypeId, Size>& types, const aec::EntityTypeId& type)
{
    return std::ranges::find(types, type) != types.end();
}

} // namespace project_explorer
