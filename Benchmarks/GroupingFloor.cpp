#include "GroupingFloor.h"

#include "aec/AttributeValueFormatter.h"
#include "aec/Entity.h"
#include "aec/Project.h"
#include "aec/ProjectExplorerGroupInfo.h"
#include "aec/PropertyAssignmentKey.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace benchmarks
{

std::size_t groupByFormattedName(const aec::IProject& project, const aec::IAttributeValueFormatter& formatter)
{
    std::size_t names = 0;
    for (const aec::ProjectExplorerGroupInfo& group : aec::projectExplorerGroups())
    {
        if (!group.groupable)
            continue;
        std::unordered_map<std::wstring, std::vector<aec::EntityId>> byName;
        for (const aec::EntityId& id : project.getEntities(group.collection))
        {
            const aec::IEntity* const entity = project.findEntity(id);
            byName[formatter.format(entity->getPropertyValue(aec::PropertyAssignmentKey::topic()))].push_back(
                id);
        }
        names += byName.size();
    }
    return names;
}

} // namespace benchmarks
