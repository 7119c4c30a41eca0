#pragma once

#include "aec/AecApi.h"
#include "aec/EntityId.h"
#include "aec/EntityTypeId.h"

#include <string>

namespace aec
{

// Creates, removes and renames the entities of one model type.
class AEC_INTERFACE IEntityTypeHandler
{
public:
    virtual ~IEntityTypeHandler() = default;

    // Creates an entity of the type with the identifier and a fresh unique name.
    virtual void create(const EntityId& id) = 0;
    // The type the handler serves.
    virtual EntityTypeId getEntityType() const = 0;
    // Removes the entity.
    virtual void remove(const EntityId& id) = 0;
    // Renames the entity.
    virtual void rename(const EntityId& id, const std::wstring& newName) = 0;
};

} // namespace aec
