#include "ExplorerTest.h"

#include "ProjectExplorerLib/ProjectExplorerExports.h"
#include "ProjectExplorerLib/ProjectExplorerPreferencesUpdatingDecorator.h"


#include "aec/ProjectExplorerEntitySelection.h"

#include "Common/NameBasedUuid.h"
#include "Common/SequentialUuidProvider.h"

namespace project_explorer::test
{
namespace
{

using aec::EntityCollection;
using aec::PropertyAssignmentKey;

aec::ProjectExplorerGroupState storedGrouping(const PropertyAssignmentKey& key, int sortOrder, bool expanded)
{
    return {static_cast<std::uint32_t>(sortOrder), key.getPath(), key.getProperty(), {}, expanded};
}

class ProjectExplorerFactoryTest : public ExplorerTest
{
protected:
    aec::TopicId level1 = project.addTopic(L"Level 1");
    aec::EntityId plan1 = project.addEntity(EntityCollection::Sheets, L"Plan 1", level1);
    aec::EntityId plan2 = project.addEntity(EntityCollection::Sheets, L"Plan 2", project.addTopic(L"Level 2"));
};

TEST_F(ProjectExplorerFactoryTest, MakesTheTenGroupsBehindBothDecorators)
{
    const auto explorer = makeExplorer();
    ASSERT_NE(dynamic_cast<CProjectExplorerPreferencesUpdatingDecorator*>(explorer.get()), nullptr);

    auto info = aec::projectExplorerGroups().begin();
    for (const aec::IProjectExplorerGroup& group : std::as_const(*explorer).getGroups())
    {
        ASSERT_NE(info, aec::projectExplorerGroups().end());
        EXPECT_EQ(group.getId(), info->id);
        EXPECT_EQ(group.getName(), info->name);
        EXPECT_EQ(group.getGroupingModel().isGroupingKeyAvailable(PropertyAssignmentKey::topic()), info->groupable);
        EXPECT_EQ(group.getGroupingModel().getGroupingKey(), PropertyAssignmentKey::noGrouping());
        ++info;
    }
    EXPECT_EQ(info, aec::projectExplorerGroups().end());

    // Inside, selecting unfolds; outside, the change is stored.
    explorer->getEntitySelection().setSelection({plan1});
    const common::UUID sheets = groupInfo(L"Sheets").id;
    EXPECT_TRUE(named(explorer->getGroups(), L"Sheets").isExpanded());
    EXPECT_TRUE(project.getPreferences().getProjectExplorerState().value().at(sheets).expanded);
}

TEST_F(ProjectExplorerFactoryTest, TwoExplorersShareNothing)
{
    const auto first = makeExplorer();
    const auto second = makeExplorer();
    EXPECT_NE(&first->getEntitySelection(), &second->getEntitySelection());

    first->getEntitySelection().setSelection({plan1});
    named(first->getGroups(), L"Images").setExpanded(true);
    named(first->getGroups(), L"Sheets").getGroupingModel().setGroupingKey(PropertyAssignmentKey::topic());

    EXPECT_TRUE(second->getEntitySelection().getSelection().empty());
    EXPECT_FALSE(named(second->getGroups(), L"Images").isExpanded());
    EXPECT_FALSE(named(second->getGroups(), L"Sheets").isExpanded());
    EXPECT_EQ(subgroupNames(named(second->getGroups(), L"Sheets")), std::vector<std::wstring>{L""});
}

TEST_F(ProjectExplorerFactoryTest, RestoresStoredStateAndSkipsWhatNoLongerApplies)
{
    const common::UUID sheetsId = groupInfo(L"Sheets").id;
    aec::ProjectExplorerState stored;
    stored[sheetsId] = storedGrouping(PropertyAssignmentKey::topic(), 2, true);
    // The one unfolded subgroup comes last in the list, so a search that stops early misses it.
    stored[sheetsId].subgroupExpanded = {{common::makeNameBasedUuid(sheetsId, L"Level 1"), true},
                                         {common::makeNameBasedUuid(sheetsId, L"Level 2"), false},
                                         {common::makeNameBasedUuid(sheetsId, L"Level 9"), false}};
    // Images cannot be grouped by topic: only its key is skipped.
    stored[groupInfo(L"Images").id] = storedGrouping(PropertyAssignmentKey::topic(), 2, true);
    stored[common::makeNameBasedUuid(sheetsId, L"no group")] = storedGrouping(PropertyAssignmentKey::topic(), 1, true);
    project.getPreferences().setProjectExplorerState(stored);

    const auto explorer = makeExplorer();

    aec::IProjectExplorerGroup& sheets = named(explorer->getGroups(), L"Sheets");
    EXPECT_EQ(subgroupNames(sheets), (std::vector<std::wstring>{L"Level 2", L"Level 1"}));
    EXPECT_TRUE(sheets.isExpanded());
    EXPECT_FALSE(named(sheets.getSubgroups(), L"Level 2").isExpanded());
    EXPECT_TRUE(named(sheets.getSubgroups(), L"Level 1").isExpanded());
    aec::IProjectExplorerGroup& images = named(explorer->getGroups(), L"Images");
    EXPECT_EQ(images.getGroupingModel().getGroupingKey(), PropertyAssignmentKey::noGrouping());
    EXPECT_EQ(images.getGroupingModel().getSortOrder(), 2);
    EXPECT_TRUE(images.isExpanded());

    // Without topics in the project the stored key is not available either.
    aec::model::CProject bare;
    bare.addEntity(EntityCollection::Sheets, L"Plan");
    sessions.setCurrentProject(&bare);
    const auto bareExplorer = explorerFactory.createProjectExplorer(project.getPreferences(), bare, catalog);
    EXPECT_EQ(subgroupNames(named(bareExplorer->getGroups(), L"Sheets")), std::vector<std::wstring>{L""});
}

TEST(ProjectExplorerEntryPointTest, LaterUuidProviderReplacesAndReleasesTheEarlierOne)
{
    auto first = std::make_shared<common::CSequentialUuidProvider>(7);
    const std::weak_ptr<common::CSequentialUuidProvider> installed = first;
    setUuidProvider(std::move(first));
    setUuidProvider(std::make_shared<common::CSequentialUuidProvider>(8));

    EXPECT_TRUE(installed.expired());
    EXPECT_EQ(common::UUID::generate(), common::CSequentialUuidProvider(8).generate(""));
    setUuidProvider(nullptr);
}

} // namespace
} // namespace project_explorer::test
