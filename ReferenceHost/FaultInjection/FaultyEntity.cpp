#include "FaultInjection/FaultyEntity.h"

#include "FaultInjection/FaultPlan.h"
#include "aec/Cast.h"

namespace aec::fault_injection
{

IEntity* CFaultyEntity::innerOf(IEntity* entity)
{
    auto* const decorated = dynamic_cast<CFaultyEntity*>(entity);
    return decorated != nullptr ? &decorated->inner_ : entity;
}

EntityId CFaultyEntity::getId() const
{
    plan_.reach("IEntity::getId");
    return inner_.getId();
}

EntityTypeId CFaultyEntity::getType() const
{
    plan_.reach("IEntity::getType");
    return inner_.getType();
}

const std::wstring& CFaultyEntity::getName() const
{
    plan_.reach("IEntity::getName");
    return inner_.getName();
}

AttributeValue CFaultyEntity::getPropertyValue(const PropertyAssignmentKey& key) const
{
    plan_.reach("IEntity::getPropertyValue");
    return inner_.getPropertyValue(key);
}

std::optional<TopicId> CFaultyEntity::getTopic() const
{
    plan_.reach("IEntityWithTopic::getTopic");
    return aec::cast<IEntityWithTopic>(inner_).getTopic();
}

void CFaultyEntity::setTopic(const TopicId& topic)
{
    plan_.reach("IEntityWithTopic::setTopic");
    aec::cast<IEntityWithTopic>(inner_).setTopic(topic);
    plan_.reach("IEntityWithTopic::setTopic, after its work");
}

} // namespace aec::fault_injection
