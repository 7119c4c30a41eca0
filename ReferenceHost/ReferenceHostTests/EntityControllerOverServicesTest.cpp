#include "AecModel/Project.h"
#include "AecModel/ProjectServices.h"
#include "AecModel/SampleProject.h"

#include "HostServices/HostServices.h"

#include "ProjectExplorerLib/ProjectExplorerExports.h"

#include "aec/ProjectExplorerEntityController.h"
#include "aec/ProjectExplorerEntityControllerFactory.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace aec::host
{
namespace
{

std::optional<EntityId> named(const model::CProject& project, EntityCollection collection,
                              const std::wstring& name)
{
    for (const EntityId& id : project.getEntities(collection))
        if (project.findEntity(id)->getName() == name)
            return id;
    return std::nullopt;
}

// The project's services handed to the library's controller in the order it takes them; what each
// operation does is tested with the controller and through the shell.
TEST(EntityControllerOverServicesTest, TheExplorersOperationsRunOnTheReferenceHost)
{
    const auto project = model::buildSampleProject();
    CHostServices host;
    host.getSessionManager().setCurrentProject(project.get());
    host.getProxyAppGui().showDocument(project->getDocument().getKey());
    model::CProjectServices services(*project);
    const auto factory = project_explorer::createProjectExplorerEntityControllerFactory(
        host.getClipboard(), host.getProxyAppGui(), host.getTranslation(), host.getSessionManager(),
        host.getImportFileDialog(), host.getPropertyEditor(), host.getDialogService(),
        host.getTableImporter(), host.getPasteDataSerializer());
    const auto controller = services.createController(*factory);

    const EntityId sheet = *named(*project, EntityCollection::Sheets, L"Sheet A-101");
    controller->copy({sheet});
    controller->paste();
    const std::optional<EntityId> copy = named(*project, EntityCollection::Sheets, L"Sheet A-101 (2)");
    ASSERT_TRUE(copy);
    EXPECT_EQ(project->findEntity(*copy)->getTopic(), project->findEntity(sheet)->getTopic());

    host.getDialogService().queueAnswer(DialogAnswer::Yes);
    controller->deleteWithConfirmation({sheet, *copy});
    EXPECT_EQ(project->findEntity(sheet), nullptr);
    EXPECT_EQ(project->findEntity(*copy), nullptr);
    EXPECT_EQ(host.getDialogService().getQuestions().back(),
              (CScriptedDialogService::Question{L"Delete", L"Delete 2 entities?", dialogButtonsYesNo}));

    const std::vector<std::string> undo = project->getUndoHistory().getUndoNames();
    EXPECT_EQ(undo.size(), 2u);
    EXPECT_TRUE(std::ranges::count(undo, "Paste entities from clipboard to project explorer"));
}

} // namespace
} // namespace aec::host
