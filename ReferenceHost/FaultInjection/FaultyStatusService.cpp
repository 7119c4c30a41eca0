#include "FaultInjection/FaultyStatusService.h"

#include "FaultInjection/FaultPlan.h"

namespace aec::fault_injection
{

void CFaultyStatusService::showStatus(const std::wstring& message)
{
    plan_.reach("IStatusService::showStatus");
    inner_.showStatus(message);
}

} // namespace aec::fault_injection
