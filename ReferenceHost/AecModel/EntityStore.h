#pragma once

#include "AecModel/Entity.h"
#include "AecModel/EntityIdHash.h"
#include "AecModel/EntityRecord.h"

#include "aec/EntityCollection.h"
#include "aec/EntityId.h"

#include <boost/intrusive/list.hpp>

#include <array>
#include <cstddef>
#include <optional>
#include <unordered_map>

namespace aec::model
{

// The project's entities: found by identifier in constant time, and kept in the order of their
// collection. The order is an intrusive list through the entities themselves, so taking one entity
// out of a long collection, or putting it back where it was, costs constant time and no memory.
// The store knows nothing of journals; the project decides what may change.
class CEntityStore
{
public:
    explicit CEntityStore(CProject& owner);
    ~CEntityStore();
    CEntityStore(const CEntityStore&) = delete;
    CEntityStore& operator=(const CEntityStore&) = delete;

    CEntity* find(const EntityId& id) noexcept;
    const CEntity* find(const EntityId& id) const noexcept;
    std::size_t size() const noexcept { return entities_.size(); }

    EntityIdList ids(EntityCollection collection) const;

    // Calls visit(const CEntity&) for each entity of the collection in order.
    template <class Visitor>
    void forEach(EntityCollection collection, Visitor&& visit) const
    {
        for (const CEntity& entity : orderOf(collection))
            visit(entity);
    }

    // The entity that follows in its collection, or nothing for the last one.
    std::optional<EntityId> successorOf(const CEntity& entity) const;

    // Places a new entity before the successor, or at the end of its collection without one.
    // The identifier must be new and the successor, if given, in the same collection.
    CEntity& insert(const EntityRecord& record, const std::optional<EntityId>& successor);
    // The entity must exist.
    void erase(const EntityId& id);

private:
    using OrderList = boost::intrusive::list<
        CEntity, boost::intrusive::member_hook<CEntity, CEntity::OrderHook, &CEntity::orderHook_>>;

    OrderList& orderOf(EntityCollection collection);
    const OrderList& orderOf(EntityCollection collection) const;

    CProject& owner_;
    std::unordered_map<EntityId, CEntity, CEntityIdHash> entities_;
    // Declared after the entities so that the lists let go of them before they are destroyed.
    std::array<OrderList, entityCollectionCount> order_;
};

} // namespace aec::model
