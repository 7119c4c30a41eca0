#pragma once

#include "HostFrame/HostFrameApi.h"
#include "aec/ProjectExplorerPanel.h"

#include <map>
#include <memory>

namespace aec::host
{

class CExplorerPanel;

// Makes and owns the explorer panels: one per panel owner (host window), made on the first request
// and handed out again to later ones, so that a window keeps its panel, and a host program its
// connections to it, while the explorer it shows is replaced (another project opened).
class HOSTFRAME_API CGuiProvider final : public IProjectExplorerGuiProvider
{
public:
    CGuiProvider();
    ~CGuiProvider() override;
    CGuiProvider(const CGuiProvider&) = delete;
    CGuiProvider& operator=(const CGuiProvider&) = delete;

    // Never null. The owner must outlive the panel or release it first.
    IProjectExplorerPanel* getPanel(IPanelOwner& owner, IHostContext& context) const override;

    // The owner's panel, made when it has none yet; the same as getPanel hands out, for a host
    // that wants the panel before any view is made in it.
    CExplorerPanel& providePanel(IPanelOwner& owner) const;
    // The owner's panel, or null when none was requested for it.
    CExplorerPanel* findPanel(const IPanelOwner& owner) const;
    // Destroys the owner's panel, which must show no explorer any more; nothing when it has none.
    void releasePanel(const IPanelOwner& owner);

private:
    // Made on request through the const operation of the provider interface.
    mutable std::map<const IPanelOwner*, std::unique_ptr<CExplorerPanel>> panels_;
};

} // namespace aec::host
