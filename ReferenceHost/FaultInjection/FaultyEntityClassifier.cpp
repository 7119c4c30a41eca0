#include "FaultInjection/FaultyEntityClassifier.h"

#include "FaultInjection/FaultPlan.h"

namespace aec::fault_injection
{

std::optional<CopyCollection> CFaultyEntityClassifier::classifyAsDocument(const EntityId& entity) const
{
    plan_.reach("IEntityClassifier::classifyAsDocument");
    return inner_.classifyAsDocument(entity);
}

std::optional<CopyCollection> CFaultyEntityClassifier::classifyAsStyle(const EntityId& entity) const
{
    plan_.reach("IEntityClassifier::classifyAsStyle");
    return inner_.classifyAsStyle(entity);
}

std::optional<CopyCollection> CFaultyEntityClassifier::classifyAsResource(const EntityId& entity) const
{
    plan_.reach("IEntityClassifier::classifyAsResource");
    return inner_.classifyAsResource(entity);
}

} // namespace aec::fault_injection
