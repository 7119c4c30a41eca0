// The smallest host of the project explorer: a console program with a tiny in-memory project. It
// starts the library through its nine entry points in their documented order, shows the explorer
// of the project, and runs one user action end to end: group and unfold a group, select two
// entities, delete them through the host's Delete command. Then it shows the explorer again,
// restored from the project's preferences.

#include "Clipboard.h"
#include "ConsoleDialogs.h"
#include "DocumentWindow.h"
#include "Gui.h"
#include "Project.h"
#include "ProjectServices.h"
#include "Session.h"
#include "Translation.h"

#include "Common/Check.h"
#include "Common/SequentialUuidProvider.h"
#include "ProjectExplorerLib/ProjectExplorerExports.h"
#include "aec/Activity.h"
#include "aec/Commands.h"
#include "aec/NonDrawingView.h"
#include "aec/ProjectExplorerEntityController.h"
#include "aec/ProjectExplorerEntityControllerFactory.h"
#include "aec/ProjectExplorerEntityProvider.h"
#include "aec/ProjectExplorerFactory.h"
#include "aec/ProjectExplorerGroupMaker.h"
#include "aec/ProjectExplorerGroupingModelFactory.h"
#include "aec/ProjectExplorerGuiEventHandler.h"
#include "aec/ProjectExplorerViewCreator.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <cstdlib>
#include <exception>

namespace
{

using namespace minimal_host;

// Two topics, and a few entities under them or under none.
void fillSampleProject(CProject& project)
{
    using enum aec::EntityCollection;
    const aec::EntityId architecture = project.add(Topics, L"Architecture");
    const aec::EntityId structure = project.add(Topics, L"Structure");
    project.add(Sheets, L"Ground floor plan", architecture);
    project.add(Sheets, L"Roof plan", architecture);
    project.add(Sheets, L"Foundation plan", structure);
    project.add(Sheets, L"Site plan");
    project.add(Tables, L"Door schedule", architecture);
    project.add(Materials, L"Brick", architecture);
    project.add(Materials, L"Concrete", structure);
    project.add(DoorStyles, L"Single door", architecture);
    project.add(Images, L"Site photo");
}

aec::EntityId idOf(const CProject& project, std::wstring_view name)
{
    const CEntity* const entity = project.findByName(name);
    COMMON_CHECK(entity != nullptr);
    return entity->getId();
}

void announce(std::string_view step)
{
    fmt::print("\n== {}\n", step);
}

void run()
{
    // The application's services. The library's objects keep references to them, so they are made
    // first and destroyed last.
    CSession session;
    CTranslation translation;
    CConsoleDialogs dialogs;
    CClipboard clipboard;
    CGui gui;
    CDocumentWindow window(session);

    // Start-up: the library's factories, each after the objects it keeps references to.
    const auto groupingModelFactory = project_explorer::createGroupingModelFactory();
    const auto groupMaker = project_explorer::createGroupMaker(session, session);
    const auto entityProvider = project_explorer::createProjectExplorerEntityProvider(session);
    const auto explorerFactory =
        project_explorer::createProjectExplorerFactory(*groupingModelFactory, *groupMaker, *entityProvider);
    const auto eventHandlerFactory = project_explorer::createProjectExplorerGuiEventHandlerFactory();
    const auto viewCreator =
        project_explorer::createViewCreator(*explorerFactory, window, *eventHandlerFactory);
    const auto controllerFactory = project_explorer::createProjectExplorerEntityControllerFactory(
        clipboard, gui, translation, session, dialogs, dialogs, dialogs, dialogs, clipboard);

    // Opening a project: make it the current one, make its entity controller, then the explorer's
    // view in the window's panel, bound to the application's user interface, and the activity that
    // binds the host's commands to the explorer while the panel has the user's attention.
    CProject project(window);
    fillSampleProject(project);
    session.setCurrentProject(&project);
    gui.setDocumentGui(CDocumentWindow::key, &window);
    CProjectServices projectServices(project);
    const auto controller = projectServices.createController(*controllerFactory);
    const auto openView = [&]
    {
        auto made = viewCreator->createView(window, session, project, *controller, translation, session,
                                            project.getObjectEvents(), clipboard);
        made->setClipboardListenerRegistry(&clipboard);
        made->setGui(&gui);
        return made;
    };
    auto view = openView();
    auto activity = view->createActivity();

    CConsolePanel& panel = window.getExplorerPanel();
    announce("The explorer of the sample project");
    panel.print();

    // One user action, end to end. The panel passes the clicks to the library's GUI event handler;
    // selecting unfolds the entities' subgroups. Delete runs the handler that the activity bound to
    // the command: the entity controller asks for confirmation, removes the entities in one
    // transaction, and the project's change event makes the panel rebuild the groups.
    announce(
        "The user groups \"Sheets\" by topic, unfolds it, selects \"Roof plan\" and \"Foundation plan\"");
    const int sheetsGroup = 0; // the first of the explorer's groups
    panel.chooseGrouping(sheetsGroup, L"Topic");
    panel.toggleGroup(sheetsGroup);
    panel.changeSelection({idOf(project, L"Roof plan"), idOf(project, L"Foundation plan")}, {});
    panel.print();

    announce("The user right-clicks in the panel");
    gui.requestContextMenu({120.0, 80.0});

    announce("The user presses Delete");
    gui.runCommand(aec::commands::deleteSelection);
    panel.print();
    fmt::print("Undo history: {}\n", fmt::join(project.getUndoHistory(), "; "));

    // Every fold and grouping change went into the project's preferences, so a new view of the
    // project starts as the user left the old one. The view takes the explorer with it, so the
    // panel lets go of the explorer before the view goes.
    announce("The user closes the explorer and opens it again");
    activity.reset();
    panel.detachExplorer();
    view.reset();
    view = openView();
    activity = view->createActivity();
    panel.print();

    // Closing the project, in reverse order; the rest goes at the end of the scope.
    activity.reset();
    panel.detachExplorer();
    view.reset();
    gui.setDocumentGui(CDocumentWindow::key, nullptr);
    session.setCurrentProject(nullptr);
}

} // namespace

int main()
{
    // The uuid provider comes first, before anything makes identifiers: a seeded one makes every run
    // alike. A host that wants fresh random identifiers passes an empty pointer.
    project_explorer::setUuidProvider(std::make_shared<common::CSequentialUuidProvider>(20240501));
    int status = EXIT_SUCCESS;
    try
    {
        run();
    }
    catch (const std::exception& failure)
    {
        fmt::print(stderr, "minimal-host: {}\n", failure.what());
        status = EXIT_FAILURE;
    }
    project_explorer::setUuidProvider(nullptr);
    return status;
}
