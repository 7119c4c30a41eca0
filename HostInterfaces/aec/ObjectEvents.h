#pragma once

#include "aec/AecApi.h"
#include "aec/EntityCollection.h"
#include "aec/EntityId.h"

#include <cstdint>

namespace aec
{

// Event codes of the project's object-change notifications.
inline constexpr std::uint32_t objectEventEntitiesChanged = 35;

// The host value of an entities-changed event is a bit mask of the entity collections that the
// event touches, bit `1u << collection` for each: a listener that shows collections separately
// (the explorer panel, one group per collection) refreshes only what the mask names. A sender that
// cannot tell sends allEntityCollections; a zero mask is read the same way.
inline constexpr std::uint32_t entityCollectionBit(EntityCollection collection) noexcept
{
    return 1u << static_cast<unsigned>(collection);
}
inline constexpr std::uint32_t allEntityCollections = (1u << entityCollectionCount) - 1u;

// Whether the mask of an entities-changed event touches the collection.
inline constexpr bool touchesEntityCollection(std::uint32_t mask, EntityCollection collection) noexcept
{
    return mask == 0 || (mask & entityCollectionBit(collection)) != 0;
}

// Observer of the project's object events.
class AEC_INTERFACE IObjectEvents
{
public:
    virtual ~IObjectEvents() = default;

    // A project was opened.
    virtual void onProjectOpened() = 0;
    // Objects changed: (event code, a host value, the entities added or changed, the entities
    // removed). For objectEventEntitiesChanged the value is the mask of the touched collections.
    virtual void onObjectsChanged(std::uint32_t code, std::uint32_t value, const EntityIdSet& changed,
                                  const EntityIdSet& removed) = 0;
    // The project is about to close.
    virtual void onProjectClosing() = 0;
};

} // namespace aec
