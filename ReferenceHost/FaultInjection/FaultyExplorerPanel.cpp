#include "FaultInjection/FaultyExplorerPanel.h"

#include "FaultInjection/FaultPlan.h"
#include "aec/ProjectExplorerGuiEventHandler.h"

#include <utility>

namespace aec::fault_injection
{

VoidSignal& CFaultyExplorerPanel::userInputStartedSignal()
{
    plan_.reach("IProjectExplorerPanel::userInputStartedSignal");
    return inner_.userInputStartedSignal();
}

VoidSignal& CFaultyExplorerPanel::userInputFinishedSignal()
{
    plan_.reach("IProjectExplorerPanel::userInputFinishedSignal");
    return inner_.userInputFinishedSignal();
}

void CFaultyExplorerPanel::attachExplorer(IProjectExplorer& explorer)
{
    plan_.reach("IProjectExplorerPanel::attachExplorer");
    inner_.attachExplorer(explorer);
}

void CFaultyExplorerPanel::setGuiEventHandler(std::unique_ptr<IProjectExplorerGuiEventHandler> handler)
{
    plan_.reach("IProjectExplorerPanel::setGuiEventHandler");
    inner_.setGuiEventHandler(std::move(handler));
}

void CFaultyExplorerPanel::detachExplorer()
{
    plan_.reach("IProjectExplorerPanel::detachExplorer");
    inner_.detachExplorer();
}

void CFaultyExplorerPanel::refresh()
{
    plan_.reach("IProjectExplorerPanel::refresh");
    inner_.refresh();
}

void CFaultyExplorerPanel::startRename(const EntityId& entity)
{
    plan_.reach("IProjectExplorerPanel::startRename");
    inner_.startRename(entity);
}

void CFaultyExplorerPanel::onObjectsChanged(std::uint32_t code, std::uint32_t value,
                                            const EntityIdSet& changed, const EntityIdSet& removed)
{
    plan_.reach("IProjectExplorerPanel::onObjectsChanged");
    inner_.onObjectsChanged(code, value, changed, removed);
}

} // namespace aec::fault_injection
