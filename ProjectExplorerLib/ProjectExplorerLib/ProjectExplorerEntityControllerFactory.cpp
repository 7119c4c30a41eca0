#include "ProjectExplorerLib/ProjectExplorerEntityControllerFactory.h"

#include "ProjectExplorerLib/ProjectExplorerCopierToClipboard.h"
#include "ProjectExplorerLib/ProjectExplorerEntityController.h"

namespace project_explorer
{

ProjectExplorerEntityControllerFactory::ProjectExplorerEntityControllerFactory(
    aec::IClipboard& clipboard, aec::IProxyAppGui& proxyAppGui, const aec::ITranslation& translation,
    const aec::IProjectSessionManager& sessionManager, const aec::IImportFileDialog& importFileDialog,
    aec::IPropertyContainerEditor& propertyEditor, const aec::IGeneralPurposeDialogService& dialogService,
    const aec::ITitleBlockIO& titleBlockIO, aec::serialization::IProjectEntityPasteDataSessionSerializer& serializer)
    : clipboard_(clipboard), proxyAppGui_(proxyAppGui), translation_(translation), sessionManager_(sessionManager),
      importFileDialog_(importFileDialog), propertyEditor_(propertyEditor), dialogService_(dialogService),
      titleBlockIO_(titleBlockIO), serializer_(serializer)
{
}

ProjectExplorerEntityControllerFactory::~ProjectExplorerEntityControllerFactory() = default;

std::unique_ptr<aec::IProjectExplorerEntityController> ProjectExplorerEntityControllerFactory::createController(
    const aec::IEntityClassifier& classifier, const aec::IEntitySource& entitySource,
    const aec::ICopyDataBuilder& copyDataBuilder, aec::IEntityTypeHandler& firstTypeHandler,
    aec::IEntityTypeHandler& secondTypeHandler, aec::IEntityTypeHandler& thirdTypeHandler,
    aec::IEntityTypeHandler& fourthTypeHandler, const aec::IOperationGuardSource& operationGuardSource,
    aec::IPasteHandler& pasteHandler) const
{
    auto copier = std::make_unique<CProjectExplorerCopierToClipboard>(clipboard_, classifier, entitySource,
                                                                      copyDataBuilder, serializer_);
    const CProjectExplorerEntityController::TypeHandlers typeHandlers{firstTypeHandler, secondTypeHandler,
                                                                      thirdTypeHandler, fourthTypeHandler};
    return std::make_unique<CProjectExplorerEntityController>(
        proxyAppGui_, translation_, sessionManager_, typeHandlers, operationGuardSource, clipboard_,
        importFileDialog_, pasteHandler, serializer_, propertyEditor_, dialogService_, titleBlockIO_, classifier,
        std::move(copier));
}

} // namespace project_explorer
