#pragma once

#include "RecordingGui.h"
#include "TableTranslation.h"
#include "TestHostServices.h"

#include "AecModel/OperationGuardSource.h"
#include "AecModel/Project.h"
#include "AecModel/SessionManager.h"

#include "aec/ProjectExplorerEntityController.h"
#include "aec/ProjectExplorerEntityControllerFactory.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace project_explorer::test
{

// A project with two topics and one entity or two of every collection, the host services around
// it, and an entity controller made through the library's entry point.
class EntityOperationsFixture : public ::testing::Test
{
protected:
    EntityOperationsFixture();
    ~EntityOperationsFixture() override;

    std::vector<std::string> undoNames() const;
    std::wstring nameOf(const aec::EntityId& id) const;
    // Whether the entity is in the project now.
    bool exists(const aec::EntityId& id) const;

    aec::model::CProject project;
    aec::model::CSessionManager sessions;
    aec::model::COperationGuardSource guards;
    ModelTypeHandler sheetHandler{project, aec::EntityCollection::Sheets};
    ModelTypeHandler tableHandler{project, aec::EntityCollection::Tables};
    ModelTypeHandler assemblyHandler{project, aec::EntityCollection::Assemblies};
    ModelTypeHandler materialHandler{project, aec::EntityCollection::Materials};
    CollectionClassifier classifier{project};
    NameCopyDataBuilder copyDataBuilder{project};
    LineSerializer serializer;
    CopyingPasteHandler pasteHandler;
    MapClipboard clipboard;
    // Texts "T<number> {}", so that every text shows its number and takes a fill-in.
    aecapp_tests::TableTranslation translation;
    ScriptedDialogs dialogs;
    RecordingDocumentGui documentGui;
    RecordingPropertyEditor propertyEditor;
    StemTableImporter tableImporter;
    aecapp_tests::RecordingGui gui;

    aec::TopicId topicA;
    aec::TopicId topicB;
    aec::EntityId sheet1;
    aec::EntityId sheet2;
    aec::EntityId table;
    aec::EntityId material;
    aec::EntityId doorStyle;
    aec::EntityId linkedModel;
    aec::EntityId image;
    aec::EntityId missing;

    std::unique_ptr<aec::IProjectExplorerEntityControllerFactory> factory;
    std::unique_ptr<aec::IProjectExplorerEntityController> controller;
};

} // namespace project_explorer::test
