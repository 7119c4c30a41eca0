#include "AecModel/ChangeNotifier.h"

#include "Common/Check.h"

namespace aec::model
{

CChangeNotifier::~CChangeNotifier() = default;

void CChangeNotifier::open()
{
    ++depth_;
}

void CChangeNotifier::close()
{
    COMMON_PRECONDITION(depth_ > 0);
    if (--depth_ == 0)
        flush();
}

void CChangeNotifier::noteAdded(const EntityId& id, EntityCollection collection)
{
    const auto [entry, isNew] = pending_.try_emplace(id, PendingEntity{Pending::Added, collection});
    if (!isNew)
        // Only a removal can come before an addition of the same identifier.
        entry->second.kind = Pending::Changed;
}

void CChangeNotifier::noteChanged(const EntityId& id, EntityCollection collection)
{
    // An entity that observers have not met yet stays "added"; its content is news either way.
    pending_.try_emplace(id, PendingEntity{Pending::Changed, collection});
}

void CChangeNotifier::noteRemoved(const EntityId& id, EntityCollection collection)
{
    const auto [entry, isNew] = pending_.try_emplace(id, PendingEntity{Pending::Removed, collection});
    if (isNew)
        return;
    if (entry->second.kind == Pending::Added)
        pending_.erase(entry);
    else
        entry->second.kind = Pending::Removed;
}

void CChangeNotifier::flushUnlessBatched()
{
    if (!isOpen())
        flush();
}

void CChangeNotifier::flush()
{
    if (pending_.empty())
        return;
    // Observers may change the project while they are told; their changes start a new collection.
    const auto pending = std::move(pending_);
    pending_.clear();
    EntityIdSet changed;
    EntityIdSet removed;
    std::uint32_t collections = 0;
    for (const auto& [id, entity] : pending)
    {
        (entity.kind == Pending::Removed ? removed : changed).insert(id);
        collections |= entityCollectionBit(entity.collection);
    }
    observers_.notify(
        [&](IObjectEvents& observer)
        { observer.onObjectsChanged(objectEventEntitiesChanged, collections, changed, removed); });
}

} // namespace aec::model
