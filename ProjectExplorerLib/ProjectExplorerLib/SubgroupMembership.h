#pragma once

#include "aec/EntityId.h"

namespace aec
{
class IProjectExplorerSubgroup;
} // namespace aec

namespace project_explorer
{

// Whether the subgroup holds at least one of the entities. Costs about the smaller of the two sizes
// times a tree descent, and stops at the first entity found, so that asking it of every subgroup
// of the tree stays cheap for one selected entity and for a hundred thousand alike.
bool holdsAnyOf(const aec::IProjectExplorerSubgroup& subgroup, const aec::EntityIdSet& entities);

} // namespace project_explorer
