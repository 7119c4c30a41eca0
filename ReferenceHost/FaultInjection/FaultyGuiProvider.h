#pragma once

#include "FaultInjection/FaultyExplorerPanel.h"
#include "aec/ProjectExplorerPanel.h"

#include <map>
#include <memory>

namespace aec::fault_injection
{

class CFaultPlan;

// Supplies the host's panels decorated, failing where the plan says. One decoration per host
// panel, kept as long as the provider, since the host keeps a window's panel over several projects.
class CFaultyGuiProvider final : public IProjectExplorerGuiProvider
{
public:
    CFaultyGuiProvider(CFaultPlan& plan, const IProjectExplorerGuiProvider& inner)
        : plan_(plan), inner_(inner)
    {
    }

    IProjectExplorerPanel* getPanel(IPanelOwner& owner, IHostContext& context) const override;

private:
    CFaultPlan& plan_;
    const IProjectExplorerGuiProvider& inner_;
    mutable std::map<const IProjectExplorerPanel*, std::unique_ptr<CFaultyExplorerPanel>> panels_;
};

} // namespace aec::fault_injection
