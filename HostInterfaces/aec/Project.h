#pragma once

#include "aec/AecApi.h"
#include "aec/EntityCollection.h"
#include "aec/EntityId.h"
#include "aec/Topic.h"

#include <vector>

namespace aec
{

class IChangeNotificationBatch;
class IDocument;
class IEditingService;
class IEntity;
class IOperationHost;
class ITransactionHost;

// The open building project as the explorer reaches it.
class AEC_INTERFACE IProject
{
public:
    virtual ~IProject() = default;

    // The identifiers of one collection's entities, in the collection's order.
    virtual EntityIdList getEntities(EntityCollection collection) const = 0;
    // The entity, or null when the project has none of that identifier.
    virtual IEntity* findEntity(const EntityId& id) = 0;
    // The entity, read-only, or null when the project has none of that identifier.
    virtual const IEntity* findEntity(const EntityId& id) const = 0;
    // The topics that the user chooses among when moving entities to a topic, in the order to show
    // them. An entry with the nil identifier, when the host gives one, stands for no topic: moving
    // entities to it (through prepareTopicChange and setTopic) takes their topic away.
    virtual std::vector<CTopic> getTopics() const = 0;

    // Opens the project's named transactions.
    virtual ITransactionHost& getTransactionHost() = 0;
    // The batch that bundles change notifications.
    virtual IChangeNotificationBatch& getChangeNotificationBatch() = 0;
    // The project's own editing service for direct edits.
    virtual IEditingService& getEditingService() = 0;
    // The service that model-changing operations are guarded against.
    virtual IOperationHost& getOperationHost() = 0;
    // The document that shows the project.
    virtual IDocument& getDocument() const = 0;
    // Prepares the model for moving the entities to the topic (makes the topic usable by them).
    virtual void prepareTopicChange(const std::vector<IEntity*>& entities, const TopicId& topic) = 0;
    // Names the source location that the next changes come from.
    virtual void setChangeOrigin(const char* file, int line) = 0;
};

} // namespace aec
