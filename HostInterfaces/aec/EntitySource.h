#pragma once

#include "aec/AecApi.h"
#include "aec/EntityId.h"

namespace aec
{

// Says which entities a copy of a request carries.
class AEC_INTERFACE IEntitySource
{
public:
    virtual ~IEntitySource() = default;

    // The ordered set of entities that copying the requested ones copies.
    virtual EntityIdSet getEntities(const EntityIdList& requested) const = 0;
};

} // namespace aec
