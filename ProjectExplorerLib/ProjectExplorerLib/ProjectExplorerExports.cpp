#include "ProjectExplorerLib/ProjectExplorerExports.h"

#include "ProjectExplorerLib/ProjectExplorerEntityControllerFactory.h"
#include "ProjectExplorerLib/ProjectExplorerEntityProvider.h"
#include "ProjectExplorerLib/ProjectExplorerFactory.h"
#include "ProjectExplorerLib/ProjectExplorerGroupMaker.h"
#include "ProjectExplorerLib/ProjectExplorerGroupingModelFactory.h"
#include "ProjectExplorerLib/ProjectExplorerGuiEventHandlerFactory.h"
#include "ProjectExplorerLib/ProjectExplorerStateMonitor.h"
#include "ProjectExplorerLib/ProjectExplorerViewCreator.h"

#include "Common/UuidProvider.h"

namespace project_explorer
{

std::unique_ptr<aec::IProjectExplorerGroupingModelFactory> createGroupingModelFactory()
{
    return std::make_unique<CProjectExplorerGroupingModelFactory>();
}

std::unique_ptr<aec::IProjectExplorerGroupMaker> createGroupMaker(const aec::IAttributeValueFormatter& formatter,
                                                                  const aec::IProjectSessionManager& sessionManager)
{
    return std::make_unique<CProjectExplorerGroupMaker>(formatter, sessionManager);
}

std::unique_ptr<aec::IProjectExplorerFactory>
createProjectExplorerFactory(const aec::IProjectExplorerGroupingModelFactory& groupingModelFactory,
                             const aec::IProjectExplorerGroupMaker& groupMaker,
                             const aec::IProjectExplorerEntityProvider& entityProvider)
{
    return std::make_unique<CProjectExplorerFactory>(groupingModelFactory, groupMaker, entityProvider);
}

std::unique_ptr<aec::IProjectExplorerGuiEventHandlerFactory> createProjectExplorerGuiEventHandlerFactory()
{
    return std::make_unique<CProjectExplorerGuiEventHandlerFactory>();
}

std::unique_ptr<aec::IProjectExplorerViewCreator>
createViewCreator(const aec::IProjectExplorerFactory& explorerFactory,
                  const aec::IProjectExplorerGuiProvider& panelProvider,
                  const aec::IProjectExplorerGuiEventHandlerFactory& eventHandlerFactory)
{
    return std::make_unique<CProjectExplorerViewCreator>(explorerFactory, panelProvider, eventHandlerFactory);
}

std::unique_ptr<aec::IProjectExplorerStateMonitor> createProjectExplorerStateMonitor(const aec::IProjectExplorer& explorer)
{
    return std::make_unique<CProjectExplorerStateMonitor>(explorer);
}

std::unique_ptr<aec::IProjectExplorerEntityProvider>
createProjectExplorerEntityProvider(const aec::IProjectSessionManager& sessionManager)
{
    return std::make_unique<CProjectExplorerEntityProvider>(sessionManager);
}

std::unique_ptr<aec::IProjectExplorerEntityControllerFactory>
createProjectExplorerEntityControllerFactory(aec::IClipboard& clipboard, aec::IProxyAppGui& proxyAppGui,
                                             const aec::ITranslation& translation,
                                             const aec::IProjectSessionManager& sessionManager,
                                             const aec::IImportFileDialog& importFileDialog,
                                             aec::IPropertyContainerEditor& propertyEditor,
                                             const aec::IGeneralPurposeDialogService& dialogService,
                                             const aec::ITitleBlockIO& titleBlockIO,
                                             aec::serialization::IProjectEntityPasteDataSessionSerializer& serializer)
{
    return std::make_unique<ProjectExplorerEntityControllerFactory>(clipboard, proxyAppGui, translation,
                                                                    sessionManager, importFileDialog, propertyEditor,
                                                                    dialogService, titleBlockIO, serializer);
}

void setUuidProvider(std::shared_ptr<common::IUuidProvider> provider)
{
    common::installUuidProvider(std::move(provider));
}

} // namespace project_explorer
