#include "ProjectExplorerLib/ProjectExplorerSubgroup.h"

#include "ProjectExplorerLib/EntitySets.h"

#include "Common/Check.h"

#include <utility>

namespace project_explorer
{

CProjectExplorerSubgroup::CProjectExplorerSubgroup(aec::SubgroupDescriptor descriptor)
    : name_(std::move(descriptor.name)), entities_(std::move(descriptor.entities))
{
}

CProjectExplorerSubgroup::~CProjectExplorerSubgroup() = default;

const std::wstring& CProjectExplorerSubgroup::getName() const
{
    return name_;
}

aec::EntityIdRange CProjectExplorerSubgroup::getEntities() const
{
    return entities_;
}

bool CProjectExplorerSubgroup::contains(const aec::EntityId& entity) const
{
    return entities_.contains(entity);
}

bool CProjectExplorerSubgroup::isExpanded() const
{
    return expanded_;
}

void CProjectExplorerSubgroup::setExpanded(bool expanded)
{
    const bool wasExpanded = std::exchange(expanded_, expanded);
    if (wasExpanded != expanded)
        expandedChanged_();
}

aec::EntitiesChangedSignal& CProjectExplorerSubgroup::entitiesChangedSignal() const
{
    return entitiesChanged_;
}

aec::VoidSignal& CProjectExplorerSubgroup::expandedChangedSignal() const
{
    return expandedChanged_;
}

void CProjectExplorerSubgroup::setEntities(aec::EntityIdSet entities)
{
    if (entities == entities_)
        return;

    aec::EntityChangeset changeset(entitiesNotIn(entities, entities_), {}, entitiesNotIn(entities_, entities));
    COMMON_CHECK(!changeset.isEmpty());

    entities_ = std::move(entities);
    entitiesChanged_(changeset);
}

} // namespace project_explorer
