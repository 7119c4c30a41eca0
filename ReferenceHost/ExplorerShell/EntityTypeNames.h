#pragma once

#include "aec/EntityTypeId.h"

#include <optional>
#include <string>
#include <string_view>

namespace aec::shell
{

// How the shell names entity types: in the dump's type column, and as the TYPE of create.

// The type's name ("sheet", "door style"), or its identifier for a type this host does not show.
std::string entityTypeName(const EntityTypeId& type);
// The type that create makes for the name: sheet, table, assembly or material, the types the
// explorer creates through its type handlers.
std::optional<EntityTypeId> creatableEntityType(std::string_view name);
// The names that creatableEntityType accepts, for messages and help.
std::string_view creatableEntityTypeNames();

} // namespace aec::shell
