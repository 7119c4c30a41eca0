#pragma once

#include "aec/AecApi.h"
#include "aec/CopyCollections.h"
#include "aec/EntityId.h"

#include <optional>

namespace aec
{

// Tells which copy collection an entity goes to. Its three questions are asked in order and
// the first that answers decides.
class AEC_INTERFACE IEntityClassifier
{
public:
    virtual ~IEntityClassifier() = default;

    // The collection of a document entity (sheets, tables), empty for other entities.
    virtual std::optional<CopyCollection> classifyAsDocument(const EntityId& entity) const = 0;
    // The collection of a style entity (materials and element styles), empty for other entities.
    virtual std::optional<CopyCollection> classifyAsStyle(const EntityId& entity) const = 0;
    // The collection of a resource entity (assemblies, topics, images), empty for other entities.
    virtual std::optional<CopyCollection> classifyAsResource(const EntityId& entity) const = 0;
};

} // namespace aec
