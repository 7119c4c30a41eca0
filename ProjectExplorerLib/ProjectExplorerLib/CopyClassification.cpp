#include "ProjectExplorerLib/CopyClassification.h"

#include "aec/EntityClassifier.h"

namespace project_explorer
{

std::optional<aec::CopyCollection> classifyForCopy(const aec::IEntityClassifier& classifier,
                                                   const aec::EntityId& entity)
{
    if (auto collection = classifier.classifyAsDocument(entity))
        return collection;
    if (auto collection = classifier.classifyAsStyle(entity))
        return collection;
    return classifier.classifyAsResource(entity);
}

} // namespace project_explorer
