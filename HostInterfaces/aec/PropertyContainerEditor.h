#pragma once

#include "aec/AecApi.h"
#include "aec/EntityId.h"

namespace aec
{

class IPropertyContextOwner;

// Lets the user edit the properties of entities.
class AEC_INTERFACE IPropertyContainerEditor
{
public:
    virtual ~IPropertyContainerEditor() = default;

    // Opens the editor on the entities within the owner's property context.
    virtual void edit(IPropertyContextOwner& owner, const EntityIdSet& entities) = 0;
};

} // namespace aec
