#include "ProjectExplorerLib/ProjectExplorerContextMenuStrategyResolver.h"

#include "ProjectExplorerLib/ProjectExplorerContextMenuItemsProvider.h"

#include "aec/ProjectExplorerEntitySelection.h"
#include "aec/ProjectSessionManager.h"

namespace project_explorer
{

CProjectExplorerContextMenuStrategyResolver::CProjectExplorerContextMenuStrategyResolver(
    aec::IProjectExplorerEntityController& entityController,
    const aec::IProjectExplorerEntitySelection& selection, const aec::IProjectSessionManager& sessionManager,
    aec::IStatusService* /*statusService*/, aec::IClipboardListenerRegistry* /*clipboardListenerRegistry*/,
    aec::ObjectEventSource& /*objectEvents*/, const aec::IClipboard& /*clipboard*/,
    aec::IHostContext& /*hostContext*/, aec::IGui& gui)
    : entityController_(entityController), selection_(selection), sessionManager_(sessionManager), gui_(gui)
{
}

CProjectExplorerContextMenuStrategyResolver::~CProjectExplorerContextMenuStrategyResolver() = default;

int CProjectExplorerContextMenuStrategyResolver::getStrategyKind() const
{
    return strategyKind;
}

aec::ContextMenuStrategy
CProjectExplorerContextMenuStrategyResolver::resolve(const std::shared_ptr<aec::IMenuItemProvider>& extra) const
{
    const aec::EntityIdSet& selection = selection_.getSelection();
    aec::ContextMenuStrategy strategy{std::make_shared<CProjectExplorerContextMenuItemsProvider>(
        aec::EntityIdList(selection.begin(), selection.end()), entityController_,
        sessionManager_.getCurrentProject(), gui_)};
    if (extra)
        strategy.push_back(extra);
    return strategy;
}

} // namespace project_explorer
