#pragma once

#include "aec/AecApi.h"
#include "aec/EntityId.h"

#include "Common/UUID.h"

namespace aec
{

// Lists the entities that belong to a group.
class AEC_INTERFACE IProjectExplorerEntityProvider
{
public:
    virtual ~IProjectExplorerEntityProvider() = default;

    // The identifiers of the entities of the group's collection in the current project.
    virtual EntityIdList getEntities(const common::UUID& groupId) const = 0;
};

} // namespace aec
