#include "ExplorerTest.h"
#include "ViolationSite.h"

#include "ProjectExplorerLib/ProjectExplorer.h"
#include "ProjectExplorerLib/ProjectExplorerEntitySelection.h"
#include "ProjectExplorerLib/ProjectExplorerStateMonitor.h"

#include "Common/AssertionViolation.h"
#include "Common/NameBasedUuid.h"

namespace project_explorer::test
{
namespace
{

using aec::EntityCollection;
using SubgroupStates = std::map<common::UUID, bool>;

std::unique_ptr<aec::IProjectExplorer> explorerOf(std::vector<std::unique_ptr<aec::IProjectExplorerGroup>> groups)
{
    return std::make_unique<CProjectExplorer>(std::move(groups), std::make_unique<CProjectExplorerEntitySelection>());
}

// Hands out the same descriptors whatever it is asked.
class CScriptedGroupMaker : public aec::IProjectExplorerGroupMaker
{
public:
    std::vector<aec::SubgroupDescriptor> subgroups;
    std::vector<aec::SubgroupDescriptor> makeSubgroups(const aec::EntityIdList&, const aec::PropertyAssignmentKey&, int) const override
    {
        return subgroups;
    }
};

// Doors grouped by topic ("Fire", "Sound") and windows ungrouped, watched by a monitor.
class ProjectExplorerStateMonitorTest : public ExplorerTest
{
protected:
    ProjectExplorerStateMonitorTest()
    {
        project.addEntity(EntityCollection::WindowStyles, L"W1");
        std::vector<std::unique_ptr<aec::IProjectExplorerGroup>> groups;
        groups.push_back(makeGroup(L"Door styles"));
        groups.push_back(makeGroup(L"Window styles", false));
        explorer = explorerOf(std::move(groups));
        monitor = std::make_unique<CProjectExplorerStateMonitor>(*explorer);
        stateChanged = std::make_unique<CSignalCounter>(monitor->stateChangedSignal());
    }

    aec::IProjectExplorerGroup& doors() { return named(explorer->getGroups(), L"Door styles"); }
    const aec::ProjectExplorerGroupState& doorState() const { return monitor->getGroupStates().at(groupInfo(L"Door styles").id); }
    static common::UUID subgroupId(std::wstring_view name) { return common::makeNameBasedUuid(groupInfo(L"Door styles").id, name); }

    aec::TopicId fire = project.addTopic(L"Fire");
    aec::TopicId sound = project.addTopic(L"Sound");
    aec::EntityId fireDoor = project.addEntity(EntityCollection::DoorStyles, L"D30", fire);
    aec::EntityId soundDoor = project.addEntity(EntityCollection::DoorStyles, L"D-acoustic", sound);
    std::unique_ptr<aec::IProjectExplorer> explorer;
    std::unique_ptr<CProjectExplorerStateMonitor> monitor;
    std::unique_ptr<CSignalCounter> stateChanged;
};

TEST_F(ProjectExplorerStateMonitorTest, RecordsEveryGroupAtOnceAndEachFoldWithOneSignal)
{
    EXPECT_EQ(monitor->getGroupStates().size(), 2u);
    EXPECT_EQ(doorState().sortOrder, 1u);
    EXPECT_EQ(doorState().groupingPath, aec::PropertyAssignmentKey::topic().getPath());
    EXPECT_EQ(doorState().groupingProperty, aec::PropertyAssignmentKey::topic().getProperty());
    EXPECT_EQ(doorState().subgroupExpanded, (SubgroupStates{{subgroupId(L"Fire"), false}, {subgroupId(L"Sound"), false}}));
    EXPECT_EQ(monitor->getGroupStates().at(groupInfo(L"Window styles").id).groupingProperty,
              aec::PropertyAssignmentKey::noGrouping().getProperty());

    doors().setExpanded(true);
    doors().setExpanded(true);
    named(doors().getSubgroups(), L"Sound").setExpanded(true);
    EXPECT_TRUE(doorState().expanded);
    EXPECT_TRUE(doorState().subgroupExpanded.at(subgroupId(L"Sound")));
    EXPECT_EQ(stateChanged->count(), 2);
    EXPECT_TRUE(CProjectExplorerStateMonitor(*explorerOf({})).getGroupStates().empty());
}

TEST_F(ProjectExplorerStateMonitorTest, RebuildKeepsOneEntryPerSubgroupAndWatchesKeptOnesOnce)
{
    const aec::TopicId smoke = project.addTopic(L"Smoke");
    project.setEntityTopic(soundDoor, smoke);
    doors().rebuild();
    EXPECT_EQ(stateChanged->count(), 1);
    EXPECT_EQ(doorState().subgroupExpanded, (SubgroupStates{{subgroupId(L"Fire"), false}, {subgroupId(L"Smoke"), false}}));

    // The kept subgroup and the new one are both watched, each once, under their own names.
    named(doors().getSubgroups(), L"Fire").setExpanded(true);
    EXPECT_EQ(stateChanged->count(), 2);
    named(doors().getSubgroups(), L"Smoke").setExpanded(true);
    EXPECT_EQ(stateChanged->count(), 3);
    EXPECT_EQ(doorState().subgroupExpanded,
              (SubgroupStates{{subgroupId(L"Fire"), true}, {subgroupId(L"Smoke"), true}}));
    named(doors().getSubgroups(), L"Smoke").setExpanded(false);

    // Entities moving between kept subgroups are no part of the record; a new sort order is.
    project.setEntityTopic(soundDoor, fire);
    project.addEntity(EntityCollection::DoorStyles, L"D31", smoke);
    doors().rebuild();
    EXPECT_EQ(stateChanged->count(), 4);
    doors().getGroupingModel().setSortOrder(aec::IProjectExplorerGroupingModel::descending);
    EXPECT_EQ(doorState().sortOrder, 2u);
    EXPECT_EQ(stateChanged->count(), 5);
}

TEST_F(ProjectExplorerStateMonitorTest, RecordingAGroupOrASubgroupTwiceBreaksTheInvariant)
{
    std::vector<std::unique_ptr<aec::IProjectExplorerGroup>> twins;
    twins.push_back(makeGroup(L"Door styles"));
    twins.push_back(makeGroup(L"Door styles"));
    const auto twinGroups = explorerOf(std::move(twins));

    CScriptedGroupMaker scripted;
    scripted.subgroups = {{L"Fire", {fireDoor}}, {L"Fire", {soundDoor}}};
    const common::UUID doorsId = groupInfo(L"Door styles").id;
    std::vector<std::unique_ptr<aec::IProjectExplorerGroup>> groups;
    groups.push_back(std::make_unique<CProjectExplorerGroup>(
        doorsId, L"Doors", groupingModelFactory.createGroupingModel(doorsId, {}, project, catalog), scripted, entityProvider));
    const auto twinSubgroups = explorerOf(std::move(groups));

    const std::string groupSite = violationSite<common::EClassInvariantViolation>([&] { CProjectExplorerStateMonitor m(*twinGroups); });
    const std::string subgroupSite = violationSite<common::EClassInvariantViolation>([&] { CProjectExplorerStateMonitor m(*twinSubgroups); });
    EXPECT_EQ(siteFile(groupSite), "ProjectExplorerLib/ProjectExplorerLib/ProjectExplorerStateMonitor.cpp");
    EXPECT_EQ(siteFile(subgroupSite), siteFile(groupSite));
    EXPECT_NE(subgroupSite, groupSite);
}

} // namespace
} // namespace project_explorer::test
