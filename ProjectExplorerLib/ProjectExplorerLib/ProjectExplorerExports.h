#pragma once

#include "ProjectExplorerLib/ProjectExplorerApi.h"

#include <memory>

namespace aec
{
class IAttributeValueFormatter;
class IClipboard;
class IGeneralPurposeDialogService;
class IImportFileDialog;
class IProjectExplorer;
class IProjectExplorerEntityControllerFactory;
class IProjectExplorerEntityProvider;
class IProjectExplorerFactory;
class IProjectExplorerGroupMaker;
class IProjectExplorerGroupingModelFactory;
class IProjectExplorerGuiEventHandlerFactory;
class IProjectExplorerGuiProvider;
class IProjectExplorerStateMonitor;
class IProjectExplorerViewCreator;
class IProjectSessionManager;
class IPropertyContainerEditor;
class IProxyAppGui;
class ITitleBlockIO;
class ITranslation;
namespace serialization
{
class IProjectEntityPasteDataSessionSerializer;
} // namespace serialization
} // namespace aec

namespace common
{
class IUuidProvider;
} // namespace common

// The library's entry points. The host calls them in this order, since each later object keeps
// references to earlier ones: setUuidProvider; the grouping model factory, the group maker and
// the entity provider; the explorer factory; the GUI event handler factory and the view creator;
// the entity controller factory. Every made object belongs to the host, and every reference it is
// given must outlive it.
namespace project_explorer
{

PROJECT_EXPLORER_API std::unique_ptr<aec::IProjectExplorerGroupingModelFactory> createGroupingModelFactory();

PROJECT_EXPLORER_API std::unique_ptr<aec::IProjectExplorerGroupMaker>
createGroupMaker(const aec::IAttributeValueFormatter& formatter, const aec::IProjectSessionManager& sessionManager);

PROJECT_EXPLORER_API std::unique_ptr<aec::IProjectExplorerFactory>
createProjectExplorerFactory(const aec::IProjectExplorerGroupingModelFactory& groupingModelFactory,
                             const aec::IProjectExplorerGroupMaker& groupMaker,
                             const aec::IProjectExplorerEntityProvider& entityProvider);

PROJECT_EXPLORER_API std::unique_ptr<aec::IProjectExplorerGuiEventHandlerFactory>
createProjectExplorerGuiEventHandlerFactory();

// The creator asks `explorerFactory` for the explorer of each view it makes, `panelProvider` for
// the view's panel and `eventHandlerFactory` for the panel's GUI event handler.
PROJECT_EXPLORER_API std::unique_ptr<aec::IProjectExplorerViewCreator>
createViewCreator(const aec::IProjectExplorerFactory& explorerFactory,
                  const aec::IProjectExplorerGuiProvider& panelProvider,
                  const aec::IProjectExplorerGuiEventHandlerFactory& eventHandlerFactory);

PROJECT_EXPLORER_API std::unique_ptr<aec::IProjectExplorerStateMonitor>
createProjectExplorerStateMonitor(const aec::IProjectExplorer& explorer);

PROJECT_EXPLORER_API std::unique_ptr<aec::IProjectExplorerEntityProvider>
createProjectExplorerEntityProvider(const aec::IProjectSessionManager& sessionManager);

PROJECT_EXPLORER_API std::unique_ptr<aec::IProjectExplorerEntityControllerFactory>
createProjectExplorerEntityControllerFactory(aec::IClipboard& clipboard, aec::IProxyAppGui& proxyAppGui,
                                             const aec::ITranslation& translation,
                                             const aec::IProjectSessionManager& sessionManager,
                                             const aec::IImportFileDialog& importFileDialog,
                                             aec::IPropertyContainerEditor& propertyEditor,
                                             const aec::IGeneralPurposeDialogService& dialogService,
                                             const aec::ITitleBlockIO& titleBlockIO,
                                             aec::serialization::IProjectEntityPasteDataSessionSerializer& serializer);

// Every identifier the library makes from now on comes from `provider`; an empty pointer goes
// back to the platform's generator.
PROJECT_EXPLORER_API void setUuidProvider(std::shared_ptr<common::IUuidProvider> provider);

} // namespace project_explorer
