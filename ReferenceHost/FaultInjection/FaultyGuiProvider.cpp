#include "FaultInjection/FaultyGuiProvider.h"

#include "FaultInjection/FaultPlan.h"
#include "FaultInjection/FaultyHostContext.h"

namespace aec::fault_injection
{

IProjectExplorerPanel* CFaultyGuiProvider::getPanel(IPanelOwner& owner, IHostContext& context) const
{
    plan_.reach("IProjectExplorerGuiProvider::getPanel");
    IProjectExplorerPanel* const panel = inner_.getPanel(owner, CFaultyHostContext::innerOf(context));
    if (panel == nullptr)
        return nullptr;
    std::unique_ptr<CFaultyExplorerPanel>& decorated = panels_[panel];
    if (decorated == nullptr)
        decorated = std::make_unique<CFaultyExplorerPanel>(plan_, *panel);
    return decorated.get();
}

} // namespace aec::fault_injection
