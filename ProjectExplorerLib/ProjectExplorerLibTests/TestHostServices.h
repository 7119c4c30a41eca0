#pragma once

// Stand-ins for the host's application and per-project services, working on the reference host's
// project model, so that the entity operations run against real transactions, undo and
// notifications. Services whose calls have no effect on the model record them instead. Each
// service that changes or reads shared state can be switched to fail, to check rollbacks.

#include "AecModel/Project.h"

#include "aec/Clipboard.h"
#include "aec/CopyDataBuilder.h"
#include "aec/DocumentGui.h"
#include "aec/EntityClassifier.h"
#include "aec/EntitySource.h"
#include "aec/EntityTypeHandler.h"
#include "aec/GeneralPurposeDialogService.h"
#include "aec/ImportFileDialog.h"
#include "aec/PasteHandler.h"
#include "aec/ProjectEntityCopyData.h"
#include "aec/ProjectEntityPasteDataSessionSerializer.h"
#include "aec/PropertyContainerEditor.h"
#include "aec/PropertyContext.h"
#include "aec/ProxyAppGui.h"
#include "aec/TitleBlockIO.h"

#include <map>
#include <utility>
#include <vector>

namespace project_explorer::test
{

// Throws common::EException when switched on: the failure a host service reports.
struct FailureSwitch
{
    bool failing = false;
    void throwIfFailing(const char* service) const;
};

// Creates, removes and renames the entities of one collection of the model.
class ModelTypeHandler : public aec::IEntityTypeHandler, public FailureSwitch
{
public:
    ModelTypeHandler(aec::model::CProject& project, aec::EntityCollection collection);
    void create(const aec::EntityId& id) override;
    aec::EntityTypeId getEntityType() const override;
    void remove(const aec::EntityId& id) override;
    void rename(const aec::EntityId& id, const std::wstring& newName) override;

private:
    aec::model::CProject& project_;
    aec::EntityCollection collection_;
};

// Sorts entities into the copy collection of their model collection; linked models and unknown
// entities are placed nowhere.
class CollectionClassifier : public aec::IEntityClassifier, public aec::IEntitySource
{
public:
    explicit CollectionClassifier(const aec::model::CProject& project) : project_(project) {}
    std::optional<aec::CopyCollection> classifyAsDocument(const aec::EntityId& entity) const override;
    std::optional<aec::CopyCollection> classifyAsStyle(const aec::EntityId& entity) const override;
    std::optional<aec::CopyCollection> classifyAsResource(const aec::EntityId& entity) const override;
    aec::EntityIdSet getEntities(const aec::EntityIdList& requested) const override;

private:
    std::optional<aec::CopyCollection> classify(const aec::EntityId& entity,
                                                std::initializer_list<aec::CopyCollection> kind) const;
    const aec::model::CProject& project_;
};

// Copied or pasted entities as (collection, name) pairs.
struct EntityCopies : aec::IProjectEntityCopyData, aec::IProjectEntityPasteData
{
    std::vector<std::pair<aec::CopyCollection, std::wstring>> entities;
};

class NameCopyDataBuilder : public aec::ICopyDataBuilder
{
public:
    explicit NameCopyDataBuilder(const aec::model::CProject& project) : project_(project) {}
    std::unique_ptr<aec::IProjectEntityCopyData> build(const aec::CopyCollections& collections) const override;

private:
    const aec::model::CProject& project_;
};

// One line "<collection>\t<name>" per entity after a header line; rejects anything else.
class LineSerializer : public aec::serialization::IProjectEntityPasteDataSessionSerializer, public FailureSwitch
{
public:
    std::wstring serialize(const aec::IProjectEntityCopyData& data) override;
    std::unique_ptr<aec::IProjectEntityPasteData> deserialize(const std::wstring& text,
                                                              const aec::PasteContext& context) override;
};

// Adds the pasted entities as new ones, named "<name> (copy)".
class CopyingPasteHandler : public aec::IPasteHandler
{
public:
    aec::EntityIdList paste(aec::IProject& project, const aec::IProjectEntityPasteData& data) override;
};

class MapClipboard : public aec::IClipboard, public FailureSwitch
{
public:
    void setData(std::uint32_t format, const std::wstring& data) override;
    std::optional<std::wstring> getData(std::uint32_t format) const override;
    bool hasData(std::uint32_t format) const override;

    std::map<std::uint32_t, std::wstring> content;
};

class ScriptedDialogs : public aec::IGeneralPurposeDialogService, public aec::IImportFileDialog
{
public:
    struct Question
    {
        std::wstring title;
        std::wstring question;
        int buttons;
    };
    aec::DialogAnswer ask(const std::wstring& title, const std::wstring& question, int buttonSet) const override;
    std::wstring askForFile() const override { return fileAnswer; }

    aec::DialogAnswer answer = aec::DialogAnswer::Yes;
    std::wstring fileAnswer;
    mutable std::vector<Question> questions;
};

// The document's user interface; it keeps every value its following flag was set to.
class RecordingDocumentGui : public aec::IDocumentGui, public aec::IProxyAppGui
{
public:
    void handleEntity(const aec::EntityId& entity) override { handled.push_back(entity); }
    void openEntities(const aec::EntityIdList& entities) override { opened.push_back(entities); }
    bool isFollowingChanges() const override { return following; }
    void setFollowingChanges(bool value) override { followingSet.push_back(following = value); }
    // Only the document of `documentKey` has this user interface, and only while `present`.
    aec::IDocumentGui* getDocumentGui(std::uint32_t key) const override;

    std::uint32_t documentKey = 0;
    bool present = true;
    bool following = true;
    std::vector<bool> followingSet;
    aec::EntityIdList handled;
    std::vector<aec::EntityIdList> opened;
};

class RecordingPropertyEditor : public aec::IPropertyContainerEditor,
                                public aec::IPropertyContext,
                                public aec::IPropertyContextOwner
{
public:
    void edit(aec::IPropertyContextOwner& owner, const aec::EntityIdSet& entities) override;
    aec::IPropertyContextOwner* getOwner() const override;

    bool hasOwner = true;
    std::vector<aec::EntityIdSet> edited;
};

// Imports a file as a table named after the file's stem.
class StemTableImporter : public aec::ITitleBlockIO
{
public:
    aec::EntityId importTable(aec::IProject& project, const std::filesystem::path& file) const override;
};

} // namespace project_explorer::test
