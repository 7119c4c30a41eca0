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

// The commands bound while the explorer is active, and those bound for the activity's whole life.
const std::vector<int> activeCommands{86, 12, 11, 22};
const std::vector<int> lifelongCommands{81, 82, 85};

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
    // Whether paste follows the clipboard: the clipboard tells only its registered listeners, and
    // refuses a second registration of one.
    bool followsClipboard()
    {
        clipboard.clear();
        const bool disabledWhenEmpty = !gui.isCommandEnabled(aec::commands::paste);
        clipboard.setData(aec::clipboardFormatProjectEntities, L"entities");
        return disabledWhenEmpty && gui.isCommandEnabled(aec::commands::paste);
    }
    void expectHandlers(const std::vector<int>& commands, bool bound)
    {
        for (const int command : commands)
            EXPECT_EQ(gui.hasCommandHandler(command), bound) << command;
    }

    std::unique_ptr<aec::INonDrawingView> view = createBoundView();
};

// The command states and the order of the calls are pinned with the host's call log
// (BindingOrderTest); here, what the host holds after each switch.
TEST_F(ProjectExplorerRootActivityTest, ActivatesOnceAndDeactivationReleasesWhatItBound)
{
    clipboard.setData(aec::clipboardFormatProjectEntities, L"entities");
    auto activity = view->createActivity();

    // The GUI refuses a second binding or a release of what is not bound, so activating or
    // deactivating twice would throw here.
    expectHandlers(activeCommands, true);
    expectHandlers(lifelongCommands, true);
    EXPECT_TRUE(gui.hasContextMenuHandler());
    EXPECT_TRUE(gui.isCommandEnabled(aec::commands::paste));
    EXPECT_TRUE(followsClipboard());
    EXPECT_TRUE(gui.isCommandClaimed(83));
    EXPECT_TRUE(gui.isCommandClaimed(84));

    activity->activate();
    EXPECT_TRUE(followsClipboard());

    for (int round = 0; round < 2; ++round)
    {
        activity->deactivate();
        activity->deactivate();
        expectHandlers(activeCommands, false);
        expectHandlers(lifelongCommands, true);
        EXPECT_FALSE(gui.hasContextMenuHandler());
        EXPECT_FALSE(followsClipboard());
        // Of the claims only 83's is given back.
        EXPECT_FALSE(gui.isCommandClaimed(83));
        EXPECT_TRUE(gui.isCommandClaimed(84));

        activity->activate();
        activity->activate();
        expectHandlers(activeCommands, true);
        EXPECT_TRUE(gui.hasContextMenuHandler());
        EXPECT_TRUE(followsClipboard());
    }

    activity.reset();
    expectHandlers(activeCommands, false);
    expectHandlers(lifelongCommands, false);
    // A listener left behind would be told of this after its activity is gone.
    clipboard.clear();
}

TEST_F(ProjectExplorerRootActivityTest, CommandsActOnTheSelectionOrNotAtAll)
{
    const auto activity = view->createActivity();
    EXPECT_FALSE(gui.isCommandEnabled(aec::commands::paste)) << "the clipboard is empty";
    EXPECT_FALSE(gui.isCommandEnabled(aec::commands::copy));

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

    clipboard.setData(aec::clipboardFormatProjectEntities, L"entities");
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
    EXPECT_TRUE(hasRenameItem(gui.getLastContextMenu()));
    select(sheets);
    gui.requestContextMenu({});
    EXPECT_FALSE(hasRenameItem(gui.getLastContextMenu()));
}

// A host that never set a registry still gets a working activity; paste then simply does not
// follow the clipboard.
TEST_F(ProjectExplorerRootActivityTest, WorksWithoutAClipboardListenerRegistryAndHasNoDrawingTool)
{
    aec::host::CGui otherGui;
    const auto viewWithoutRegistry = createView();
    viewWithoutRegistry->setGui(&otherGui);
    auto activity = viewWithoutRegistry->createActivity();
    for (const std::vector<int>& commands : {activeCommands, lifelongCommands})
        for (const int command : commands)
            EXPECT_TRUE(otherGui.hasCommandHandler(command)) << command;
    clipboard.setData(aec::clipboardFormatProjectEntities, L"entities");
    EXPECT_TRUE(otherGui.isCommandEnabled(aec::commands::paste)) << "left as the host had it";
    otherGui.runCommand(aec::commands::paste);
    EXPECT_EQ(entityController.pastes, 1);

    activity->deactivate();
    activity->activate();
    activity.reset();
    for (const std::vector<int>& commands : {activeCommands, lifelongCommands})
        for (const int command : commands)
            EXPECT_FALSE(otherGui.hasCommandHandler(command)) << command;

    const auto boundActivity = view->createActivity();
    EXPECT_EQ(
        siteFile(violationSite<common::ENotImplemented>([&] { boundActivity->forwardToDrawingTool(); })),
        activityFile);
}

} // namespace
} // namespace project_explorer::test
