#include "EntityOperationsFixture.h"

#include "ProjectExplorerLib/ProjectExplorerExports.h"

namespace project_explorer::test
{

using aec::EntityCollection;

EntityOperationsFixture::EntityOperationsFixture()
    : topicA(project.addTopic(L"Alpha")), topicB(project.addTopic(L"Beta")),
      sheet1(project.addEntity(EntityCollection::Sheets, L"Plan", topicA)),
      sheet2(project.addEntity(EntityCollection::Sheets, L"Section", topicA)),
      table(project.addEntity(EntityCollection::Tables, L"Doors")),
      material(project.addEntity(EntityCollection::Materials, L"Oak", topicB)),
      doorStyle(project.addEntity(EntityCollection::DoorStyles, L"Single leaf")),
      linkedModel(project.addEntity(EntityCollection::LinkedModels, L"Survey")),
      image(project.addEntity(EntityCollection::Images, L"Logo")), missing(common::UUID::generate())
{
    host.getSessionManager().setCurrentProject(&project);
    host.getProxyAppGui().showDocument(project.getDocument().getKey());
    factory = createProjectExplorerEntityControllerFactory(
        clipboard, host.getProxyAppGui(), host.getTranslation(), host.getSessionManager(),
        host.getImportFileDialog(), host.getPropertyEditor(), host.getDialogService(),
        host.getTableImporter(), serializer);
    controller = factory->createController(
        services.getClassifier(), services.getEntitySource(), services.getCopyDataBuilder(),
        services.getSheetHandler(), services.getTableHandler(), services.getAssemblyHandler(),
        services.getMaterialHandler(), services.getOperationGuardSource(), services.getPasteHandler());
}

EntityOperationsFixture::~EntityOperationsFixture()
{
    project.getDocument().setPropertyContext(nullptr);
    host.getSessionManager().setCurrentProject(nullptr);
}

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

aec::host::CDocumentGui& EntityOperationsFixture::documentGui()
{
    return *host.getProxyAppGui().getDocumentGui(project.getDocument().getKey());
}

std::wstring EntityOperationsFixture::text(int textId) const
{
    return host.getTranslation().getText(textId);
}

} // namespace project_explorer::test
