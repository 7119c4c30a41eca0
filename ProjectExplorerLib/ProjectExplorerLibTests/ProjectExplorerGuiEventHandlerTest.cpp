#include "ProjectExplorerLib/ProjectExplorer.h"
#include "ProjectExplorerLib/ProjectExplorerEntitySelection.h"
#include "ProjectExplorerLib/ProjectExplorerGuiEventHandler.h"

#include "ExplorerViewFixture.h"
#include "ViolationSite.h"

#include "aec/ProjectExplorer.h"
#include "aec/ProjectExplorerEntitySelection.h"
#include "aec/ProjectExplorerGroup.h"
#include "aec/ProjectExplorerSubgroup.h"

#include "Common/AssertionViolation.h"

#include <boost/range/begin.hpp>
#include <boost/range/distance.hpp>

#include <set>

namespace project_explorer::test
{
namespace
{

const std::string handlerFile = "ProjectExplorerLib/ProjectExplorerLib/ProjectExplorerGuiEventHandler.cpp";

// The handler that the view creator gave the panel, over the sample project's explorer.
class ProjectExplorerGuiEventHandlerTest : public ExplorerViewFixture
{
protected:
    template <class Action>
    static std::string refusal(Action&& action)
    {
        return violationSite<common::EPreconditionViolation>(std::forward<Action>(action));
    }

    std::unique_ptr<aec::INonDrawingView> view = createView();
    aec::IProjectExplorerGuiEventHandler& handler = *panel.eventHandler;
};

TEST_F(ProjectExplorerGuiEventHandlerTest, RefusesBadIndicesGroupFirstAndChangesNothing)
{
    const auto groupCount = static_cast<int>(boost::distance(explorer().getGroups()));
    const auto subgroupCount =
        static_cast<int>(boost::distance(boost::begin(explorer().getGroups())->getSubgroups()));
    ASSERT_GT(subgroupCount, 0);
    const auto storedBefore = project->getPreferences().getProjectExplorerState();

    const std::string negativeGroup = refusal([&] { handler.toggleGroup(-1); });
    const std::string groupTooLarge = refusal([&] { handler.toggleGroup(groupCount); });
    const std::string negativeSubgroup = refusal([&] { handler.toggleSubgroup(0, -1); });
    const std::string subgroupTooLarge = refusal([&] { handler.toggleSubgroup(0, subgroupCount); });

    for (const std::string& site : {negativeGroup, groupTooLarge, negativeSubgroup, subgroupTooLarge})
        EXPECT_EQ(siteFile(site), handlerFile);
    EXPECT_EQ((std::set{negativeGroup, groupTooLarge, negativeSubgroup, subgroupTooLarge}).size(), 4u);

    // The group is looked up before the subgroup, so its faults win.
    EXPECT_EQ(refusal([&] { handler.toggleSubgroup(-1, 0); }), negativeGroup);
    EXPECT_EQ(refusal([&] { handler.toggleSubgroup(-1, -1); }), negativeGroup);
    EXPECT_EQ(refusal([&] { handler.toggleSubgroup(groupCount, subgroupCount); }), groupTooLarge);

    EXPECT_EQ(project->getPreferences().getProjectExplorerState(), storedBefore);

    // Without groups every index is too large, except the negative ones.
    CProjectExplorer empty({}, std::make_unique<CProjectExplorerEntitySelection>());
    CProjectExplorerGuiEventHandler emptyHandler(empty);
    EXPECT_EQ(refusal([&] { emptyHandler.toggleGroup(0); }), groupTooLarge);
    EXPECT_EQ(refusal([&] { emptyHandler.toggleGroup(-1); }), negativeGroup);
}

TEST_F(ProjectExplorerGuiEventHandlerTest, EachToggleFlipsOnceAndNotifiesOnce)
{
    aec::IProjectExplorerGroup& sheets = *boost::begin(explorer().getGroups());
    aec::IProjectExplorerSubgroup& firstSubgroup = *boost::begin(sheets.getSubgroups());
    int groupNotifications = 0;
    int subgroupNotifications = 0;
    const boost::signals2::scoped_connection groupConnection =
        sheets.expandedChangedSignal().connect([&] { ++groupNotifications; });
    const boost::signals2::scoped_connection subgroupConnection =
        firstSubgroup.expandedChangedSignal().connect([&] { ++subgroupNotifications; });
    const bool groupWasExpanded = sheets.isExpanded();
    const bool subgroupWasExpanded = firstSubgroup.isExpanded();

    handler.toggleGroup(0);
    EXPECT_NE(sheets.isExpanded(), groupWasExpanded);
    EXPECT_EQ(groupNotifications, 1);
    EXPECT_EQ(project->getPreferences().getProjectExplorerState()->at(sheets.getId()).expanded,
              sheets.isExpanded());
    handler.toggleGroup(0);
    EXPECT_EQ(sheets.isExpanded(), groupWasExpanded);
    EXPECT_EQ(groupNotifications, 2);

    handler.toggleSubgroup(0, 0);
    EXPECT_NE(firstSubgroup.isExpanded(), subgroupWasExpanded);
    handler.toggleSubgroup(0, 0);
    EXPECT_EQ(firstSubgroup.isExpanded(), subgroupWasExpanded);
    EXPECT_EQ(subgroupNotifications, 2);
    EXPECT_EQ(groupNotifications, 2);
}

TEST_F(ProjectExplorerGuiEventHandlerTest, PanelSelectionChangesReachTheExplorersSelection)
{
    const aec::EntityIdSet sheets = firstEntities(L"Sheets", 3);
    const aec::EntityId first = *sheets.begin();
    const aec::EntityId second = *std::next(sheets.begin());
    const aec::EntityId third = *std::next(sheets.begin(), 2);

    handler.onSelectionChanged({first, second}, {});
    handler.onSelectionChanged({third}, {first});

    EXPECT_EQ(explorer().getEntitySelection().getSelection(), (aec::EntityIdSet{second, third}));
}

} // namespace
} // namespace project_explorer::test
