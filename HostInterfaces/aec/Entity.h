#pragma once

#include "aec/AecApi.h"
#include "aec/AttributeValue.h"
#include "aec/EntityId.h"
#include "aec/EntityTypeId.h"
#include "aec/PropertyAssignmentKey.h"

#include <string>

namespace aec
{

// A project entity as the explorer reads it.
class AEC_INTERFACE IEntity
{
public:
    virtual ~IEntity() = default;

    // The entity's identifier.
    virtual EntityId getId() const = 0;
    // The entity's model type.
    virtual EntityTypeId getType() const = 0;
    // The entity's name.
    virtual const std::wstring& getName() const = 0;
    // The value of the property the key names; std::monostate when the entity lacks it.
    virtual AttributeValue getPropertyValue(const PropertyAssignmentKey& key) const = 0;
};

} // namespace aec
