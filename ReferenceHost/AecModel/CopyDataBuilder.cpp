#include "AecModel/CopyDataBuilder.h"

#include "AecModel/CopiedEntities.h"
#include "AecModel/CopyCollectionInfo.h"
#include "AecModel/Project.h"

#include "Common/Check.h"

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
        std::vector<CopiedEntity>& copies = data->collection(info.copyCollection);
        for (const EntityId& id : collections[copyCollectionIndex(info.copyCollection)])
        {
            const CEntity* const entity = project_.findEntity(id);
            COMMON_PRECONDITION(entity != nullptr && entity->getCollection() == info.collection);
            copies.push_back(copyOf(project_, *entity));
        }
    }
    return data;
}

} // namespace aec::model
