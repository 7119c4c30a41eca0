#include "AecModel/CopyDataBuilder.h"

#include "AecModel/CopiedEntities.h"
#include "AecModel/CopyCollectionInfo.h"
#include "AecModel/Project.h"

#include "Common/Check.h"

#include <unordered_set>

namespace aec::model
{

namespace
{

CopiedEntity copyOf(const CProject& project, const CEntity& entity)
{
    CopiedEntity copy{entity.getId(), entity.getType(), entity.getName(), std::nullopt, entity.getProperties()};
    if (const std::optional<TopicId> topic = entity.getTopic())
    {
        const CEntity* const topicEntity = project.findEntity(EntityId(topic->uuid()));
        COMMON_CHECK(topicEntity != nullptr);
        copy.topic = CopiedEntity::Topic{*topic, topicEntity->getName()};
    }
    return copy;
}

} // namespace

CCopyDataBuilder::CCopyDataBuilder(const CProject& project) : project_(project) {}

CCopyDataBuilder::~CCopyDataBuilder() = default;

std::unique_ptr<IProjectEntityCopyData> CCopyDataBuilder::build(const CopyCollections& collections) const
{
    auto data = std::make_unique<CCopiedEntities>();
    for (const CopyCollectionInfo& info : copyCollections())
    {
        const EntityIdList& requested = collections[copyCollectionIndex(info.copyCollection)];
        if (requested.empty())
            continue;
        // The requests come in identifier order (the entity source's set); copies keep the order of
        // the collection instead, which is the order the user sees and gets back on paste.
        const std::unordered_set<EntityId> wanted(requested.begin(), requested.end());
        std::vector<CopiedEntity>& copies = data->collection(info.copyCollection);
        for (const EntityId& id : project_.getEntities(info.collection))
            if (wanted.contains(id))
                copies.push_back(copyOf(project_, *project_.findEntity(id)));
        COMMON_PRECONDITION(copies.size() == wanted.size());
    }
    return data;
}

} // namespace aec::model
