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

void CChangeNotifier::noteAdded(const EntityId& id)
{
    const auto [entry, isNew] = pending_.try_emplace(id, Pending::Added);
    if (!isNew)
        // Only a removal can come before an addition of the same identifier.
        entry->second = Pending::Changed;
}

void CChangeNotifier::noteChanged(const EntityId& id)
{
    // An entity that observers have not met yet stays "added"; its content is news either way.
    pending_.try_emplace(id, Pending::Changed);
}

void CChangeNotifier::noteRemoved(const EntityId& id)
{
    const auto [entry, isNew] = pending_.try_emplace(id, Pending::Removed);
    if (isNew)
        return;
    if (entry->second == Pending::Added)
        pending_.erase(entry);
    else
        entry->second = Pending::Removed;
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
    for (const auto& [id, kind] : pending)
        (kind == Pending::Removed ? removed : changed).insert(id);
    observers_.notify([&](IObjectEvents& observer)
                      { observer.onObjectsChanged(objectEventEntitiesChanged, 0, changed, removed); });
}

} // namespace aec::model
