#include "ProjectExplorerLib/ProjectExplorerContextMenuItemsProvider.h"

#include "ExplorerViewFixture.h"
#include "ViolationSite.h"

#include "aec/Activity.h"
#include "aec/ClipboardFormats.h"
#include "aec/Commands.h"
#include "aec/ProjectExplorer.h"
#include "aec/ProjectExplorerEntitySelection.h"

#include "Common/AssertionViolation.h"

#include <algorithm>
#include <iterator>

namespace project_explorer::test
{
namespace
{

const std::string activityFile = "ProjectExplorerLib/ProjectExplorerLib/ProjectExplorerRootActivity.cpp";

using State = RecordingGui::CommandState;

// The states of the host's commands while the explorer is active, in the order they are set.
const std::vector<State> activeStates{
    {true, 809, true},  {false, 79, false}, {false, 78, false}, {false, 69, false}, {false, 70, false},
    {false, 73, false}, {false, 74, false}, {false, 76, true},  {false, 75, true},  {false, 86, true},
    {true, 487, false}, {true, 83, true},   {true, 84, true},   {false, 87, false},
};

class ProjectExplorerRootActivityTest : public ExplorerViewFixture
{
protected:
    // Selects exactly the entities, as the user would in the panel.
    void select(const aec::EntityIdSet& entities)
    {
        aec::EntityIdSet deselected;
        std::ranges::set_difference(selection(), entities, std::inserter(deselected, deselected.end()));
        panel.eventHandler->onSelectionChanged(entities, deselected);
    }
    const aec::EntityIdSet& selection() { return explorer().getEntitySelection().getSelection(); }
    aec::EntityIdList selectedList() { return {selection().begin(), selection().end()}; }

    std::unique_ptr<aec::INonDrawingView> view = createBoundView();
};

TEST_F(ProjectExplorerRootActivityTest, ActivatesOnceAndDeactivationReleasesWhatItBound)
{
    clipboard.setData(aec::clipboardFormatProjectEntities, L"entities");
    auto activity = view->createActivity();

    for (const int command : {86, 12, 11, 22, 81, 82, 85})
        EXPECT_TRUE(gui.hasHandler(command)) << command;
    EXPECT_EQ(gui.commandStates, activeStates);
    EXPECT_TRUE(gui.contextMenuHandler);
    EXPECT_EQ(registry.listeners.size(), 1u);
    EXPECT_TRUE(gui.isCommandEnabled(aec::commands::paste));

    activity->activate();
    EXPECT_EQ(gui.commandStates, activeStates);
    EXPECT_EQ(registry.listeners.size(), 1u);

    for (int round = 0; round < 2; ++round)
    {
        gui.removedHandlers.clear();
        gui.commandStates.clear();
        activity->deactivate();
        activity->deactivate();
        EXPECT_EQ(gui.removedHandlers, (std::vector<int>{86, 11, 22, 12}));
        EXPECT_EQ(gui.commandStates, (std::vector<State>{{true, 83, false}}));
        EXPECT_FALSE(gui.contextMenuHandler);
        EXPECT_TRUE(registry.listeners.empty());
        // Copy, cut and paste stay bound for the activity's whole life.
        for (const int command : {81, 82, 85})
            EXPECT_TRUE(gui.hasHandler(command)) << command;

        gui.commandStates.clear();
        activity->activate();
        activity->activate();
        for (const int command : {86, 12, 11, 22})
            EXPECT_TRUE(gui.hasHandler(command)) << command;
        EXPECT_EQ(gui.commandStates, activeStates);
        EXPECT_TRUE(gui.contextMenuHandler);
        EXPECT_EQ(registry.listeners.size(), 1u);
    }

    gui.removedHandlers.clear();
    activity.reset();
    EXPECT_EQ(gui.removedHandlers, (std::vector<int>{86, 11, 22, 12, 81, 82, 85}));
    EXPECT_TRUE(registry.listeners.empty());
}

TEST_F(ProjectExplorerRootActivityTest, CommandsActOnTheSelectionOrNotAtAll)
{
    const auto activity = view->createActivity();

    entityController.propertiesEditable = true;
    gui.runCommand(aec::commands::deleteSelection);
    EXPECT_TRUE(entityController.deleted.empty());

    select(firstEntities(L"Sheets", 2));
    EXPECT_TRUE(gui.isCommandEnabled(aec::commands::copy));
    EXPECT_TRUE(gui.isCommandEnabled(aec::commands::cut));

    entityController.propertiesEditable = false;
    gui.runCommand(aec::commands::editProperties);
    EXPECT_TRUE(entityController.edited.empty());
    entityController.propertiesEditable = true;
    gui.runCommand(aec::commands::editProperties);
    gui.runCommand(aec::commands::deleteSelection);
    gui.runCommand(aec::commands::swallowed);

    EXPECT_EQ(entityController.edited, std::vector<aec::EntityIdList>{selectedList()});
    EXPECT_EQ(entityController.deleted, std::vector<aec::EntityIdList>{selectedList()});
    EXPECT_EQ(entityController.imports + entityController.pastes, 0);
    EXPECT_TRUE(entityController.copied.empty());

    gui.runCommand(aec::commands::importTable);
    gui.runCommand(aec::commands::paste);
    EXPECT_EQ(entityController.imports, 1);
    EXPECT_EQ(entityController.pastes, 1);
}

TEST_F(ProjectExplorerRootActivityTest, EachContextMenuIsMadeForTheSelectionOfItsRequest)
{
    const auto activity = view->createActivity();
    const auto hasRenameItem = [](const std::vector<aec::CContextMenuItem>& items)
    {
        return std::ranges::any_of(
            items, [](const aec::CContextMenuItem& item)
            { return item.getIdentifier() == CProjectExplorerContextMenuItemsProvider::renameIdentifier; });
    };

    const aec::EntityIdSet sheets = firstEntities(L"Sheets", 2);
    select({*sheets.begin()});
    gui.requestContextMenu({});
    select(sheets);
    gui.requestContextMenu({});

    ASSERT_EQ(gui.shownMenus.size(), 2u);
    EXPECT_TRUE(hasRenameItem(gui.shownMenus[0]));
    EXPECT_FALSE(hasRenameItem(gui.shownMenus[1]));
}

TEST_F(ProjectExplorerRootActivityTest, NeedsAClipboardListenerRegistryAndHasNoDrawingTool)
{
    RecordingGui otherGui;
    const auto viewWithoutRegistry = createView();
    viewWithoutRegistry->setGui(&otherGui);
    const std::string noRegistry =
        violationSite<common::EPreconditionViolation>([&] { viewWithoutRegistry->createActivity(); });
    EXPECT_EQ(siteFile(noRegistry), activityFile);
    EXPECT_TRUE(otherGui.handlers.empty());

    const auto activity = view->createActivity();
    EXPECT_EQ(siteFile(violationSite<common::ENotImplemented>([&] { activity->forwardToDrawingTool(); })),
              activityFile);
}

} // namespace
} // namespace project_explorer::test
