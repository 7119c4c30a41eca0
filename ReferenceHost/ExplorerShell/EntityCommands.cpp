#include "ExplorerShell/EntityCommands.h"

#include "AecModel/CopiedEntities.h"
#include "AecModel/EntityCollectionInfo.h"
#include "AecModel/Project.h"
#include "AecModel/WideText.h"
#include "Common/Exception.h"
#include "ExplorerShell/CommandLine.h"
#include "ExplorerShell/CommandTable.h"
#include "ExplorerShell/EntityTypeNames.h"
#include "ExplorerShell/ExplorerLookup.h"
#include "HostFrame/ExplorerSession.h"
#include "HostFrame/Gui.h"
#include "HostFrame/TopicEditor.h"
#include "HostServices/HostServices.h"
#include "aec/ClipboardFormats.h"
#include "aec/Commands.h"
#include "aec/PasteContext.h"
#include "aec/ProjectExplorerEntityController.h"
#include "aec/Transaction.h"
#include "aec/TransactionHost.h"

#include <algorithm>
#include <fmt/format.h>
#include <ostream>

namespace aec::shell
{

namespace
{

std::vector<std::string> namesOf(const CExplorerLookup& lookup, const EntityIdList& entities)
{
    std::vector<std::string> names;
    for (const EntityId& id : entities)
        names.push_back(lookup.quotedName(id));
    return names;
}

EntityIdList newEntities(const CExplorerLookup& lookup, const EntityIdList& before)
{
    const EntityIdSet known(before.begin(), before.end());
    EntityIdList added;
    for (const EntityId& id : lookup.allEntities())
        if (!known.contains(id))
            added.push_back(id);
    return added;
}

} // namespace

CEntityCommands::CEntityCommands(host::CExplorerSession& session, CCommandTable& table) : CCommandSet(session)
{
    table.add({"create", "TYPE [NAME]", "create a sheet, table, assembly or material, named NAME if given", 1,
               2, true,
               [this](const CCommandLine& line, std::ostream& out)
               {
                   create(line, out);
               }});
    table.add({"rename", "NAME NEWNAME", "rename the entity NAME", 2, 2, true,
               [this](const CCommandLine& line, std::ostream& out)
               {
                   rename(line, out);
               }});
    table.add({"delete", "", "delete the selection, after confirmation (see answer)", 0, 0, true,
               [this](const CCommandLine&, std::ostream& out)
               {
                   deleteSelection(out);
               }});
    table.add({"copy", "", "copy the selection to the clipboard", 0, 0, true,
               [this](const CCommandLine&, std::ostream& out)
               {
                   copy(out);
               }});
    table.add({"cut", "", "copy the selection to the clipboard, then remove it", 0, 0, true,
               [this](const CCommandLine&, std::ostream& out)
               {
                   cut(out);
               }});
    table.add({"paste", "", "paste the clipboard's entities into the project", 0, 0, true,
               [this](const CCommandLine&, std::ostream& out)
               {
                   paste(out);
               }});
    table.add({"properties", "", "show the properties of the selection", 0, 0, true,
               [this](const CCommandLine&, std::ostream&)
               {
                   editProperties();
               }});
    table.add({"import", "FILE", "import a table from a CSV, .xlsx or .ods file", 1, 1, true,
               [this](const CCommandLine& line, std::ostream& out)
               {
                   importTable(line, out);
               }});
}

void CEntityCommands::create(const CCommandLine& line, std::ostream& out)
{
    const CommandWord& typeName = line.getArgument(0);
    const std::optional<EntityTypeId> type = creatableEntityType(typeName.text);
    if (!type)
        throw common::EException(
            fmt::format("Cannot create a \"{}\"; create a {}.", typeName.text, creatableEntityTypeNames()));
    IProjectExplorerEntityController& controller = session_.getEntityController();
    EntityId id;
    if (line.getArgumentCount() == 1)
        controller.createEntity(*type, id);
    else
    {
        const std::wstring name = model::fromUtf8(line.getArgument(1).text);
        // Creating and naming is one user action: one undo step, named as a plain create is, and a
        // name the collection refuses leaves no unnamed entity behind. The explorer's two
        // transactions join this one.
        const std::unique_ptr<ITransaction> transaction =
            session_.getProject().getTransactionHost().openTransaction(
                fmt::format("Create entity with type {}", type->toString()));
        controller.createEntity(*type, id);
        controller.renameEntity(id, name);
        transaction->commit();
    }
    out << "created: " << entityTypeName(*type) << ' ' << CExplorerLookup(session_).quotedName(id) << '\n';
}

void CEntityCommands::rename(const CCommandLine& line, std::ostream& out)
{
    const CExplorerLookup lookup(session_);
    const EntityId id = lookup.findEntity(line.getArgument(0).text);
    const std::string oldName = lookup.quotedName(id);
    const std::wstring newName = model::fromUtf8(line.getArgument(1).text);
    switch (session_.getProject().findEntity(id)->getCollection())
    {
    case EntityCollection::Topics:
        host::CTopicEditor(session_.getProject()).rename(TopicId(id.uuid()), newName);
        break;
    // Their names are those of the files they show, which this program does not rename.
    case EntityCollection::LinkedModels:
        throw common::EException(
            "A linked model is named after the model file it links; rename the file instead.");
    case EntityCollection::Images:
        throw common::EException("An image is named after its picture file; rename the file instead.");
    default:
        session_.getEntityController().renameEntity(id, newName);
        break;
    }
    out << "renamed: " << oldName << " to " << lookup.quotedName(id) << '\n';
}

void CEntityCommands::deleteSelection(std::ostream& out)
{
    const EntityIdList selection = requireSelection();
    const host::CTopicEditor topics(session_.getProject());
    if (std::ranges::all_of(selection, [&topics](const EntityId& id) { return topics.isTopic(id); }))
        throw common::EException("Topics are deleted one by one: topics delete NAME.");
    const std::vector<std::string> names = namesOf(CExplorerLookup(session_), selection);
    const auto& questions = session_.getHostServices().getDialogService().getQuestions();
    const std::size_t questionsBefore = questions.size();

    runCommand(commands::deleteSelection, "Delete");
    const std::string removed = removedNames(selection, names);
    if (!removed.empty())
        out << "deleted: " << removed << '\n';
    else if (questions.size() != questionsBefore)
        out << "kept: the deletion was not confirmed\n";
    else
        throw common::EException("None of the selected entities can be deleted.");
}

void CEntityCommands::copy(std::ostream& out)
{
    const EntityIdList selection = requireSelection();
    runCommand(commands::copy, "Copy");
    const EntityIdSet copied = entitiesOnClipboard();
    EntityIdList ofSelection;
    std::ranges::copy_if(selection, std::back_inserter(ofSelection),
                         [&copied](const EntityId& id) { return copied.contains(id); });
    if (ofSelection.empty())
        throw common::EException("None of the selected entities can be copied.");
    out << "copied: " << CExplorerLookup(session_).quotedNames(ofSelection) << '\n';
}

void CEntityCommands::cut(std::ostream& out)
{
    const EntityIdList selection = requireSelection();
    const std::vector<std::string> names = namesOf(CExplorerLookup(session_), selection);
    runCommand(commands::cut, "Cut");
    const std::string removed = removedNames(selection, names);
    if (removed.empty())
        throw common::EException("None of the selected entities can be cut.");
    out << "cut: " << removed << '\n';
}

void CEntityCommands::paste(std::ostream& out)
{
    if (!session_.getHostServices().getClipboard().hasData(clipboardFormatProjectEntities))
        throw common::EException("The clipboard holds no entities; copy or cut some first.");
    const CExplorerLookup lookup(session_);
    const EntityIdList before = lookup.allEntities();
    runCommand(commands::paste, "Paste");
    out << "pasted: " << lookup.quotedNames(newEntities(lookup, before)) << '\n';
}

void CEntityCommands::editProperties()
{
    requireSelection();
    const host::CPropertyContainerEditor& editor = session_.getHostServices().getPropertyEditor();
    const std::size_t requestsBefore = editor.getRequestCount();
    runCommand(commands::editProperties, "Properties");
    // The properties themselves are shown as the explorer's request to edit them.
    if (editor.getRequestCount() == requestsBefore)
        throw common::EException("The properties of the selection cannot be edited here: select assemblies, "
                                 "materials, styles, topics, linked models or images.");
}

void CEntityCommands::importTable(const CCommandLine& line, std::ostream& out)
{
    host::CGui& gui = session_.getGui();
    if (!gui.canRunCommand(commands::importTable))
        throw common::EException("Import is not available now.");
    const CExplorerLookup lookup(session_);
    const EntityIdList before = lookup.allEntities();
    // The explorer asks the file dialog, which answers with this file.
    session_.getHostServices().getImportFileDialog().queueAnswer(model::fromUtf8(line.getArgument(0).text));
    gui.runCommand(commands::importTable);
    const EntityIdList imported = newEntities(lookup, before);
    out << "imported: " << lookup.quotedNames(imported);
    // What the import found in the file, for the user to check that it read the file as meant.
    const auto& report = session_.getHostServices().getTableImporter().getLastReport();
    if (!imported.empty() && report)
        out << " (" << report->describe() << ')';
    out << '\n';
}

EntityIdList CEntityCommands::requireSelection() const
{
    const EntityIdSet& selection = session_.getSelection();
    if (selection.empty())
        throw common::EException("Nothing is selected; select entities first.");
    return CExplorerLookup(session_).inTreeOrder(selection);
}

void CEntityCommands::runCommand(int command, std::string_view what)
{
    host::CGui& gui = session_.getGui();
    // The host's own reason, when the selection holds nothing the command acts on, says the most.
    if (std::optional<std::string> refusal = gui.targetRefusal(command))
        throw common::EException(std::move(*refusal));
    if (!gui.canRunCommand(command))
        throw common::EException(fmt::format("{} is not available now.", what));
    gui.runCommand(command);
}

std::string CEntityCommands::removedNames(const EntityIdList& entities,
                                          const std::vector<std::string>& names) const
{
    std::string removed;
    for (std::size_t index = 0; index < entities.size(); ++index)
        if (session_.getProject().findEntity(entities[index]) == nullptr)
            removed += (removed.empty() ? "" : ", ") + names[index];
    return removed;
}

EntityIdSet CEntityCommands::entitiesOnClipboard() const
{
    host::CHostServices& services = session_.getHostServices();
    const std::optional<std::wstring> data = services.getClipboard().getData(clipboardFormatProjectEntities);
    if (!data)
        return {};
    PasteContext context{session_.getProject(), {}};
    for (const model::EntityCollectionInfo& info : model::entityCollections())
        context.collections.push_back(info.collection);
    const std::unique_ptr<IProjectEntityPasteData> decoded =
        services.getPasteDataSerializer().deserialize(*data, context);
    const auto& copied = dynamic_cast<const model::CCopiedEntities&>(*decoded);
    EntityIdSet entities;
    for (std::size_t collection = 0; collection < copyCollectionCount; ++collection)
        for (const model::CopiedEntity& entity : copied.collection(static_cast<CopyCollection>(collection)))
            entities.insert(entity.id);
    return entities;
}

} // namespace aec::shell
