#pragma once

#include "ProjectExplorerLib/EntityTypeLists.h"
#include "ProjectExplorerLib/IProjectExplorerCopierToClipboard.h"

#include "aec/ProjectExplorerEntityController.h"

#include <array>
#include <functional>
#include <memory>
#include <string>

namespace aec
{
class IClipboard;
class IDocumentGui;
class IEntity;
class IEntityClassifier;
class IEntityTypeHandler;
class IGeneralPurposeDialogService;
class IImportFileDialog;
class IOperationGuardSource;
class IPasteHandler;
class IProject;
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

// Turns the explorer's commands into changes of the current project. Every model change runs
// under the project's operation guard as one named transaction, which an exception rolls back.
//
// Which entities each operation takes from its list:
// - delete and cut take those that exist and are of a handled type (sheet, table, assembly,
//   material), since only those have a type handler that removes them;
// - copy takes those that exist and that the classifier can place in a copy collection, so that
//   copying a topic works while an entity the copy format does not know is skipped;
// - properties can be edited when the list is not empty, its first entity exists and that
//   entity's type is a topic, linked model or image, or an explorer type other than sheet and
//   table (those two are opened in a view rather than edited in the property editor).
class CProjectExplorerEntityController final : public aec::IProjectExplorerEntityController
{
public:
    // In the order of the handled types: sheet, table, assembly, material.
    using TypeHandlers = std::array<std::reference_wrapper<aec::IEntityTypeHandler>, handledTypeCount>;

    // Every service must outlive the controller; the copier must be set, and each handler must
    // serve the handled type of its place.
    CProjectExplorerEntityController(aec::IProxyAppGui& proxyAppGui, const aec::ITranslation& translation,
                                     const aec::IProjectSessionManager& sessionManager, const TypeHandlers& typeHandlers,
                                     const aec::IOperationGuardSource& operationGuardSource,
                                     aec::IClipboard& clipboard, const aec::IImportFileDialog& importFileDialog,
                                     aec::IPasteHandler& pasteHandler,
                                     aec::serialization::IProjectEntityPasteDataSessionSerializer& serializer,
                                     aec::IPropertyContainerEditor& propertyEditor,
                                     const aec::IGeneralPurposeDialogService& dialogService,
                                     const aec::ITitleBlockIO& titleBlockIO, const aec::IEntityClassifier& classifier,
                                     std::unique_ptr<IProjectExplorerCopierToClipboard> copier);
    ~CProjectExplorerEntityController() override;

    // A type that is not handled is not implemented (ENotImplemented).
    void createEntity(const aec::EntityTypeId& type, aec::EntityId& id) override;
    // The current document must have a user interface (ECheckViolation otherwise).
    void forwardToGuiHandler(const aec::EntityId& id) override;
    // The entity must exist. Door, window and reinforcement styles are renamed through the project's
    // editing service, which records the change itself; other types of no handler are not
    // implemented (ENotImplemented).
    void renameEntity(const aec::EntityId& id, const std::wstring& newName) override;
    // Shows the entities in the current document's view area; without a document user interface
    // there is nowhere to show them and nothing happens.
    void open(const aec::EntityIdList& entities) override;
    void deleteWithConfirmation(const aec::EntityIdList& entities) override;
    void copy(const aec::EntityIdList& entities) override;
    void cut(const aec::EntityIdList& entities) override;
    bool canEditProperties(const aec::EntityIdList& entities) const override;
    // Nothing happens when the document has no property context; a context must have its owner
    // (ECheckViolation otherwise).
    void editProperties(const aec::EntityIdList& entities) override;
    // Clipboard data that does not decode fails with the serializer's EException, and no data at
    // all reads as empty data, which fails alike; the project is left as it was.
    void paste() override;
    void importTableFromFile() override;
    bool canChangeTopic(const aec::EntityIdList& entities) const override;
    // Every entity must exist.
    void changeTopic(const aec::EntityIdList& entities, const aec::TopicId& topic) override;

    // Removes the entities as one transaction; each must exist and be of a handled type
    // (ENotImplemented for another type).
    void remove(const aec::EntityIdList& entities);

private:
    aec::IProject& currentProject() const;
    aec::IDocumentGui* currentDocumentGui() const;
    static aec::IEntity& existingEntity(aec::IProject& project, const aec::EntityId& id);
    // The handler of a handled type, or null. Each caller reports a type without a handler at its
    // own site, so that a failure tells which operation met it.
    aec::IEntityTypeHandler* handlerFor(const aec::EntityTypeId& type) const;
    // Those of the entities that exist and are of a handled type.
    aec::EntityIdList removableEntities(const aec::EntityIdList& entities) const;
    aec::EntityIdList copyableEntities(const aec::EntityIdList& entities) const;
    std::wstring deleteQuestion(const aec::EntityIdList& removable) const;
    void renameDirectly(aec::IProject& project, const aec::EntityId& id, const std::wstring& newName);

    aec::IProxyAppGui& proxyAppGui_;
    const aec::ITranslation& translation_;
    const aec::IProjectSessionManager& sessionManager_;
    TypeHandlers typeHandlers_;
    const aec::IOperationGuardSource& operationGuardSource_;
    aec::IClipboard& clipboard_;
    const aec::IImportFileDialog& importFileDialog_;
    aec::IPasteHandler& pasteHandler_;
    aec::serialization::IProjectEntityPasteDataSessionSerializer& serializer_;
    aec::IPropertyContainerEditor& propertyEditor_;
    const aec::IGeneralPurposeDialogService& dialogService_;
    const aec::ITitleBlockIO& titleBlockIO_;
    const aec::IEntityClassifier& classifier_;
    std::unique_ptr<IProjectExplorerCopierToClipboard> copier_;
};

} // namespace project_explorer
