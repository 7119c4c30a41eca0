#include "HostChecks/ExpectedSubgroups.h"

#include "Common/Check.h"
#include "Common/LogicalCompare.h"
#include "aec/AttributeValueFormatter.h"
#include "aec/Entity.h"
#include "aec/Project.h"
#include "aec/ProjectExplorerGroupingModel.h"
#include "aec/PropertyAssignmentKey.h"

#include <map>

namespace aec::host
{

namespace
{

struct NaturalOrder
{
    bool ascending;

    bool operator()(const std::wstring& left, const std::wstring& right) const noexcept
    {
        return ascending ? common::compareLogical(left, right) < 0 : common::compareLogical(right, left) < 0;
    }
};

} // namespace

std::vector<SubgroupDescriptor> expectedSubgroups(const IProject& project,
                                                  const IAttributeValueFormatter& formatter,
                                                  EntityCollection collection,
                                                  const PropertyAssignmentKey& key, int sortOrder)
{
    const EntityIdList entities = project.getEntities(collection);
    if (entities.empty())
        return {};
    if (key == PropertyAssignmentKey::noGrouping())
        return {{L"", EntityIdSet(entities.begin(), entities.end())}};

    // A map ordered by the natural comparison keeps the first of equal keys that it is given.
    std::map<std::wstring, EntityIdSet, NaturalOrder> byName(
        NaturalOrder{sortOrder == IProjectExplorerGroupingModel::ascending});
    for (const EntityId& id : entities)
    {
        const IEntity* const entity = project.findEntity(id);
        COMMON_CHECK(entity != nullptr);
        byName[formatter.format(entity->getPropertyValue(key))].insert(id);
    }
    std::vector<SubgroupDescriptor> subgroups;
    subgroups.reserve(byName.size());
    for (auto& [name, members] : byName)
        subgroups.push_back({name, std::move(members)});
    return subgroups;
}

} // namespace aec::host
