#include "FaultInjection/FaultyOperationGuardSource.h"

#include "FaultInjection/FaultPlan.h"
#include "aec/OperationGuard.h"

namespace aec::fault_injection
{

std::unique_ptr<IOperationGuard> CFaultyOperationGuardSource::createGuard(IOperationHost& host) const
{
    plan_.reach("IOperationGuardSource::createGuard");
    return inner_.createGuard(host);
}

} // namespace aec::fault_injection
