#include "ProjectExplorerLib/ProjectExplorerGroupMaker.h"

#include "aec/AttributeValueFormatter.h"
#include "aec/Entity.h"
#include "aec/Project.h"
#include "aec/ProjectExplorerGroupingModel.h"
#include "aec/ProjectSessionManager.h"

#include "Common/LogicalCompare.h"

#include <algorithm>
#include <map>
#include <string_view>
#include <unordered_map>

namespace project_explorer
{

namespace
{

// Subgroup names in natural order, ascending or descending.
class CLogicalNameOrder
{
public:
    explicit CLogicalNameOrder(bool ascending) : ascending_(ascending) {}

    bool operator()(std::wstring_view left, std::wstring_view right) const noexcept
    {
        return ascending_ ? common::compareLogical(left, right) < 0 : common::compareLogical(right, left) < 0;
    }

private:
    bool ascending_;
};

// Identifiers gather in vectors first: sorting a vector and building the set from the sorted run
// appends every node at the set's end, where inserting each identifier would descend the tree.
using ExactBuckets = std::unordered_map<std::wstring, aec::EntityIdList>;

aec::EntityIdSet sortedSetOf(aec::EntityIdList& entities)
{
    std::sort(entities.begin(), entities.end());
    return aec::EntityIdSet(entities.begin(), entities.end());
}

// The value the entity's subgroup is named by. An entity that the project cannot provide is the
// host's to name: it reads as lacking the property, and the formatter's text for an absent value
// names its subgroup, as the no-grouping subgroup keeps it too. The maker neither drops it nor
// refuses it.
aec::AttributeValue propertyValue(const aec::IProject& project, const aec::EntityId& id,
                                  const aec::PropertyAssignmentKey& key)
{
    const aec::IEntity* const entity = project.findEntity(id);
    return entity != nullptr ? entity->getPropertyValue(key) : aec::AttributeValue();
}

} // namespace

CProjectExplorerGroupMaker::CProjectExplorerGroupMaker(const aec::IAttributeValueFormatter& formatter,
                                                       const aec::IProjectSessionManager& sessionManager)
    : formatter_(formatter), sessionManager_(sessionManager)
{
}

CProjectExplorerGroupMaker::~CProjectExplorerGroupMaker() = default;

std::vector<aec::SubgroupDescriptor> CProjectExplorerGroupMaker::makeSubgroups(const aec::EntityIdList& entityIds,
                                                                               const aec::PropertyAssignmentKey& key,
                                                                               int sortOrder) const
{
    if (entityIds.empty())
        return {};
    if (key == aec::PropertyAssignmentKey::noGrouping())
    {
        // Emplaced rather than listed in braces, which would copy the set out of an initializer list.
        aec::EntityIdList all = entityIds;
        std::vector<aec::SubgroupDescriptor> single;
        single.push_back({L"", sortedSetOf(all)});
        return single;
    }

    const aec::IProject& project = sessionManager_.getCurrentProject();

    // The logical comparison is far dearer than hashing, so entities are first bucketed by their
    // exact name (one formatter call and one hash look-up each) and only the distinct names are
    // ordered. The buckets are remembered in order of first occurrence, so that of names the
    // logical comparison finds equal the one of the first entity in input order names the merge.
    ExactBuckets buckets;
    std::vector<ExactBuckets::value_type*> firstOccurrence;
    for (const aec::EntityId& id : entityIds)
    {
        auto [bucket, made] = buckets.try_emplace(formatter_.format(propertyValue(project, id, key)));
        if (made)
            firstOccurrence.push_back(&*bucket);
        bucket->second.push_back(id);
    }

    // The unordered map's nodes do not move, so its names can key the ordered map as views.
    std::map<std::wstring_view, aec::EntityIdList*, CLogicalNameOrder> ordered(
        CLogicalNameOrder(sortOrder == aec::IProjectExplorerGroupingModel::ascending));
    for (ExactBuckets::value_type* bucket : firstOccurrence)
    {
        auto [merged, made] = ordered.try_emplace(bucket->first, &bucket->second);
        if (!made)
            merged->second->insert(merged->second->end(), bucket->second.begin(), bucket->second.end());
    }

    std::vector<aec::SubgroupDescriptor> descriptors;
    descriptors.reserve(ordered.size());
    for (const auto& [name, entities] : ordered)
        descriptors.push_back({std::wstring(name), sortedSetOf(*entities)});
    return descriptors;
}

} // namespace project_explorer
