#pragma once

#include "aec/AecApi.h"
#include "aec/EntityId.h"
#include "aec/PropertyAssignmentKey.h"
#include "aec/SubgroupDescriptor.h"

#include <vector>

namespace aec
{

// Splits a group's entities into named subgroups in natural name order.
class AEC_INTERFACE IProjectExplorerGroupMaker
{
public:
    virtual ~IProjectExplorerGroupMaker() = default;

    // The subgroups of the entities by the key's formatted value, ascending for sort order 1.
    virtual std::vector<SubgroupDescriptor> makeSubgroups(const EntityIdList& entityIds,
                                                          const PropertyAssignmentKey& key,
                                                          int sortOrder) const = 0;
};

} // namespace aec
