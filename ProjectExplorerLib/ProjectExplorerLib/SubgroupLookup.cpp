#include "ProjectExplorerLib/SubgroupLookup.h"

#include "aec/ProjectExplorerGroup.h"
#include "aec/ProjectExplorerSubgroup.h"

#include <algorithm>

namespace project_explorer
{

CSubgroupLookup::CSubgroupLookup(aec::IProjectExplorerGroup& group) : group_(group) {}

void CSubgroupLookup::invalidate() noexcept
{
    valid_ = false;
}

aec::IProjectExplorerSubgroup* CSubgroupLookup::findHolder(const aec::EntityId& entity)
{
    if (!valid_)
        build();

    const auto holder = std::lower_bound(holders_.begin(), holders_.end(), entity,
                                         [](const auto& entry, const aec::EntityId& id) { return entry.first < id; });
    return holder != holders_.end() && holder->first == entity ? holder->second : nullptr;
}

void CSubgroupLookup::build()
{
    holders_.clear();
    for (aec::IProjectExplorerSubgroup& subgroup : group_.getSubgroups())
    {
        for (const aec::EntityId& entity : subgroup.getEntities())
            holders_.emplace_back(entity, &subgroup);
    }
    std::sort(holders_.begin(), holders_.end(),
              [](const auto& left, const auto& right) { return left.first < right.first; });
    valid_ = true;
}

} // namespace project_explorer
