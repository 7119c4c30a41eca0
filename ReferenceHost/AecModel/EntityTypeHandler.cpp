#include "AecModel/EntityTypeHandler.h"

#include "AecModel/EntityCollectionInfo.h"
#include "AecModel/EntityNameRule.h"
#include "AecModel/Project.h"
#include "AecModel/UniqueNameGenerator.h"

#include "Common/Check.h"

namespace aec::model
{

CEntityTypeHandler::CEntityTypeHandler(CProject& project, EntityCollection collection)
    : project_(project), collection_(collection)
{
    COMMON_PRECONDITION(collectionIndex(collection) < entityCollectionCount);
}

CEntityTypeHandler::~CEntityTypeHandler() = default;

void CEntityTypeHandler::create(const EntityId& id)
{
    COMMON_PRECONDITION(!id.isNull());
    CUniqueNameGenerator names(project_, collection_);
    project_.addEntity(collection_, names.takeNumbered(entityNoun(collection_)), std::nullopt, id);
}

EntityTypeId CEntityTypeHandler::getEntityType() const
{
    return collectionInfo(collection_).type;
}

void CEntityTypeHandler::remove(const EntityId& id)
{
    requireMember(id);
    project_.removeEntity(id);
}

void CEntityTypeHandler::rename(const EntityId& id, const std::wstring& newName)
{
    requireMember(id);
    project_.renameEntity(id, acceptableName(project_, *project_.findEntity(id), newName));
}

void CEntityTypeHandler::requireMember(const EntityId& id) const
{
    const CEntity* const entity = project_.findEntity(id);
    COMMON_PRECONDITION(entity != nullptr && entity->getCollection() == collection_);
}

} // namespace aec::model
