#pragma once

#include "aec/Entity.h"
#include "aec/EntityCollection.h"

#include <optional>
#include <string>

namespace minimal_host
{

// The model type of a collection's entities.
const aec::EntityTypeId& entityTypeOf(aec::EntityCollection collection);

// One entity of the tiny project: a name in one of the ten collections, and optionally the topic
// (itself an entity of the Topics collection) it belongs to. A plain value, so that a transaction
// can keep a copy of the whole project and put it back.
class CEntity final : public aec::IEntity
{
public:
    CEntity(const aec::EntityId& id, aec::EntityCollection collection, std::wstring name,
            std::optional<aec::EntityId> topic);

    aec::EntityId getId() const override;
    aec::EntityTypeId getType() const override;
    const std::wstring& getName() const override;
    // The only property this host groups by is the topic; its value is the topic's identifier, which
    // the host's value formatter turns into the topic's name.
    aec::AttributeValue getPropertyValue(const aec::PropertyAssignmentKey& key) const override;

    aec::EntityCollection getCollection() const noexcept { return collection_; }
    void setName(std::wstring name) { name_ = std::move(name); }

private:
    aec::EntityId id_;
    aec::EntityCollection collection_;
    std::wstring name_;
    std::optional<aec::EntityId> topic_;
};

} // namespace minimal_host
