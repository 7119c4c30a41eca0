#pragma once

#include "FaultInjection/FaultyPropertyCatalog.h"
#include "aec/HostContext.h"

namespace aec::fault_injection
{

class CFaultPlan;
class CFaultySessionManager;

// The context an explorer is made in, failing where the plan says: it hands out the project as
// the session manager's decoration of it and the property catalog decorated, so that the explorer
// meets both through fault points when it rebuilds its groups.
class CFaultyHostContext final : public IHostContext
{
public:
    // The session manager's decorations must outlive this one.
    CFaultyHostContext(CFaultPlan& plan, IHostContext& inner, const CFaultySessionManager& sessionManager)
        : plan_(plan), inner_(inner), sessionManager_(sessionManager),
          propertyCatalog_(plan, inner.getPropertyCatalog())
    {
    }

    // The host's own context behind a decoration, or the context itself when it is none.
    static IHostContext& innerOf(IHostContext& context);

    const IProject& getProject() const override;
    const IPropertyCatalog& getPropertyCatalog() const override;

private:
    CFaultPlan& plan_;
    IHostContext& inner_;
    const CFaultySessionManager& sessionManager_;
    CFaultyPropertyCatalog propertyCatalog_;
};

} // namespace aec::fault_injection
