#include "TestHostServices.h"

#include "AecModel/EntityCollectionInfo.h"

#include "aec/PasteContext.h"

#include "Common/Exception.h"

#include <sstream>
#include <string>

namespace project_explorer::test
{

namespace
{

aec::EntityCollection modelCollection(aec::CopyCollection copied)
{
    // The copy collections follow the model's order, except that linked models are never copied.
    return copied == aec::CopyCollection::Images ? aec::EntityCollection::Images
                                                 : static_cast<aec::EntityCollection>(copied);
}

} // namespace

void FailureSwitch::throwIfFailing(const char* service) const
{
    if (failing)
        throw common::EException(std::string(service) + " failed on purpose");
}

ModelTypeHandler::ModelTypeHandler(aec::model::CProject& project, aec::EntityCollection collection)
    : project_(project), collection_(collection)
{
}

void ModelTypeHandler::create(const aec::EntityId& id)
{
    project_.addEntity(collection_, L"New", std::nullopt, id);
    throwIfFailing("create");
}

aec::EntityTypeId ModelTypeHandler::getEntityType() const
{
    return aec::model::collectionInfo(collection_).type;
}

void ModelTypeHandler::remove(const aec::EntityId& id)
{
    // Fails after the change, so that a rollback has something to undo.
    project_.removeEntity(id);
    throwIfFailing("remove");
}

void ModelTypeHandler::rename(const aec::EntityId& id, const std::wstring& newName)
{
    project_.renameEntity(id, newName);
}

std::optional<aec::CopyCollection> CollectionClassifier::classifyAsDocument(const aec::EntityId& entity) const
{
    return classify(entity, {aec::CopyCollection::Sheets, aec::CopyCollection::Tables});
}

std::optional<aec::CopyCollection> CollectionClassifier::classifyAsStyle(const aec::EntityId& entity) const
{
    return classify(entity, {aec::CopyCollection::Materials, aec::CopyCollection::DoorStyles,
                             aec::CopyCollection::WindowStyles, aec::CopyCollection::ReinforcementStyles});
}

std::optional<aec::CopyCollection> CollectionClassifier::classifyAsResource(const aec::EntityId& entity) const
{
    return classify(entity, {aec::CopyCollection::Assemblies, aec::CopyCollection::Topics,
                             aec::CopyCollection::Images});
}

aec::EntityIdSet CollectionClassifier::getEntities(const aec::EntityIdList& requested) const
{
    return aec::EntityIdSet(requested.begin(), requested.end());
}

std::optional<aec::CopyCollection> CollectionClassifier::classify(const aec::EntityId& entity,
                                                                  std::initializer_list<aec::CopyCollection> kind) const
{
    const aec::model::CEntity* const found = project_.findEntity(entity);
    for (const aec::CopyCollection collection : kind)
        if (found != nullptr && found->getCollection() == modelCollection(collection))
            return collection;
    return std::nullopt;
}

std::unique_ptr<aec::IProjectEntityCopyData> NameCopyDataBuilder::build(const aec::CopyCollections& collections) const
{
    auto data = std::make_unique<EntityCopies>();
    for (std::size_t index = 0; index < collections.size(); ++index)
        for (const aec::EntityId& id : collections[index])
            data->entities.emplace_back(static_cast<aec::CopyCollection>(index), project_.findEntity(id)->getName());
    return data;
}

std::wstring LineSerializer::serialize(const aec::IProjectEntityCopyData& data)
{
    throwIfFailing("serialize");
    std::wostringstream text;
    text << L"entities\n";
    for (const auto& [collection, name] : dynamic_cast<const EntityCopies&>(data).entities)
        text << static_cast<int>(collection) << L'\t' << name << L'\n';
    return text.str();
}

std::unique_ptr<aec::IProjectEntityPasteData> LineSerializer::deserialize(const std::wstring& text,
                                                                          const aec::PasteContext& context)
{
    throwIfFailing("deserialize");
    std::wistringstream lines(text);
    std::wstring line;
    if (!std::getline(lines, line) || line != L"entities")
        throw common::EException("The clipboard holds no project entities to paste.");
    auto data = std::make_unique<EntityCopies>();
    while (std::getline(lines, line))
    {
        const auto collection = static_cast<aec::CopyCollection>(std::stoi(line));
        if (std::ranges::count(context.collections, modelCollection(collection)) == 0)
            throw common::EException("The clipboard's entities cannot go into this project.");
        data->entities.emplace_back(collection, line.substr(line.find(L'\t') + 1));
    }
    return data;
}

aec::EntityIdList CopyingPasteHandler::paste(aec::IProject& project, const aec::IProjectEntityPasteData& data)
{
    auto& model = dynamic_cast<aec::model::CProject&>(project);
    aec::EntityIdList pasted;
    for (const auto& [collection, name] : dynamic_cast<const EntityCopies&>(data).entities)
        pasted.push_back(model.addEntity(modelCollection(collection), name + L" (copy)"));
    return pasted;
}

void MapClipboard::setData(std::uint32_t format, const std::wstring& data)
{
    throwIfFailing("clipboard");
    content[format] = data;
}

std::optional<std::wstring> MapClipboard::getData(std::uint32_t format) const
{
    throwIfFailing("clipboard");
    const auto found = content.find(format);
    return found == content.end() ? std::nullopt : std::optional(found->second);
}

bool MapClipboard::hasData(std::uint32_t format) const
{
    return content.contains(format);
}

aec::DialogAnswer ScriptedDialogs::ask(const std::wstring& title, const std::wstring& question, int buttonSet) const
{
    questions.push_back({title, question, buttonSet});
    return answer;
}

aec::IDocumentGui* RecordingDocumentGui::getDocumentGui(std::uint32_t key) const
{
    return present && key == documentKey ? const_cast<RecordingDocumentGui*>(this) : nullptr;
}

void RecordingPropertyEditor::edit(aec::IPropertyContextOwner& owner, const aec::EntityIdSet& entities)
{
    if (&owner == this)
        edited.push_back(entities);
}

aec::IPropertyContextOwner* RecordingPropertyEditor::getOwner() const
{
    return hasOwner ? const_cast<RecordingPropertyEditor*>(this) : nullptr;
}

aec::EntityId StemTableImporter::importTable(aec::IProject& project, const std::filesystem::path& file) const
{
    return dynamic_cast<aec::model::CProject&>(project).addEntity(aec::EntityCollection::Tables,
                                                                  file.stem().wstring());
}

} // namespace project_explorer::test
