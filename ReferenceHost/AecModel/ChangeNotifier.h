#pragma once

#include "AecModel/EntityIdHash.h"

#include "aec/ChangeNotificationBatch.h"
#include "aec/EntityCollection.h"
#include "aec/EntityId.h"
#include "aec/ObjectEvents.h"

#include "Common/Observable.h"

#include <cstdint>
#include <unordered_map>

namespace aec::model
{

// Collects which entities changed since observers last heard of the project, and tells the
// project's object-event observers once per batch: (added or changed, removed), with the mask of
// the collections those entities belong to as the event's value (see aec/ObjectEvents.h).
//
// Changes net out against what observers already know: an entity added and removed again before
// anyone heard of it is not mentioned at all, and one removed and brought back (a rollback) reads
// as changed.
class CChangeNotifier final : public IChangeNotificationBatch
{
public:
    CChangeNotifier() = default;
    ~CChangeNotifier() override;

    // Batches nest; the outermost close sends what was collected.
    void open() override;
    void close() override;
    bool isOpen() const noexcept { return depth_ > 0; }

    // Each note names the collection the entity belongs to; an entity never changes collection.
    void noteAdded(const EntityId& id, EntityCollection collection);
    void noteChanged(const EntityId& id, EntityCollection collection);
    void noteRemoved(const EntityId& id, EntityCollection collection);

    // Sends what was collected, unless a batch is open; sends nothing when nothing is left.
    void flushUnlessBatched();

    common::CObservable<IObjectEvents>& observers() noexcept { return observers_; }

private:
    enum class Pending : std::uint8_t
    {
        Added,
        Changed,
        Removed,
    };

    struct PendingEntity
    {
        Pending kind;
        EntityCollection collection;
    };

    void flush();

    std::unordered_map<EntityId, PendingEntity, CEntityIdHash> pending_;
    int depth_ = 0;
    common::CObservable<IObjectEvents> observers_;
};

} // namespace aec::model
