#include "FaultInjection/FaultyDocumentGui.h"

#include "FaultInjection/FaultPlan.h"

namespace aec::fault_injection
{

void CFaultyDocumentGui::handleEntity(const EntityId& entity)
{
    plan_.reach("IDocumentGui::handleEntity");
    inner_.handleEntity(entity);
}

void CFaultyDocumentGui::openEntities(const EntityIdList& entities)
{
    plan_.reach("IDocumentGui::openEntities");
    inner_.openEntities(entities);
}

bool CFaultyDocumentGui::isFollowingChanges() const
{
    plan_.reach("IDocumentGui::isFollowingChanges");
    return inner_.isFollowingChanges();
}

void CFaultyDocumentGui::setFollowingChanges(bool following)
{
    plan_.reach("IDocumentGui::setFollowingChanges");
    inner_.setFollowingChanges(following);
}

} // namespace aec::fault_injection
