#include "ProjectExplorerLib/SubgroupMembership.h"

#include "aec/ProjectExplorerSubgroup.h"

#include <algorithm>
#include <cstddef>
#include <optional>

namespace project_explorer
{

namespace
{

// Up to this many entities are looked up in the subgroup at once, without trying a scan first.
constexpr std::size_t fewEntities = 8;

// Whether one of the first `limit` entities of the subgroup is one of `entities`; nothing when the
// subgroup holds more than that and none of those was.
std::optional<bool> scanFor(const aec::IProjectExplorerSubgroup& subgroup, const aec::EntityIdSet& entities,
                            std::size_t limit)
{
    std::size_t steps = 0;
    for (const aec::EntityId& entity : subgroup.getEntities())
    {
        if (entities.contains(entity))
            return true;
        if (++steps == limit)
            return std::nullopt;
    }
    return false;
}

} // namespace

bool holdsAnyOf(const aec::IProjectExplorerSubgroup& subgroup, const aec::EntityIdSet& entities)
{
    // Scanning the subgroup costs a look-up in `entities` per entity it holds; looking the entities
    // up in the subgroup costs one look-up each. The subgroup does not tell its size, so it is
    // scanned for as many steps as there are entities, and looked up in when it holds more.
    if (entities.size() > fewEntities)
        if (const std::optional<bool> found = scanFor(subgroup, entities, entities.size()))
            return *found;
    return std::any_of(entities.begin(), entities.end(),
                       [&subgroup](const aec::EntityId& entity) { return subgroup.contains(entity); });
}

} // namespace project_explorer
