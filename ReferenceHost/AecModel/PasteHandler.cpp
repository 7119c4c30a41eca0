#include "AecModel/PasteHandler.h"

#include "AecModel/CopiedEntities.h"
#include "AecModel/CopyCollectionInfo.h"
#include "AecModel/EntityCollectionInfo.h"
#include "AecModel/EntityNameRule.h"
#include "AecModel/Project.h"
#include "AecModel/UniqueNameGenerator.h"
#include "Common/Check.h"
#include "aec/Cast.h"

#include <map>
#include <set>
#include <unordered_map>

namespace aec::model
{

namespace
{

// Where copied topics land in the target project.
class CTopicMapping
{
public:
    explicit CTopicMapping(const CProject& project)
    {
        for (const CTopic& topic : project.getProjectTopics())
        {
            existing_.insert(topic.getId());
            byName_.emplace(topic.getName(), topic.getId());
        }
    }

    void notePasted(const TopicId& copied, const TopicId& pasted) { pasted_.emplace(copied, pasted); }

    std::optional<TopicId> map(const std::optional<CopiedEntity::Topic>& topic) const
    {
        if (!topic)
            return std::nullopt;
        if (existing_.contains(topic->id))
            return topic->id;
        if (const auto pasted = pasted_.find(topic->id); pasted != pasted_.end())
            return pasted->second;
        if (const auto named = byName_.find(topic->name); named != byName_.end())
            return named->second;
        return std::nullopt;
    }

private:
    std::set<TopicId> existing_;
    std::map<TopicId, TopicId> pasted_;
    // emplace keeps the first topic of a name, the one that comes first in the collection.
    std::unordered_map<std::wstring, TopicId> byName_;
};

EntityIdList pasteCollection(CProject& project, const CopyCollectionInfo& info,
                             const std::vector<CopiedEntity>& copies, CTopicMapping& topics)
{
    CUniqueNameGenerator names(project, info.collection);
    const bool bearsTopic = collectionInfo(info.collection).bearsTopic;
    EntityIdList pasted;
    for (const CopiedEntity& copy : copies)
    {
        COMMON_PRECONDITION(copy.type == collectionInfo(info.collection).type);
        const EntityId id =
            project.addEntity(info.collection, names.takeUnique(repairedName(info.collection, copy.name)),
                              bearsTopic ? topics.map(copy.topic) : std::nullopt);
        for (const auto& [name, value] : copy.properties)
            project.setEntityProperty(id, name, value);
        if (info.collection == EntityCollection::Topics)
            topics.notePasted(TopicId(copy.id.uuid()), TopicId(id.uuid()));
        pasted.push_back(id);
    }
    return pasted;
}

} // namespace

CPasteHandler::~CPasteHandler() = default;

EntityIdList CPasteHandler::paste(IProject& project, const IProjectEntityPasteData& data)
{
    CProject& target = aec::cast<CProject>(project);
    const CCopiedEntities& copies = aec::cast<CCopiedEntities>(data);
    CTopicMapping topics(target);

    std::map<CopyCollection, EntityIdList> pasted;
    const CopyCollectionInfo& topicInfo = copyCollectionInfo(CopyCollection::Topics);
    pasted[CopyCollection::Topics] =
        pasteCollection(target, topicInfo, copies.collection(CopyCollection::Topics), topics);
    for (const CopyCollectionInfo& info : copyCollections())
        if (info.copyCollection != CopyCollection::Topics)
            pasted[info.copyCollection] =
                pasteCollection(target, info, copies.collection(info.copyCollection), topics);

    EntityIdList result;
    for (const auto& [copyCollection, ids] : pasted)
        result.insert(result.end(), ids.begin(), ids.end());
    return result;
}

} // namespace aec::model
