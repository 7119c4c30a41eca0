#include "FaultInjection/FaultyDocument.h"

#include "FaultInjection/FaultPlan.h"

namespace aec::fault_injection
{

std::uint32_t CFaultyDocument::getKey() const
{
    plan_.reach("IDocument::getKey");
    return inner_.getKey();
}

IPropertyContext* CFaultyDocument::getPropertyContext() const
{
    plan_.reach("IDocument::getPropertyContext");
    return inner_.getPropertyContext();
}

} // namespace aec::fault_injection
