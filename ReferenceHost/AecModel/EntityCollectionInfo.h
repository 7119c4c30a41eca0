#pragma once

#include "AecModel/AecModelApi.h"

#include "aec/EntityCollection.h"
#include "aec/EntityTypeId.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace aec::model
{

// What the model knows of one entity collection beyond its place in the explorer.
struct EntityCollectionInfo
{
    EntityCollection collection;
    std::string_view key; // the collection's name in project files and dumps; never changes
    EntityTypeId type;    // every entity of the collection has this type
    bool bearsTopic;      // whether its entities can belong to a topic
};

using EntityCollectionInfos = std::array<EntityCollectionInfo, entityCollectionCount>;

// The ten collections in explorer order.
AECMODEL_API const EntityCollectionInfos& entityCollections();
AECMODEL_API const EntityCollectionInfo& collectionInfo(EntityCollection collection);
// The collection that files name by the key, or nothing for an unknown key.
AECMODEL_API std::optional<EntityCollection> collectionFromKey(std::string_view key);

inline std::size_t collectionIndex(EntityCollection collection)
{
    return static_cast<std::size_t>(collection);
}

} // namespace aec::model
