#include "Entity.h"

#include "aec/EntityTypes.h"
#include "aec/PropertyAssignmentKey.h"

#include <array>

namespace minimal_host
{

const aec::EntityTypeId& entityTypeOf(aec::EntityCollection collection)
{
    using namespace aec::entity_types;
    // In the order of aec::EntityCollection.
    static const std::array<aec::EntityTypeId, aec::entityCollectionCount> types{
        sheet(), table(),       assembly(), material(), doorStyle(), windowStyle(), reinforcementStyle(),
        topic(), linkedModel(), image()};
    return types.at(static_cast<std::size_t>(collection));
}

CEntity::CEntity(const aec::EntityId& id, aec::EntityCollection collection, std::wstring name,
                 std::optional<aec::EntityId> topic)
    : id_(id), collection_(collection), name_(std::move(name)), topic_(topic)
{
}

aec::EntityId CEntity::getId() const
{
    return id_;
}

aec::EntityTypeId CEntity::getType() const
{
    return entityTypeOf(collection_);
}

const std::wstring& CEntity::getName() const
{
    return name_;
}

aec::AttributeValue CEntity::getPropertyValue(const aec::PropertyAssignmentKey& key) const
{
    if (key == aec::PropertyAssignmentKey::topic() && topic_)
        return topic_->uuid();
    return std::monostate();
}

} // namespace minimal_host
