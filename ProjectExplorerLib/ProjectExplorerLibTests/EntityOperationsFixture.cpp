#include "EntityOperationsFixture.h"

#include "ProjectExplorerLib/ProjectExplorerExports.h"

#include <map>

namespace project_explorer::test
{

using aec::EntityCollection;

namespace
{

std::map<int, std::wstring> numberedTexts()
{
    std::map<int, std::wstring> texts;
    for (const int id : {11, 42, 43, 44, 54, 55, 56, 57, 58, 59, 144, 145})
        texts[id] = L"T" + std::to_wstring(id) + L" {}";
    return texts;
}

} // namespace

EntityOperationsFixture::EntityOperationsFixture()
    : translation(numberedTexts()), topicA(project.addTopic(L"Alpha")), topicB(project.addTopic(L"Beta")),
      sheet1(project.addEntity(EntityCollection::Sheets, L"Plan", topicA)),
      sheet2(project.addEntity(EntityCollection::Sheets, L"Section", topicA)),
      table(project.addEntity(EntityCollection::Tables, L"Doors")),
      material(project.addEntity(EntityCollection::Materials, L"Oak", topicB)),
      doorStyle(project.addEntity(EntityCollection::DoorStyles, L"Single leaf")),
      linkedModel(project.addEntity(EntityCollection::LinkedModels, L"Survey")),
      image(project.addEntity(EntityCollection::Images, L"Logo")), missing(common::UUID::generate())
{
    sessions.setCurrentProject(&project);
    documentGui.documentKey = project.getDocument().getKey();
    factory = createProjectExplorerEntityControllerFactory(clipboard, documentGui, translation, sessions, dialogs,
                                                           propertyEditor, dialogs, tableImporter, serializer);
    controller = factory->createController(classifier, classifier, copyDataBuilder, sheetHandler, tableHandler,
                                           assemblyHandler, materialHandler, guards, pasteHandler);
}

EntityOperationsFixture::~EntityOperationsFixture() = default;

std::vector<std::string> EntityOperationsFixture::undoNames() const
{
    return project.getUndoHistory().getUndoNames();
}

std::wstring EntityOperationsFixture::nameOf(const aec::EntityId& id) const
{
    return project.findEntity(id)->getName();
}

bool EntityOperationsFixture::exists(const aec::EntityId& id) const
{
    return project.findEntity(id) != nullptr;
}

} // namespace project_explorer::test
