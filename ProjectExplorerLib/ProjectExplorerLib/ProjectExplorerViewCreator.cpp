#include "ProjectExplorerLib/ProjectExplorerViewCreator.h"

#include "ProjectExplorerLib/ProjectExplorerView.h"

#include "aec/HostContext.h"
#include "aec/ProjectExplorer.h"
#include "aec/ProjectExplorerFactory.h"
#include "aec/ProjectExplorerGuiEventHandler.h"
#include "aec/ProjectExplorerPanel.h"

#include "Common/Check.h"

namespace project_explorer
{

CProjectExplorerViewCreator::CProjectExplorerViewCreator(
    const aec::IProjectExplorerFactory& explorerFactory,
    const aec::IProjectExplorerGuiProvider& panelProvider,
    const aec::IProjectExplorerGuiEventHandlerFactory& eventHandlerFactory)
    : explorerFactory_(explorerFactory), panelProvider_(panelProvider),
      eventHandlerFactory_(eventHandlerFactory)
{
}

CProjectExplorerViewCreator::~CProjectExplorerViewCreator() = default;

std::unique_ptr<aec::INonDrawingView> CProjectExplorerViewCreator::createView(
    aec::IPanelOwner& panelOwner, aec::IHostContext& hostContext, aec::IProjectPreferences& preferences,
    aec::IProjectExplorerEntityController& entityController, const aec::ITranslation& translation,
    const aec::IProjectSessionManager& sessionManager, aec::ObjectEventSource& objectEvents,
    const aec::IClipboard& clipboard) const
{
    aec::IProjectExplorerPanel* const panel = panelProvider_.getPanel(panelOwner, hostContext);
    COMMON_CHECK(panel != nullptr);
    std::unique_ptr<aec::IProjectExplorer> explorer = explorerFactory_.createProjectExplorer(
        preferences, hostContext.getProject(), hostContext.getPropertyCatalog());
    COMMON_CHECK(explorer != nullptr);

    panel->attachExplorer(*explorer);
    try
    {
        panel->setGuiEventHandler(eventHandlerFactory_.createHandler(*explorer));
        return std::make_unique<CProjectExplorerView>(std::move(explorer), hostContext, *panel, translation,
                                                      entityController, sessionManager, objectEvents,
                                                      clipboard);
    }
    catch (...)
    {
        // The explorer dies with this call; the panel must not go on showing it.
        panel->detachExplorer();
        throw;
    }
}

} // namespace project_explorer
