#include "HostFrame/TopicEditor.h"

#include "AecModel/EntityCollectionInfo.h"
#include "AecModel/EntityNameRule.h"
#include "AecModel/Project.h"
#include "AecModel/UniqueNameGenerator.h"
#include "AecModel/WideText.h"
#include "Common/Exception.h"
#include "aec/GeneralPurposeDialogService.h"

#include <fmt/format.h>

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

TopicId CTopicEditor::create(const std::optional<std::wstring>& name)
{
    const std::unique_ptr<ITransaction> transaction =
        project_.getTransactionHost().openTransaction("Create topic");
    model::CUniqueNameGenerator names(project_, EntityCollection::Topics);
    const TopicId topic = project_.addTopic(names.takeNumbered(model::entityNoun(EntityCollection::Topics)));
    // Named by the rule's own check, so that a refused name gives the message a rename gives.
    if (name)
        project_.renameEntity(EntityId(topic.uuid()),
                              model::acceptableName(project_, existingTopic(project_, topic), *name));
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

void CTopicEditor::remove(const std::vector<TopicId>& topics)
{
    for (const TopicId& topic : topics)
        existingTopic(project_, topic);
    const std::unique_ptr<ITransaction> transaction =
        project_.getTransactionHost().openTransaction("Delete topic");
    for (const TopicId& topic : topics)
        project_.removeEntity(EntityId(topic.uuid()));
    transaction->commit();
}

bool CTopicEditor::removeAfterAsking(const std::vector<TopicId>& topics,
                                     const IGeneralPurposeDialogService& dialogs)
{
    if (topics.empty())
        throw common::EException("Select the topics to delete first.");
    std::size_t members = 0;
    for (const TopicId& topic : topics)
        members += memberCount(topic);
    const std::string what =
        topics.size() == 1
            ? fmt::format("the topic “{}”", model::toUtf8(existingTopic(project_, topics.front()).getName()))
            : fmt::format("{} topics", topics.size());
    const std::string question =
        fmt::format("Delete {}? {} {} {} and will have no topic.", what, members,
                    members == 1 ? "entity has" : "entities have", topics.size() == 1 ? "it" : "them");
    if (dialogs.ask(L"Delete topic", model::fromUtf8(question), dialogButtonsYesNo) != DialogAnswer::Yes)
        return false;
    remove(topics);
    return true;
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

bool CTopicEditor::isTopic(const EntityId& entity) const
{
    const model::CEntity* const found = project_.findEntity(entity);
    return found != nullptr && found->getCollection() == EntityCollection::Topics;
}

} // namespace aec::host
