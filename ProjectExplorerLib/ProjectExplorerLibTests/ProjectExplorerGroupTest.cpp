#include "ExplorerTest.h"
#include "ViolationSite.h"

#include "Common/AssertionViolation.h"
#include "Common/Exception.h"

namespace project_explorer::test
{
namespace
{

using aec::EntityCollection;
using aec::EntityIdSet;

// Sheets under the topics "Level 1" and "Level 2", and one without a topic, grouped by topic.
class ProjectExplorerGroupTest : public ExplorerTest
{
protected:
    const std::wstring noTopic{aec::model::CAttributeValueFormatter::absentText};
    aec::TopicId level1 = project.addTopic(L"Level 1");
    aec::TopicId level2 = project.addTopic(L"Level 2");
    aec::EntityId sheet1 = project.addEntity(EntityCollection::Sheets, L"Plan 1", level1);
    aec::EntityId sheet2 = project.addEntity(EntityCollection::Sheets, L"Plan 2", level2);
    aec::EntityId cover = project.addEntity(EntityCollection::Sheets, L"Cover");
    std::unique_ptr<CProjectExplorerGroup> group = makeGroup(L"Sheets");
    CSignalCounter subgroupsChanged{group->subgroupsChangedSignal()};
};

TEST_F(ProjectExplorerGroupTest, KeptSubgroupKeepsIdentityFoldStateAndConnectionsAndReportsExactChanges)
{
    ASSERT_EQ(subgroupNames(*group), (std::vector<std::wstring>{noTopic, L"Level 1", L"Level 2"}));
    aec::IProjectExplorerSubgroup& kept = named(group->getSubgroups(), L"Level 1");
    kept.setExpanded(true);
    std::vector<aec::EntityChangeset> changes;
    boost::signals2::scoped_connection connection =
        kept.entitiesChangedSignal().connect([&changes](const aec::EntityChangeset& change) { changes.push_back(change); });

    project.setEntityTopic(sheet2, level1); // empties "Level 2"
    const aec::EntityId sheet3 = project.addEntity(EntityCollection::Sheets, L"Plan 3", level1);
    project.setEntityTopic(sheet1, std::nullopt);
    group->rebuild();

    EXPECT_EQ(subgroupNames(*group), (std::vector<std::wstring>{noTopic, L"Level 1"}));
    EXPECT_EQ(&named(group->getSubgroups(), L"Level 1"), &kept);
    EXPECT_TRUE(kept.isExpanded());
    ASSERT_EQ(changes.size(), 1u);
    EXPECT_EQ(changes[0].getAdded(), (EntityIdSet{sheet2, sheet3}));
    EXPECT_TRUE(changes[0].getChanged().empty());
    EXPECT_EQ(changes[0].getRemoved(), EntityIdSet{sheet1});
    EXPECT_EQ(subgroupsChanged.count(), 1);
}

TEST_F(ProjectExplorerGroupTest, RebuildWithSameContentOrOnlyANewOrderSignalsNothing)
{
    const auto before = addressesOf(group->getSubgroups());
    int entityChanges = 0;
    std::vector<boost::signals2::scoped_connection> connections;
    for (aec::IProjectExplorerSubgroup& subgroup : group->getSubgroups())
        connections.emplace_back(subgroup.entitiesChangedSignal().connect([&](const aec::EntityChangeset&) { ++entityChanges; }));

    group->rebuild();
    group->getGroupingModel().setSortOrder(aec::IProjectExplorerGroupingModel::descending);

    EXPECT_EQ(subgroupNames(*group), (std::vector<std::wstring>{L"Level 2", L"Level 1", noTopic}));
    EXPECT_EQ(addressesOf(group->getSubgroups()), decltype(before)(before.rbegin(), before.rend()));
    EXPECT_EQ(subgroupsChanged.count(), 0);
    EXPECT_EQ(entityChanges, 0);
}

TEST_F(ProjectExplorerGroupTest, MadeOrDestroyedSubgroupsSignalOncePerRebuild)
{
    project.addEntity(EntityCollection::Sheets, L"Plan 3", project.addTopic(L"Level 3"));
    group->rebuild();
    EXPECT_EQ(subgroupsChanged.count(), 1);
    EXPECT_FALSE(named(group->getSubgroups(), L"Level 3").isExpanded());

    group->getGroupingModel().setGroupingKey(aec::PropertyAssignmentKey::noGrouping());
    EXPECT_EQ(subgroupsChanged.count(), 2);
    EXPECT_EQ(subgroupNames(*group), std::vector<std::wstring>{L""});

    for (const aec::EntityId& sheet : entitiesOf(named(group->getSubgroups(), L"")))
        project.removeEntity(sheet);
    group->rebuild();
    group->rebuild();
    EXPECT_TRUE(subgroupNames(*group).empty());
    EXPECT_EQ(subgroupsChanged.count(), 3);
}

TEST_F(ProjectExplorerGroupTest, FailedRebuildLeavesNoSubgroupAndSaysSo)
{
    sessions.setCurrentProject(nullptr);

    EXPECT_THROW(group->rebuild(), common::EException);
    EXPECT_TRUE(subgroupNames(*group).empty());
    EXPECT_EQ(subgroupsChanged.count(), 1);
}

TEST_F(ProjectExplorerGroupTest, UnfoldedFlagSignalsOnlyRealChangesAndAModelIsRequired)
{
    aec::IProjectExplorerSubgroup& subgroup = named(group->getSubgroups(), L"Level 2");
    CSignalCounter groupFolds(group->expandedChangedSignal());
    CSignalCounter subgroupFolds(subgroup.expandedChangedSignal());
    for (bool expanded : {true, true, false})
    {
        group->setExpanded(expanded);
        subgroup.setExpanded(expanded);
    }
    EXPECT_EQ(groupFolds.count(), 2);
    EXPECT_EQ(subgroupFolds.count(), 2);

    const std::string site = violationSite<common::EPreconditionViolation>(
        [this] { CProjectExplorerGroup(group->getId(), L"Sheets", nullptr, groupMaker, entityProvider); });
    EXPECT_EQ(siteFile(site), "ProjectExplorerLib/ProjectExplorerLib/ProjectExplorerGroup.cpp");
}

} // namespace
} // namespace project_explorer::test
