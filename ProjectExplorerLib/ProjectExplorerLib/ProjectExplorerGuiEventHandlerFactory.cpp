#include "ProjectExplorerLib/ProjectExplorerGuiEventHandlerFactory.h"

#include "ProjectExplorerLib/ProjectExplorerGuiEventHandler.h"

namespace project_explorer
{

CProjectExplorerGuiEventHandlerFactory::CProjectExplorerGuiEventHandlerFactory() = default;

CProjectExplorerGuiEventHandlerFactory::~CProjectExplorerGuiEventHandlerFactory() = default;

std::unique_ptr<aec::IProjectExplorerGuiEventHandler>
CProjectExplorerGuiEventHandlerFactory::createHandler(aec::IProjectExplorer& explorer) const
{
    return std::make_unique<CProjectExplorerGuiEventHandler>(explorer);
}

} // namespace project_explorer
