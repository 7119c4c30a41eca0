#include "HostFrame/GuiProvider.h"

#include "Common/Check.h"
#include "HostFrame/ExplorerPanel.h"

namespace aec::host
{

CGuiProvider::CGuiProvider() = default;

CGuiProvider::~CGuiProvider() = default;

IProjectExplorerPanel* CGuiProvider::getPanel(IPanelOwner& owner, IHostContext& /*context*/) const
{
    return &providePanel(owner);
}

CExplorerPanel& CGuiProvider::providePanel(IPanelOwner& owner) const
{
    std::unique_ptr<CExplorerPanel>& panel = panels_[&owner];
    if (panel == nullptr)
        panel = std::make_unique<CExplorerPanel>();
    return *panel;
}

CExplorerPanel* CGuiProvider::findPanel(const IPanelOwner& owner) const
{
    const auto found = panels_.find(&owner);
    return found == panels_.end() ? nullptr : found->second.get();
}

void CGuiProvider::releasePanel(const IPanelOwner& owner)
{
    const auto found = panels_.find(&owner);
    if (found == panels_.end())
        return;
    COMMON_PRECONDITION(!found->second->hasExplorer());
    panels_.erase(found);
}

} // namespace aec::host
