#pragma once

#include "aec/CopyCollections.h"
#include "aec/EntityCollection.h"

#include <array>

namespace aec::model
{

// Which of the three classifier questions claims a copy collection.
enum class CopyKind
{
    Document,
    Style,
    Resource,
};

// How one copy collection relates to the model: where its entities live and which kind of object
// it holds. Linked models are references to outside files and have no copy collection: they cannot
// be copied.
struct CopyCollectionInfo
{
    CopyCollection copyCollection;
    EntityCollection collection;
    CopyKind kind;
};

using CopyCollectionInfos = std::array<CopyCollectionInfo, copyCollectionCount>;

// The nine copy collections in their order.
const CopyCollectionInfos& copyCollections();
const CopyCollectionInfo& copyCollectionInfo(CopyCollection copyCollection);
// Null for the collections that cannot be copied.
const CopyCollectionInfo* findCopyCollectionInfo(EntityCollection collection);

inline std::size_t copyCollectionIndex(CopyCollection copyCollection)
{
    return static_cast<std::size_t>(copyCollection);
}

} // namespace aec::model
