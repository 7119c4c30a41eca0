#include "Common/AssertionViolation.h"
#include "Common/Exception.h"
#include "ExplorerTest.h"
#include "ProjectExplorerLib/ProjectExplorer.h"
#include "ProjectExplorerLib/ProjectExplorerAutoUnfoldingDecorator.h"
#include "ProjectExplorerLib/ProjectExplorerEntitySelection.h"
#include "ProjectExplorerLib/ProjectExplorerPreferencesUpdatingDecorator.h"
#include "ViolationSite.h"
#include "aec/ProjectPreferences.h"

#include <algorithm>
#include <string>
#include <utility>

namespace project_explorer::test
{
namespace
{

using aec::EntityCollection;

// Keeps every state it is given: how often the preferences are written shows nowhere else.
class CRecordingPreferences : public aec::IProjectPreferences
{
public:
    std::vector<aec::ProjectExplorerState> written;
    // The next write fails, as the host's may.
    bool failNextWrite = false;
    std::optional<aec::ProjectExplorerState> getProjectExplorerState() const override { return std::nullopt; }
    void setProjectExplorerState(const aec::ProjectExplorerState& state) override
    {
        if (std::exchange(failNextWrite, false))
            throw common::EException("the preferences cannot be written");
        written.push_back(state);
    }
};

// Sheets under the topics North and South and an ungrouped table, behind the auto-unfolding decorator.
class ProjectExplorerDecoratorTest : public ExplorerTest
{
protected:
    ProjectExplorerDecoratorTest()
    {
        std::vector<std::unique_ptr<aec::IProjectExplorerGroup>> groups;
        groups.push_back(makeGroup(L"Sheets"));
        groups.push_back(makeGroup(L"Tables"));
        auto plain = std::make_unique<CProjectExplorer>(std::move(groups), std::make_unique<CProjectExplorerEntitySelection>());
        inner = plain.get();
        unfolding = std::make_unique<CProjectExplorerAutoUnfoldingDecorator>(std::move(plain));
    }

    aec::IProjectExplorerGroup& sheets() { return named(unfolding->getGroups(), L"Sheets"); }
    aec::IProjectExplorerSubgroup& sheetsIn(std::wstring_view topic) { return named(sheets().getSubgroups(), topic); }
    aec::IProjectExplorerGroup& tables() { return named(unfolding->getGroups(), L"Tables"); }
    void select(const aec::EntityIdSet& entities) { unfolding->getEntitySelection().setSelection(entities); }

    aec::TopicId north = project.addTopic(L"North");
    aec::TopicId south = project.addTopic(L"South");
    aec::EntityId northSheet = project.addEntity(EntityCollection::Sheets, L"N1", north);
    aec::EntityId southSheet = project.addEntity(EntityCollection::Sheets, L"S1", south);
    aec::EntityId table = project.addEntity(EntityCollection::Tables, L"Door schedule");
    const aec::IProjectExplorer* inner = nullptr;
    std::unique_ptr<aec::IProjectExplorer> unfolding;
};

TEST_F(ProjectExplorerDecoratorTest, DecoratorShowsTheSameGroupsAndSelectionAndNeedsAnExplorer)
{
    EXPECT_EQ(addressesOf(unfolding->getGroups()), addressesOf(inner->getGroups()));
    EXPECT_EQ(addressesOf(std::as_const(*unfolding).getGroups()), addressesOf(inner->getGroups()));
    EXPECT_EQ(&unfolding->getEntitySelection(), &inner->getEntitySelection());
    EXPECT_EQ(&std::as_const(*unfolding).getEntitySelection(), &inner->getEntitySelection());

    const std::string site = violationSite<common::EPreconditionViolation>([] { CProjectExplorerAutoUnfoldingDecorator(nullptr); });
    EXPECT_EQ(siteFile(site), "ProjectExplorerLib/ProjectExplorerLib/ProjectExplorerBaseDecorator.cpp");
}

TEST_F(ProjectExplorerDecoratorTest, NewlySelectedEntitiesUnfoldTheirHoldersOnly)
{
    select({southSheet});
    EXPECT_TRUE(sheets().isExpanded());
    EXPECT_TRUE(sheetsIn(L"South").isExpanded());
    EXPECT_FALSE(sheetsIn(L"North").isExpanded());
    EXPECT_FALSE(tables().isExpanded());

    sheetsIn(L"South").setExpanded(false);
    select({southSheet, table});
    EXPECT_FALSE(sheetsIn(L"South").isExpanded());
    EXPECT_TRUE(tables().isExpanded());

    // An entity moved between kept subgroups is looked for where it is now.
    project.addEntity(EntityCollection::Sheets, L"N2", north);
    project.setEntityTopic(northSheet, south);
    sheets().rebuild();
    select({northSheet});
    EXPECT_TRUE(sheetsIn(L"South").isExpanded());
    EXPECT_FALSE(sheetsIn(L"North").isExpanded());
}

TEST_F(ProjectExplorerDecoratorTest, RebuiltSubgroupsThatReceiveSelectedEntitiesUnfold)
{
    select({southSheet});
    sheets().setExpanded(false);
    sheetsIn(L"South").setExpanded(false);
    project.addEntity(EntityCollection::Sheets, L"E1", project.addTopic(L"East"));
    sheets().rebuild();
    EXPECT_FALSE(sheetsIn(L"East").isExpanded());
    EXPECT_FALSE(sheetsIn(L"South").isExpanded()) << "what the user folded stays folded";

    sheets().getGroupingModel().setGroupingKey(aec::PropertyAssignmentKey::noGrouping());
    EXPECT_TRUE(sheetsIn(L"").isExpanded());
    EXPECT_TRUE(sheets().isExpanded());

    sheets().getGroupingModel().setGroupingKey(aec::PropertyAssignmentKey::topic());
    sheetsIn(L"South").setExpanded(false);
    project.setEntityTopic(southSheet, north); // into the new, folded "North"
    sheets().rebuild();
    EXPECT_TRUE(sheetsIn(L"North").isExpanded());
}

TEST_F(ProjectExplorerDecoratorTest, PreferencesReceiveTheStateOncePerChange)
{
    CRecordingPreferences preferences;
    CProjectExplorerPreferencesUpdatingDecorator updating(std::move(unfolding), preferences);
    aec::IProjectExplorerGroup& group = named(updating.getGroups(), L"Sheets");

    group.setExpanded(false);
    group.setExpanded(true);
    named(group.getSubgroups(), L"North").setExpanded(true);
    group.setExpanded(false);

    ASSERT_EQ(preferences.written.size(), 3u);
    EXPECT_TRUE(preferences.written[0].at(group.getId()).expanded);
    EXPECT_FALSE(preferences.written[2].at(group.getId()).expanded);
    EXPECT_EQ(preferences.written[2].size(), 2u);
}

// Selecting may unfold a great many subgroups at once; each unfold is a change of the state, but the
// preferences receive the state once, complete, when the selection change is done.
TEST_F(ProjectExplorerDecoratorTest, UnfoldsThatFollowOneSelectionReachThePreferencesInOneWrite)
{
    aec::EntityIdSet selected{northSheet, southSheet};
    for (int zone = 1; zone <= 12; ++zone)
        selected.insert(project.addEntity(EntityCollection::Sheets, L"Z" + std::to_wstring(zone),
                                          project.addTopic(L"Zone " + std::to_wstring(zone))));
    sheets().rebuild();
    CRecordingPreferences preferences;
    CProjectExplorerPreferencesUpdatingDecorator updating(std::move(unfolding), preferences);
    aec::IProjectExplorerGroup& group = named(updating.getGroups(), L"Sheets");

    updating.getEntitySelection().setSelection(selected);

    ASSERT_EQ(preferences.written.size(), 1u) << "one write for the group and its fourteen subgroups";
    const aec::ProjectExplorerGroupState& state = preferences.written.back().at(group.getId());
    EXPECT_TRUE(state.expanded);
    ASSERT_EQ(state.subgroupExpanded.size(), 14u);
    EXPECT_TRUE(std::ranges::all_of(state.subgroupExpanded, [](const auto& subgroup) { return subgroup.second; }));

    // Afterwards a change on its own is written at once again.
    named(group.getSubgroups(), L"North").setExpanded(false);
    EXPECT_EQ(preferences.written.size(), 2u);
    group.getGroupingModel().setGroupingKey(aec::PropertyAssignmentKey::noGrouping());
    EXPECT_TRUE(preferences.written.back().at(group.getId()).subgroupExpanded.begin()->second)
        << "the new subgroup of selected sheets is written unfolded";
}

// A panel that fails on an unfold ends the selection change part-way; the unfolds made up to then
// are written, and later changes are written at once again.
TEST_F(ProjectExplorerDecoratorTest, AListenerThatFailsDuringUnfoldsHoldsNoWriteBack)
{
    CRecordingPreferences preferences;
    CProjectExplorerPreferencesUpdatingDecorator updating(std::move(unfolding), preferences);
    aec::IProjectExplorerGroup& group = named(updating.getGroups(), L"Sheets");
    boost::signals2::scoped_connection failingPanel =
        named(group.getSubgroups(), L"North")
            .expandedChangedSignal()
            .connect([] { throw common::EException("the panel cannot show the unfold"); });

    EXPECT_THROW(updating.getEntitySelection().setSelection({northSheet}), common::EException);
    failingPanel.disconnect();
    ASSERT_EQ(preferences.written.size(), 1u) << "the unfold made before the failure";
    EXPECT_TRUE(std::ranges::any_of(preferences.written.back().at(group.getId()).subgroupExpanded,
                                    [](const auto& subgroup) { return subgroup.second; }));

    const bool expanded = group.isExpanded();
    group.setExpanded(!expanded);
    ASSERT_EQ(preferences.written.size(), 2u);
    EXPECT_EQ(preferences.written.back().at(group.getId()).expanded, !expanded);
}

// A write that the preferences refuse is made again with the next change or, at the latest, as the
// decorator goes, so that the project is saved with the state the user left.
TEST_F(ProjectExplorerDecoratorTest, AStateThePreferencesRefusedReachesThemBeforeTheDecoratorGoes)
{
    CRecordingPreferences preferences;
    common::UUID sheetsId;
    bool folded = false;
    {
        CProjectExplorerPreferencesUpdatingDecorator updating(std::move(unfolding), preferences);
        aec::IProjectExplorerGroup& group = named(updating.getGroups(), L"Sheets");
        sheetsId = group.getId();
        folded = !group.isExpanded();
        preferences.failNextWrite = true;
        EXPECT_THROW(group.setExpanded(folded), common::EException);
        EXPECT_TRUE(preferences.written.empty());
    }
    ASSERT_EQ(preferences.written.size(), 1u);
    EXPECT_EQ(preferences.written.back().at(sheetsId).expanded, folded);
}

} // namespace
} // namespace project_explorer::test
