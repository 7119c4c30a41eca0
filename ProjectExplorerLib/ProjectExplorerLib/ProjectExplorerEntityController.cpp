#include "ProjectExplorerLib/ProjectExplorerEntityController.h"

#include "ProjectExplorerLib/ChangeNotificationBatchScope.h"
#include "ProjectExplorerLib/CopyClassification.h"
#include "ProjectExplorerLib/FollowingChangesPause.h"
#include "ProjectExplorerLib/ProjectOperation.h"

#include "aec/Cast.h"
#include "aec/Clipboard.h"
#include "aec/ClipboardFormats.h"
#include "aec/Document.h"
#include "aec/DocumentGui.h"
#include "aec/EditCommand.h"
#include "aec/EditingService.h"
#include "aec/Entity.h"
#include "aec/EntityTypeHandler.h"
#include "aec/EntityWithTopic.h"
#include "aec/GeneralPurposeDialogService.h"
#include "aec/ImportFileDialog.h"
#include "aec/OperationGuardSource.h"
#include "aec/PasteContext.h"
#include "aec/PasteHandler.h"
#include "aec/Project.h"
#include "aec/ProjectEntityCopyData.h"
#include "aec/ProjectEntityPasteDataSessionSerializer.h"
#include "aec/ProjectSessionManager.h"
#include "aec/PropertyContainerEditor.h"
#include "aec/PropertyContext.h"
#include "aec/ProxyAppGui.h"
#include "aec/TextIds.h"
#include "aec/TitleBlockIO.h"
#include "aec/Translation.h"

#include "Common/Check.h"
#include "Common/UUID.h"

#include <boost/locale/encoding_utf.hpp>
#include <fmt/format.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <vector>

namespace project_explorer
{

namespace
{

// The dialog answers in Unicode. libstdc++ would convert a wide path through the C locale and
// fail on any non-ASCII name, so the path is made from UTF-8, which it takes as it is.
std::filesystem::path toFileSystemPath(const std::wstring& text)
{
#if defined(_WIN32)
    return std::filesystem::path(text);
#else
    const std::string utf8 = boost::locale::conv::utf_to_utf<char>(text);
    return std::filesystem::path(std::u8string(utf8.begin(), utf8.end()));
#endif
}

// The collections that pasted entities may go into: those that a copy carries.
const std::vector<aec::EntityCollection>& pasteCollections()
{
    static const std::vector<aec::EntityCollection> collections{
        aec::EntityCollection::Sheets,      aec::EntityCollection::Tables,       aec::EntityCollection::Assemblies,
        aec::EntityCollection::Materials,   aec::EntityCollection::DoorStyles,   aec::EntityCollection::WindowStyles,
        aec::EntityCollection::ReinforcementStyles, aec::EntityCollection::Topics, aec::EntityCollection::Images};
    return collections;
}

template <class Predicate>
aec::EntityIdList entitiesWhere(const aec::EntityIdList& entities, Predicate predicate)
{
    aec::EntityIdList kept;
    std::ranges::copy_if(entities, std::back_inserter(kept), predicate);
    return kept;
}

} // namespace

CProjectExplorerEntityController::CProjectExplorerEntityController(
    aec::IProxyAppGui& proxyAppGui, const aec::ITranslation& translation,
    const aec::IProjectSessionManager& sessionManager, const TypeHandlers& typeHandlers,
    const aec::IOperationGuardSource& operationGuardSource, aec::IClipboard& clipboard,
    const aec::IImportFileDialog& importFileDialog, aec::IPasteHandler& pasteHandler,
    aec::serialization::IProjectEntityPasteDataSessionSerializer& serializer,
    aec::IPropertyContainerEditor& propertyEditor, const aec::IGeneralPurposeDialogService& dialogService,
    const aec::ITitleBlockIO& titleBlockIO, const aec::IEntityClassifier& classifier,
    std::unique_ptr<IProjectExplorerCopierToClipboard> copier)
    : proxyAppGui_(proxyAppGui), translation_(translation), sessionManager_(sessionManager),
      typeHandlers_(typeHandlers), operationGuardSource_(operationGuardSource), clipboard_(clipboard),
      importFileDialog_(importFileDialog), pasteHandler_(pasteHandler), serializer_(serializer),
      propertyEditor_(propertyEditor), dialogService_(dialogService), titleBlockIO_(titleBlockIO),
      classifier_(classifier), copier_(std::move(copier))
{
    COMMON_PRECONDITION(copier_ != nullptr);
    // Four arguments of one type are easily swapped; a swap would create entities of the wrong type.
    for (std::size_t index = 0; index < handledTypeCount; ++index)
        COMMON_PRECONDITION(typeHandlers_[index].get().getEntityType() == handledEntityTypes()[index]);
}

CProjectExplorerEntityController::~CProjectExplorerEntityController() = default;

void CProjectExplorerEntityController::createEntity(const aec::EntityTypeId& type, aec::EntityId& id)
{
    aec::IProject& project = currentProject();
    CProjectOperation operation(project, operationGuardSource_,
                                fmt::format("Create entity with type {}", type.toString()));
    if (id.isNull())
        id = aec::EntityId(common::UUID::generate());
    aec::IEntityTypeHandler* const handler = handlerFor(type);
    if (handler == nullptr)
        COMMON_NOT_IMPLEMENTED();
    handler->create(id);
    operation.commit();
}

void CProjectExplorerEntityController::forwardToGuiHandler(const aec::EntityId& id)
{
    aec::IDocumentGui* const gui = currentDocumentGui();
    COMMON_CHECK(gui != nullptr);
    gui->handleEntity(id);
}

void CProjectExplorerEntityController::renameEntity(const aec::EntityId& id, const std::wstring& newName)
{
    aec::IProject& project = currentProject();
    const aec::EntityTypeId type = existingEntity(project, id).getType();
    if (listsType(directRenameEntityTypes(), type))
    {
        renameDirectly(project, id, newName);
        return;
    }

    CProjectOperation operation(project, operationGuardSource_,
                                fmt::format("Rename entity with type {}", type.toString()));
    aec::IEntityTypeHandler* const handler = handlerFor(type);
    if (handler == nullptr)
        COMMON_NOT_IMPLEMENTED();
    handler->rename(id, newName);
    operation.commit();
}

void CProjectExplorerEntityController::open(const aec::EntityIdList& entities)
{
    if (aec::IDocumentGui* const gui = currentDocumentGui())
        gui->openEntities(entities);
}

void CProjectExplorerEntityController::deleteWithConfirmation(const aec::EntityIdList& entities)
{
    const aec::EntityIdList removable = removableEntities(entities);
    if (removable.empty())
        return;

    const std::wstring title = translation_.getText(aec::text_ids::deleteTitle);
    if (dialogService_.ask(title, deleteQuestion(removable), aec::dialogButtonsYesNo) != aec::DialogAnswer::Yes)
        return;
    remove(removable);
}

void CProjectExplorerEntityController::copy(const aec::EntityIdList& entities)
{
    // Nothing to copy leaves the user's clipboard alone rather than emptying it.
    const aec::EntityIdList copyable = copyableEntities(entities);
    if (!copyable.empty())
        copier_->copyToClipboard(copyable);
}

void CProjectExplorerEntityController::cut(const aec::EntityIdList& entities)
{
    const aec::EntityIdList removable = removableEntities(entities);
    if (removable.empty())
        return;
    copier_->copyToClipboard(removable);
    remove(removable);
}

bool CProjectExplorerEntityController::canEditProperties(const aec::EntityIdList& entities) const
{
    if (entities.empty())
        return false;
    const aec::IEntity* const first = currentProject().findEntity(entities.front());
    if (first == nullptr)
        return false;
    const aec::EntityTypeId type = first->getType();
    return listsType(propertyEditingEntityTypes(), type) || listsType(furtherPropertyEditingEntityTypes(), type);
}

void CProjectExplorerEntityController::editProperties(const aec::EntityIdList& entities)
{
    aec::IPropertyContext* const context = currentProject().getDocument().getPropertyContext();
    if (context == nullptr)
        return;
    aec::IPropertyContextOwner* const owner = context->getOwner();
    COMMON_CHECK(owner != nullptr);
    propertyEditor_.edit(*owner, aec::EntityIdSet(entities.begin(), entities.end()));
}

void CProjectExplorerEntityController::paste()
{
    aec::IProject& project = currentProject();
    CProjectOperation operation(project, operationGuardSource_, "Paste entities from clipboard to project explorer");
    {
        CFollowingChangesPause pause(currentDocumentGui());
        const std::wstring text = clipboard_.getData(aec::clipboardFormatProjectEntities).value_or(std::wstring());
        const aec::PasteContext context{project, pasteCollections()};
        const std::unique_ptr<aec::IProjectEntityPasteData> data = serializer_.deserialize(text, context);
        COMMON_CHECK(data != nullptr);
        pasteHandler_.paste(project, *data);
        pause.end();
    }
    operation.commit();
}

void CProjectExplorerEntityController::importTableFromFile()
{
    const std::wstring answer = importFileDialog_.askForFile();
    if (answer.empty())
        return;

    aec::IProject& project = currentProject();
    CProjectOperation operation(project, operationGuardSource_, "Import table from file");
    titleBlockIO_.importTable(project, toFileSystemPath(answer));
    operation.commit();
}

bool CProjectExplorerEntityController::canChangeTopic(const aec::EntityIdList& entities) const
{
    if (entities.empty())
        return false;
    const aec::IProject& project = currentProject();
    return std::ranges::all_of(entities, [&project](const aec::EntityId& id) {
        const aec::IEntity* const entity = project.findEntity(id);
        return entity != nullptr && listsType(explorerEntityTypes(), entity->getType());
    });
}

void CProjectExplorerEntityController::changeTopic(const aec::EntityIdList& entities, const aec::TopicId& topic)
{
    aec::IProject& project = currentProject();
    CProjectOperation operation(project, operationGuardSource_, "Change entities topic");

    std::vector<aec::IEntity*> found;
    found.reserve(entities.size());
    for (const aec::EntityId& id : entities)
        found.push_back(&existingEntity(project, id));

    {
        CChangeNotificationBatchScope batch(project.getChangeNotificationBatch());
        project.prepareTopicChange(found, topic);
        for (aec::IEntity* const entity : found)
            aec::cast<aec::IEntityWithTopic>(*entity).setTopic(topic);
        batch.close();
    }
    operation.commit();
}

void CProjectExplorerEntityController::remove(const aec::EntityIdList& entities)
{
    aec::IProject& project = currentProject();
    CProjectOperation operation(project, operationGuardSource_, "Remove entities from project explorer");
    {
        CChangeNotificationBatchScope batch(project.getChangeNotificationBatch());
        for (const aec::EntityId& id : entities)
        {
            aec::IEntityTypeHandler* const handler = handlerFor(existingEntity(project, id).getType());
            if (handler == nullptr)
                COMMON_NOT_IMPLEMENTED();
            handler->remove(id);
        }
        batch.close();
    }
    operation.commit();
}

aec::IProject& CProjectExplorerEntityController::currentProject() const
{
    return sessionManager_.getCurrentProject();
}

aec::IDocumentGui* CProjectExplorerEntityController::currentDocumentGui() const
{
    return proxyAppGui_.getDocumentGui(currentProject().getDocument().getKey());
}

aec::IEntity& CProjectExplorerEntityController::existingEntity(aec::IProject& project, const aec::EntityId& id)
{
    aec::IEntity* const entity = project.findEntity(id);
    COMMON_PRECONDITION(entity != nullptr);
    return *entity;
}

aec::IEntityTypeHandler* CProjectExplorerEntityController::handlerFor(const aec::EntityTypeId& type) const
{
    const std::optional<std::size_t> index = handledTypeIndex(type);
    return index ? &typeHandlers_[*index].get() : nullptr;
}

aec::EntityIdList CProjectExplorerEntityController::removableEntities(const aec::EntityIdList& entities) const
{
    const aec::IProject& project = currentProject();
    return entitiesWhere(entities, [&project](const aec::EntityId& id) {
        const aec::IEntity* const entity = project.findEntity(id);
        return entity != nullptr && handledTypeIndex(entity->getType()).has_value();
    });
}

aec::EntityIdList CProjectExplorerEntityController::copyableEntities(const aec::EntityIdList& entities) const
{
    const aec::IProject& project = currentProject();
    return entitiesWhere(entities, [this, &project](const aec::EntityId& id) {
        return project.findEntity(id) != nullptr && classifyForCopy(classifier_, id).has_value();
    });
}

std::wstring CProjectExplorerEntityController::deleteQuestion(const aec::EntityIdList& removable) const
{
    if (removable.size() == 1)
    {
        const aec::IEntity* const entity = currentProject().findEntity(removable.front());
        COMMON_CHECK(entity != nullptr);
        return translation_.fillIn(translation_.getText(aec::text_ids::deleteOneQuestion), entity->getName());
    }
    return translation_.fillIn(translation_.getText(aec::text_ids::deleteManyQuestion),
                               std::to_wstring(removable.size()));
}

void CProjectExplorerEntityController::renameDirectly(aec::IProject& project, const aec::EntityId& id,
                                                      const std::wstring& newName)
{
    // The project records where its direct edits come from; the close is where this one lands.
    const int originLine = __LINE__;
    aec::IEditingService& editing = project.getEditingService();
    editing.beginEdit();
    try
    {
        const std::unique_ptr<aec::IEditCommand> command = editing.createCommand(id);
        command->setName(newName);
        editing.submit(*command);
        project.setChangeOrigin(__FILE__, originLine);
    }
    catch (...)
    {
        editing.endEdit(false);
        throw;
    }
    // The edit ends also when ending it fails, and then takes its change back.
    editing.endEdit(true);
    // The project's failure here is the host's to report, like any other of its failures, even
    // though the rename itself is made by now.
    project.setChangeOrigin(__FILE__, originLine);
}

} // namespace project_explorer
