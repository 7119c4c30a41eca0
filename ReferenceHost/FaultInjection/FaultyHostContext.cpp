#include "FaultInjection/FaultyHostContext.h"

#include "FaultInjection/FaultPlan.h"
#include "FaultInjection/FaultySessionManager.h"

namespace aec::fault_injection
{

IHostContext& CFaultyHostContext::innerOf(IHostContext& context)
{
    auto* const decorated = dynamic_cast<CFaultyHostContext*>(&context);
    return decorated != nullptr ? decorated->inner_ : context;
}

const IProject& CFaultyHostContext::getProject() const
{
    plan_.reach("IHostContext::getProject");
    return sessionManager_.decorationOf(inner_.getProject());
}

const IPropertyCatalog& CFaultyHostContext::getPropertyCatalog() const
{
    plan_.reach("IHostContext::getPropertyCatalog");
    return propertyCatalog_;
}

} // namespace aec::fault_injection
