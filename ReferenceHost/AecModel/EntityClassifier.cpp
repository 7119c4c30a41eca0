#include "AecModel/EntityClassifier.h"

#include "AecModel/CopyCollectionInfo.h"
#include "AecModel/Project.h"

namespace aec::model
{

namespace
{

std::optional<CopyCollection> classify(const CProject& project, const EntityId& id, CopyKind kind)
{
    const CEntity* const entity = project.findEntity(id);
    if (entity == nullptr)
        return std::nullopt;
    const CopyCollectionInfo* const info = findCopyCollectionInfo(entity->getCollection());
    if (info == nullptr || info->kind != kind)
        return std::nullopt;
    return info->copyCollection;
}

} // namespace

CEntityClassifier::CEntityClassifier(const CProject& project) : project_(project) {}

CEntityClassifier::~CEntityClassifier() = default;

std::optional<CopyCollection> CEntityClassifier::classifyAsDocument(const EntityId& entity) const
{
    return classify(project_, entity, CopyKind::Document);
}

std::optional<CopyCollection> CEntityClassifier::classifyAsStyle(const EntityId& entity) const
{
    return classify(project_, entity, CopyKind::Style);
}

std::optional<CopyCollection> CEntityClassifier::classifyAsResource(const EntityId& entity) const
{
    return classify(project_, entity, CopyKind::Resource);
}

} // namespace aec::model
