#pragma once

#include "aec/ContextMenuStrategyResolver.h"
#include "aec/ProjectExplorerViewCreator.h"

namespace aec
{
class IClipboard;
class IClipboardListenerRegistry;
class IGui;
class IHostContext;
class IStatusService;
class IProjectExplorerEntityController;
class IProjectExplorerEntitySelection;
class IProjectSessionManager;
} // namespace aec

namespace project_explorer
{

// Works out the explorer's context menu for one request: the explorer's items for what is selected
// when the menu opens.
class CProjectExplorerContextMenuStrategyResolver final : public aec::IContextMenuStrategyResolver
{
public:
    // The strategy kind of menus that the resolver's own providers make up in full.
    static constexpr int strategyKind = 2;

    // Made from the services that the activity holds for its menus, and the GUI, which runs the
    // standard items' commands. The explorer's items draw on the session's current project; the
    // status line, the clipboard and its listeners, the object events and the host context are
    // taken so that every strategy of the activity is made from the same services, but the
    // explorer's own items need none of them. Every reference that is kept must outlive the
    // resolver and the strategies it makes.
    CProjectExplorerContextMenuStrategyResolver(aec::IProjectExplorerEntityController& entityController,
                                                const aec::IProjectExplorerEntitySelection& selection,
                                                const aec::IProjectSessionManager& sessionManager,
                                                aec::IStatusService* statusService,
                                                aec::IClipboardListenerRegistry* clipboardListenerRegistry,
                                                aec::ObjectEventSource& objectEvents,
                                                const aec::IClipboard& clipboard,
                                                aec::IHostContext& hostContext, aec::IGui& gui);
    ~CProjectExplorerContextMenuStrategyResolver() override;

    int getStrategyKind() const override;
    // The explorer's items for the current selection of the current project, then `extra` if set.
    aec::ContextMenuStrategy resolve(const std::shared_ptr<aec::IMenuItemProvider>& extra) const override;

private:
    aec::IProjectExplorerEntityController& entityController_;
    const aec::IProjectExplorerEntitySelection& selection_;
    const aec::IProjectSessionManager& sessionManager_;
    aec::IGui& gui_;
};

} // namespace project_explorer
