#include "HostFrame/TopicEditor.h"

#include "AecModel/EntityCollectionInfo.h"
#include "AecModel/EntityNameRule.h"
#include "AecModel/Project.h"
#include "AecModel/UniqueNameGenerator.h"
#include "Common/Check.h"
#include "Common/Exception.h"

namespace aec::host
{

namespace
{

const model::CEntity& existingTopic(const model::CProject& project, const TopicId& topic)
{
    const model::CEntity* const entity = project.findEntity(EntityId(topic.uuid()));
    if (entity == nullptr || entity->getCollection() != EntityCollection::Topics)
        throw common::EException("That topic is no longer part of the project.");
    return *entity;
}

} // namespace

CTopicEditor::CTopicEditor(model::CProject& project) : project_(project) {}

TopicId CTopicEditor::create(const std::wstring& name)
{
    const std::unique_ptr<ITransaction> transaction =
        project_.getTransactionHost().openTransaction("Create topic");
    model::CUniqueNameGenerator names(project_, EntityCollection::Topics);
    const TopicId topic = project_.addTopic(names.takeNumbered(model::entityNoun(EntityCollection::Topics)));
    // Named by the rule's own check, so that a refused name gives the message a rename gives.
    project_.renameEntity(EntityId(topic.uuid()),
                          model::acceptableName(project_, existingTopic(project_, topic), name));
    transaction->commit();
    return topic;
}

void CTopicEditor::rename(const TopicId& topic, const std::wstring& newName)
{
    const model::CEntity& entity = existingTopic(project_, topic);
    std::wstring name = model::acceptableName(project_, entity, newName);
    const std::unique_ptr<ITransaction> transaction =
        project_.getTransactionHost().openTransaction("Rename topic");
    project_.renameEntity(entity.getId(), std::move(name));
    transaction->commit();
}

void CTopicEditor::remove(const TopicId& topic)
{
    const model::CEntity& entity = existingTopic(project_, topic);
    const std::unique_ptr<ITransaction> transaction =
        project_.getTransactionHost().openTransaction("Delete topic");
    project_.removeEntity(entity.getId());
    transaction->commit();
}

std::size_t CTopicEditor::memberCount(const TopicId& topic) const
{
    std::size_t count = 0;
    for (const model::EntityCollectionInfo& info : model::entityCollections())
        if (info.bearsTopic)
            for (const EntityId& id : project_.getEntities(info.collection))
                if (project_.findEntity(id)->getTopic() == topic)
                    ++count;
    return count;
}

} // namespace aec::host
