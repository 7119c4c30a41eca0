#pragma once

#include "aec/CopyCollections.h"
#include "aec/EntityId.h"

#include <optional>

namespace aec
{
class IEntityClassifier;
} // namespace aec

namespace project_explorer
{

// The copy collection that receives the entity: the classifier's questions are asked in order
// (document, style, resource) and the first answer decides. Nothing when none places it.
std::optional<aec::CopyCollection> classifyForCopy(const aec::IEntityClassifier& classifier,
                                                   const aec::EntityId& entity);

} // namespace project_explorer
