#include "FaultInjection/FaultyEntitySource.h"

#include "FaultInjection/FaultPlan.h"

namespace aec::fault_injection
{

EntityIdSet CFaultyEntitySource::getEntities(const EntityIdList& requested) const
{
    plan_.reach("IEntitySource::getEntities");
    return inner_.getEntities(requested);
}

} // namespace aec::fault_injection
