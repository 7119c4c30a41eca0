#pragma once

#include "aec/ProjectExplorerEntityControllerFactory.h"

namespace aec
{
class IClipboard;
class IGeneralPurposeDialogService;
class IImportFileDialog;
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

namespace project_explorer
{

// Makes the entity controllers of projects. It keeps the application's services, which every
// controller shares, and joins them with the per-project services of each request.
class ProjectExplorerEntityControllerFactory final : public aec::IProjectExplorerEntityControllerFactory
{
public:
    // Every service must outlive the factory and every controller it makes.
    ProjectExplorerEntityControllerFactory(aec::IClipboard& clipboard, aec::IProxyAppGui& proxyAppGui,
                                           const aec::ITranslation& translation,
                                           const aec::IProjectSessionManager& sessionManager,
                                           const aec::IImportFileDialog& importFileDialog,
                                           aec::IPropertyContainerEditor& propertyEditor,
                                           const aec::IGeneralPurposeDialogService& dialogService,
                                           const aec::ITitleBlockIO& titleBlockIO,
                                           aec::serialization::IProjectEntityPasteDataSessionSerializer& serializer);
    ~ProjectExplorerEntityControllerFactory() override;

    // The handlers serve sheets, tables, assemblies and materials, in this order.
    std::unique_ptr<aec::IProjectExplorerEntityController>
    createController(const aec::IEntityClassifier& classifier, const aec::IEntitySource& entitySource,
                     const aec::ICopyDataBuilder& copyDataBuilder, aec::IEntityTypeHandler& firstTypeHandler,
                     aec::IEntityTypeHandler& secondTypeHandler, aec::IEntityTypeHandler& thirdTypeHandler,
                     aec::IEntityTypeHandler& fourthTypeHandler,
                     const aec::IOperationGuardSource& operationGuardSource,
                     aec::IPasteHandler& pasteHandler) const override;

private:
    aec::IClipboard& clipboard_;
    aec::IProxyAppGui& proxyAppGui_;
    const aec::ITranslation& translation_;
    const aec::IProjectSessionManager& sessionManager_;
    const aec::IImportFileDialog& importFileDialog_;
    aec::IPropertyContainerEditor& propertyEditor_;
    const aec::IGeneralPurposeDialogService& dialogService_;
    const aec::ITitleBlockIO& titleBlockIO_;
    aec::serialization::IProjectEntityPasteDataSessionSerializer& serializer_;
};

} // namespace project_explorer
