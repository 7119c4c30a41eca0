#pragma once

#include "aec/AecApi.h"
#include "aec/EntityId.h"
#include "aec/EntityTypeId.h"
#include "aec/Topic.h"

#include <string>

namespace aec
{

// Carries out every change the explorer makes to the project's entities, each model change as
// one named project transaction.
class AEC_INTERFACE IProjectExplorerEntityController
{
public:
    virtual ~IProjectExplorerEntityController() = default;

    // Creates an entity of the type; a null identifier is replaced by a fresh one, written back.
    virtual void createEntity(const EntityTypeId& type, EntityId& id) = 0;
    // Hands the entity to the current document's user interface.
    virtual void forwardToGuiHandler(const EntityId& id) = 0;
    // Renames the entity.
    virtual void renameEntity(const EntityId& id, const std::wstring& newName) = 0;
    // Opens the entities in the host application.
    virtual void open(const EntityIdList& entities) = 0;
    // Asks for confirmation, then removes the deletable entities.
    virtual void deleteWithConfirmation(const EntityIdList& entities) = 0;
    // Puts the copyable entities on the clipboard.
    virtual void copy(const EntityIdList& entities) = 0;
    // Copies the entities, then removes them.
    virtual void cut(const EntityIdList& entities) = 0;
    // Whether the properties of the entities can be edited.
    virtual bool canEditProperties(const EntityIdList& entities) const = 0;
    // Opens the property editor on the entities.
    virtual void editProperties(const EntityIdList& entities) = 0;
    // Pastes the clipboard's entities into the project.
    virtual void paste() = 0;
    // Asks for a table file and imports it as a new table.
    virtual void importTableFromFile() = 0;
    // Whether the entities can be moved to another topic.
    virtual bool canChangeTopic(const EntityIdList& entities) const = 0;
    // Moves the entities to the topic.
    virtual void changeTopic(const EntityIdList& entities, const TopicId& topic) = 0;
};

} // namespace aec
