#pragma once

#include "aec/ProjectExplorerPanel.h"

namespace aec::fault_injection
{

class CFaultPlan;

// The host's panel that shows the explorer's tree, failing where the plan says. Its user-input
// signals are the host panel's own, so the library hears what the user does in the real panel.
class CFaultyExplorerPanel final : public IProjectExplorerPanel
{
public:
    CFaultyExplorerPanel(CFaultPlan& plan, IProjectExplorerPanel& inner) : plan_(plan), inner_(inner) {}

    VoidSignal& userInputStartedSignal() override;
    VoidSignal& userInputFinishedSignal() override;
    void attachExplorer(IProjectExplorer& explorer) override;
    void setGuiEventHandler(std::unique_ptr<IProjectExplorerGuiEventHandler> handler) override;
    void detachExplorer() override;
    void refresh() override;
    void startRename(const EntityId& entity) override;
    void onObjectsChanged(std::uint32_t code, std::uint32_t value, const EntityIdSet& changed,
                          const EntityIdSet& removed) override;

private:
    CFaultPlan& plan_;
    IProjectExplorerPanel& inner_;
};

} // namespace aec::fault_injection
