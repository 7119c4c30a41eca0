#include "HostServices/DocumentGui.h"

namespace aec::host
{

CDocumentGui::CDocumentGui() = default;

CDocumentGui::~CDocumentGui() = default;

void CDocumentGui::handleEntity(const EntityId& entity)
{
    handled_.push_back(entity);
    if (entityCallback_)
        entityCallback_(entity);
}

void CDocumentGui::openEntities(const EntityIdList& entities)
{
    opened_.push_back(entities);
    if (openCallback_)
        openCallback_(entities);
}

bool CDocumentGui::isFollowingChanges() const
{
    return following_;
}

void CDocumentGui::setFollowingChanges(bool following)
{
    following_ = following;
}

} // namespace aec::host
