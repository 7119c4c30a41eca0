#pragma once

#include "aec/AecApi.h"
#include "aec/EntityId.h"

namespace aec
{

// The user interface of one open document.
class AEC_INTERFACE IDocumentGui
{
public:
    virtual ~IDocumentGui() = default;

    // Lets the user act on the entity in place (the explorer starts renaming it in its panel).
    virtual void handleEntity(const EntityId& entity) = 0;
    // Shows the entities in the document's view area.
    virtual void openEntities(const EntityIdList& entities) = 0;
    // Whether the document follows project changes as they happen (selects and shows new entities).
    virtual bool isFollowingChanges() const = 0;
    // Switches following project changes on or off.
    virtual void setFollowingChanges(bool following) = 0;
};

} // namespace aec
