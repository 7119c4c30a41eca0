#pragma once

#include "aec/Entity.h"
#include "aec/EntityWithTopic.h"

namespace aec::fault_injection
{

class CFaultPlan;

// A project entity, failing where the plan says. It offers the topic of any entity; an entity
// without one fails as the host's cast would, when its topic is used.
class CFaultyEntity final : public IEntity, public IEntityWithTopic
{
public:
    CFaultyEntity(CFaultPlan& plan, IEntity& inner) : plan_(plan), inner_(inner) {}

    // The host's own entity behind a decoration, or the entity itself when it is none.
    static IEntity* innerOf(IEntity* entity);

    EntityId getId() const override;
    EntityTypeId getType() const override;
    const std::wstring& getName() const override;
    AttributeValue getPropertyValue(const PropertyAssignmentKey& key) const override;
    std::optional<TopicId> getTopic() const override;
    void setTopic(const TopicId& topic) override;

private:
    CFaultPlan& plan_;
    IEntity& inner_;
};

} // namespace aec::fault_injection
