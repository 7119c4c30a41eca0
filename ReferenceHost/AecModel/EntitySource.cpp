#include "AecModel/EntitySource.h"

#include "AecModel/Project.h"

namespace aec::model
{

CEntitySource::CEntitySource(const CProject& project) : project_(project) {}

CEntitySource::~CEntitySource() = default;

EntityIdSet CEntitySource::getEntities(const EntityIdList& requested) const
{
    EntityIdSet existing;
    for (const EntityId& id : requested)
        if (project_.findEntity(id) != nullptr)
            existing.insert(id);
    return existing;
}

} // namespace aec::model
