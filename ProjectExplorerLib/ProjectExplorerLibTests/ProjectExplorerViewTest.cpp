#include "ProjectExplorerLib/ProjectExplorerView.h"

#include "Common/AssertionViolation.h"
#include "Common/Exception.h"
#include "ExplorerViewFixture.h"
#include "FaultInjection/FaultPlan.h"
#include "FaultInjection/FaultyGui.h"
#include "HostFrame/GroupingButtons.h"
#include "ProjectExplorerLib/ProjectExplorer.h"
#include "ProjectExplorerLib/ProjectExplorerEntitySelection.h"
#include "ProjectExplorerLib/ProjectExplorerExports.h"
#include "ViolationSite.h"
#include "aec/Activity.h"
#include "aec/ProjectExplorer.h"
#include "aec/ProjectExplorerGroup.h"
#include "aec/ProjectExplorerGroupingModel.h"

#include <set>

namespace project_explorer::test
{
namespace
{

const std::string viewFile = "ProjectExplorerLib/ProjectExplorerLib/ProjectExplorerView.cpp";
const std::string creatorFile = "ProjectExplorerLib/ProjectExplorerLib/ProjectExplorerViewCreator.cpp";

// Hands out the explorer it was given, once; null when it has none.
class HandingExplorerFactory final : public aec::IProjectExplorerFactory
{
public:
    std::unique_ptr<aec::IProjectExplorer> createProjectExplorer(aec::IProjectPreferences&,
                                                                 const aec::IProject&,
                                                                 const aec::IPropertyCatalog&) const override
    {
        return std::move(explorer);
    }

    mutable std::unique_ptr<aec::IProjectExplorer> explorer;
};

class ProjectExplorerViewTest : public ExplorerViewFixture
{
protected:
    // The number of the seven groupable groups' criterion and sort-order buttons that hold a callback.
    static int boundButtons(const aec::host::CGui& gui)
    {
        int bound = 0;
        for (const aec::ProjectExplorerGroupInfo& info : aec::projectExplorerGroups())
            if (const auto buttons = aec::host::groupingButtonsOf(info))
                for (const std::uint32_t button : {buttons->groupCriterion, buttons->sortOrder})
                    bound += gui.hasButtonCallback(buttons->panel, button) ? 1 : 0;
        return bound;
    }
};

TEST_F(ProjectExplorerViewTest, CreationFailsWithoutPanelOrExplorer)
{
    panelProvider.panel = nullptr;
    const std::string noPanel = violationSite<common::ECheckViolation>([&] { createView(); });

    panelProvider.panel = &panel;
    const HandingExplorerFactory emptyFactory;
    const auto emptyCreator = createViewCreator(emptyFactory, panelProvider, *eventHandlerFactory);
    const std::string noExplorer = violationSite<common::ECheckViolation>(
        [&]
        {
            emptyCreator->createView(panelOwner, hostContext, project->getPreferences(), entityController,
                                     translation, sessionManager, project->getObjectEvents(), clipboard);
        });

    EXPECT_EQ(siteFile(noPanel), creatorFile);
    EXPECT_EQ(siteFile(noExplorer), creatorFile);
    EXPECT_NE(noPanel, noExplorer);
    EXPECT_EQ(panel.explorer, nullptr);
    EXPECT_EQ(panel.eventHandler, nullptr);

    const std::string nullExplorer = violationSite<common::EPreconditionViolation>(
        [&]
        {
            CProjectExplorerView(nullptr, hostContext, panel, translation, entityController, sessionManager,
                                 project->getObjectEvents(), clipboard);
        });
    EXPECT_EQ(siteFile(nullExplorer), viewFile);
}

TEST_F(ProjectExplorerViewTest, TakesTheGuiOnceNeverNullAndMakesActivitiesOnlyAfterIt)
{
    const auto view = createView();
    view->setClipboardListenerRegistry(&clipboard);

    const std::string activityWithoutGui =
        violationSite<common::EPreconditionViolation>([&] { view->createActivity(); });
    const std::string nullGui = violationSite<common::EPreconditionViolation>([&] { view->setGui(nullptr); });
    view->setGui(&gui);
    aec::host::CGui secondGui;
    const std::string secondSetGui =
        violationSite<common::EPreconditionViolation>([&] { view->setGui(&secondGui); });

    for (const std::string& site : {activityWithoutGui, nullGui, secondSetGui})
        EXPECT_EQ(siteFile(site), viewFile);
    EXPECT_EQ((std::set{activityWithoutGui, nullGui, secondSetGui}).size(), 3u);

    EXPECT_TRUE(gui.hasDocumentActivatedRegistration());
    EXPECT_TRUE(gui.hasDocumentClosingRegistration());
    EXPECT_EQ(boundButtons(secondGui), 0);
    EXPECT_FALSE(secondGui.hasDocumentActivatedRegistration());
    EXPECT_NE(view->createActivity(), nullptr);

    // The panel has nothing to draw, print or save.
    EXPECT_FALSE(view->hasDrawing());
    EXPECT_FALSE(view->isModified());
    EXPECT_FALSE(view->canPrint());
    EXPECT_EQ(siteFile(violationSite<common::ENotImplemented>([&] { view->print(); })), viewFile);
}

// A GUI that fails while the view binds to it (here at the third button callback) gets back what it
// was given, and the view can be bound again once the GUI works.
TEST_F(ProjectExplorerViewTest, ASetGuiThatFailsPartWayLeavesTheViewToBeBoundAgain)
{
    aec::fault_injection::CFaultPlan plan;
    aec::fault_injection::CFaultyGui faultyGui(plan, gui);
    std::size_t point = 0;
    {
        const auto counted = createView();
        plan.count();
        counted->setGui(&faultyGui);
        plan.stop();
        const auto& sites = plan.getReachedSites();
        std::size_t callbacks = 0;
        while (point < sites.size() && !(sites[point] == "IGui::registerButtonCallback" && ++callbacks == 3))
            ++point;
        ASSERT_LT(point, sites.size());
    }

    const auto view = createView();
    plan.failAt(point + 1, aec::fault_injection::CFaultPlan::Fault::HostError);
    EXPECT_THROW(view->setGui(&faultyGui), common::EException);
    plan.stop();
    EXPECT_EQ(boundButtons(gui), 0);
    EXPECT_FALSE(gui.hasDocumentActivatedRegistration());
    EXPECT_FALSE(gui.hasDocumentClosingRegistration());

    view->setGui(&faultyGui);
    EXPECT_EQ(boundButtons(gui), 14);
    EXPECT_NE(view->createActivity(), nullptr);
}

TEST_F(ProjectExplorerViewTest, BindsGroupingButtonsOfGroupableGroupsToTheirOwnModels)
{
    auto view = createBoundView();

    // The seven groupable groups, two buttons each: criterion and sort order, on the group's panel.
    EXPECT_EQ(boundButtons(gui), 14);
    const std::set<std::pair<std::uint32_t, std::uint32_t>> sheetsAndReinforcement{
        {840, 847}, {840, 854}, {846, 853}, {846, 860}};
    for (const auto& [toolbar, button] : sheetsAndReinforcement)
        EXPECT_TRUE(gui.hasButtonCallback(toolbar, button)) << toolbar << "/" << button;

    // Tables have the second row: the sort order chosen there is that of the Tables group alone.
    gui.registerSortButton(841, 855, L"Ascending", L"Descending");
    gui.chooseButtonValue(841, 855, L"2");
    EXPECT_EQ(group(L"Tables").getGroupingModel().getSortOrder(),
              aec::IProjectExplorerGroupingModel::descending);
    EXPECT_EQ(group(L"Sheets").getGroupingModel().getSortOrder(),
              aec::IProjectExplorerGroupingModel::ascending);

    view.reset();
    EXPECT_EQ(boundButtons(gui), 0);
    EXPECT_FALSE(gui.hasDocumentActivatedRegistration());
    EXPECT_FALSE(gui.hasDocumentClosingRegistration());
}

TEST_F(ProjectExplorerViewTest, GroupsWithoutButtonsStillGetAContextMenu)
{
    HandingExplorerFactory factory;
    factory.explorer =
        std::make_unique<CProjectExplorer>(std::vector<std::unique_ptr<aec::IProjectExplorerGroup>>{},
                                           std::make_unique<CProjectExplorerEntitySelection>());
    const auto view = createViewCreator(factory, panelProvider, *eventHandlerFactory)
                          ->createView(panelOwner, hostContext, project->getPreferences(), entityController,
                                       translation, sessionManager, project->getObjectEvents(), clipboard);
    view->setClipboardListenerRegistry(&clipboard);
    view->setGui(&gui);

    EXPECT_EQ(boundButtons(gui), 0);
    const auto activity = view->createActivity();
    int shown = 0;
    const boost::signals2::scoped_connection counting =
        gui.contextMenuShownSignal().connect([&shown](const auto&, const auto&) { ++shown; });
    gui.requestContextMenu({1.0, 2.0});
    EXPECT_EQ(shown, 1);
}

TEST_F(ProjectExplorerViewTest, ForwardsOnlyEntityChangesWithEntitiesToThePanel)
{
    auto view = createView();
    const aec::EntityId sheet = *firstEntities(L"Sheets", 1).begin();
    const auto send =
        [this](std::uint32_t code, const aec::EntityIdSet& changed, const aec::EntityIdSet& removed)
    {
        project->getObjectEvents().notify([&](aec::IObjectEvents& observer)
                                          { observer.onObjectsChanged(code, 7, changed, removed); });
    };

    project->renameEntity(sheet, L"Renamed sheet");
    send(aec::objectEventEntitiesChanged, {}, {});
    send(aec::objectEventEntitiesChanged - 1, {sheet}, {sheet});
    send(aec::objectEventEntitiesChanged, {}, {sheet});

    ASSERT_EQ(panel.objectsChanged.size(), 2u);
    EXPECT_EQ(panel.objectsChanged[0].code, aec::objectEventEntitiesChanged);
    EXPECT_EQ(panel.objectsChanged[0].changed, aec::EntityIdSet{sheet});
    EXPECT_EQ(panel.objectsChanged[1].value, 7u);
    EXPECT_EQ(panel.objectsChanged[1].removed, aec::EntityIdSet{sheet});

    view.reset();
    project->renameEntity(sheet, L"Renamed again");
    EXPECT_EQ(panel.objectsChanged.size(), 2u);
}

TEST_F(ProjectExplorerViewTest, AnnouncesUserInputOfThePanelAndOfItsContextMenus)
{
    const auto view = createBoundView();
    int started = 0;
    int finished = 0;
    const boost::signals2::scoped_connection startedConnection =
        view->userInputStartedSignal().connect([&] { ++started; });
    const boost::signals2::scoped_connection finishedConnection =
        view->userInputFinishedSignal().connect([&] { ++finished; });

    panel.userInputStartedSignal()();
    panel.userInputFinishedSignal()();
    const auto activity = view->createActivity();
    gui.requestContextMenu({});

    EXPECT_EQ(started, 2);
    EXPECT_EQ(finished, 2);
}

} // namespace
} // namespace project_explorer::test
