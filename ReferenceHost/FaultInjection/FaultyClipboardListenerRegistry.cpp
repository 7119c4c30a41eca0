#include "FaultInjection/FaultyClipboardListenerRegistry.h"

#include "FaultInjection/FaultPlan.h"

namespace aec::fault_injection
{

void CFaultyClipboardListenerRegistry::addListener(IClipboardListener& listener)
{
    plan_.reach("IClipboardListenerRegistry::addListener");
    inner_.addListener(listener);
}

void CFaultyClipboardListenerRegistry::removeListener(IClipboardListener& listener)
{
    plan_.reach("IClipboardListenerRegistry::removeListener");
    inner_.removeListener(listener);
}

} // namespace aec::fault_injection
