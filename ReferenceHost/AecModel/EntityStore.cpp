#include "AecModel/EntityStore.h"

#include "AecModel/EntityCollectionInfo.h"

#include "Common/Check.h"
namespace aec::model
{

CEntityStore::CEntityStore(CProject& owner) : owner_(owner) {}

CEntityStore::~CEntityStore()
{
    for (OrderList& order : order_)
        order.clear();
}

CEntity* CEntityStore::find(const EntityId& id) noexcept
{
    const auto found = entities_.find(id);
    return found == entities_.end() ? nullptr : &found->second;
}

const CEntity* CEntityStore::find(const EntityId& id) const noexcept
{
    const auto found = entities_.find(id);
    return found == entities_.end() ? nullptr : &found->second;
}

EntityIdList CEntityStore::ids(EntityCollection collection) const
{
    const OrderList& order = orderOf(collection);
    EntityIdList result;
    result.reserve(order.size());
    for (const CEntity& entity : order)
        result.push_back(entity.id_);
    return result;
}

std::optional<EntityId> CEntityStore::successorOf(const CEntity& entity) const
{
    const OrderList& order = orderOf(entity.collection_);
    auto next = order.iterator_to(entity);
    if (++next == order.end())
        return std::nullopt;
    return next->id_;
}

CEntity& CEntityStore::insert(const EntityRecord& record, const std::optional<EntityId>& successor)
{
    OrderList& order = orderOf(record.collection);
    auto position = order.end();
    if (successor)
    {
        CEntity* const next = find(*successor);
        COMMON_PRECONDITION(next != nullptr && next->collection_ == record.collection);
        position = order.iterator_to(*next);
    }
    const auto [inserted, isNew] = entities_.try_emplace(record.id, owner_, record);
    COMMON_PRECONDITION(isNew);
    order.insert(position, inserted->second);
    return inserted->second;
}

void CEntityStore::erase(const EntityId& id)
{
    const auto found = entities_.find(id);
    COMMON_PRECONDITION(found != entities_.end());
    CEntity& entity = found->second;
    OrderList& order = orderOf(entity.collection_);
    order.erase(order.iterator_to(entity));
    entities_.erase(found);
}

CEntityStore::OrderList& CEntityStore::orderOf(EntityCollection collection)
{
    const std::size_t index = collectionIndex(collection);
    COMMON_PRECONDITION(index < order_.size());
    return order_[index];
}

const CEntityStore::OrderList& CEntityStore::orderOf(EntityCollection collection) const
{
    const std::size_t index = collectionIndex(collection);
    COMMON_PRECONDITION(index < order_.size());
    return order_[index];
}

} // namespace aec::model
