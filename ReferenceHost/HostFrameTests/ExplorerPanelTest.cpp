#include "HostFrame/ExplorerPanel.h"

#include "AecModel/AttributeValueFormatter.h"
#include "AecModel/Project.h"
#include "AecModel/PropertyCatalog.h"
#include "AecModel/SampleProject.h"
#include "AecModel/SessionManager.h"
#include "Common/AssertionViolation.h"
#include "ProjectExplorerLib/ProjectExplorerExports.h"
#include "aec/ObjectEvents.h"
#include "aec/ProjectExplorer.h"
#include "aec/ProjectExplorerEntityProvider.h"
#include "aec/ProjectExplorerEntitySelection.h"
#include "aec/ProjectExplorerFactory.h"
#include "aec/ProjectExplorerGroup.h"
#include "aec/ProjectExplorerGroupMaker.h"
#include "aec/ProjectExplorerGroupingModel.h"
#include "aec/ProjectExplorerGroupingModelFactory.h"
#include "aec/ProjectExplorerGuiEventHandler.h"
#include "aec/ProjectExplorerSubgroup.h"
#include "aec/PropertyAssignmentKey.h"
#include "aec/Transaction.h"
#include "aec/TransactionHost.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace aec::host
{
namespace
{

using ::testing::Contains;
using ::testing::Not;

// Hands the project's object events to the panel, as the explorer's view does, for as long as it
// lives.
class CObjectEventForwarder final : public IObjectEvents
{
public:
    CObjectEventForwarder(common::CObservable<IObjectEvents>& source, CExplorerPanel& panel)
        : source_(source), panel_(panel)
    {
        source_.addObserver(*this);
    }
    ~CObjectEventForwarder() override { source_.removeObserver(*this); }
    CObjectEventForwarder(const CObjectEventForwarder&) = delete;
    CObjectEventForwarder& operator=(const CObjectEventForwarder&) = delete;

    void onProjectOpened() override {}
    void onObjectsChanged(std::uint32_t code, std::uint32_t value, const EntityIdSet& changed,
                          const EntityIdSet& removed) override
    {
        panel_.onObjectsChanged(code, value, changed, removed);
    }
    void onProjectClosing() override {}

private:
    common::CObservable<IObjectEvents>& source_;
    CExplorerPanel& panel_;
};

// A panel showing the real explorer of the sample project, with its real event handler. The
// panel hears of the project's changes only once `listen` was called, so that changes made before
// show which groups a later event rebuilds.
class ExplorerPanelTest : public ::testing::Test
{
protected:
    ExplorerPanelTest()
    {
        sessionManager.setCurrentProject(project.get());
        explorer = explorerFactory->createProjectExplorer(project->getPreferences(), *project, catalog);
        panel.attachExplorer(*explorer);
        panel.setGuiEventHandler(eventHandlerFactory->createHandler(*explorer));
        panel.treeChangedSignal().connect([this] { ++treeChanges; });
    }
    ~ExplorerPanelTest() override
    {
        forwarder.reset();
        panel.detachExplorer();
        explorer.reset();
        sessionManager.setCurrentProject(nullptr);
    }

    void listen() { forwarder = std::make_unique<CObjectEventForwarder>(project->getObjectEvents(), panel); }

    IProjectExplorerGroup& group(const std::wstring& name)
    {
        for (IProjectExplorerGroup& candidate : explorer->getGroups())
            if (candidate.getName() == name)
                return candidate;
        throw std::invalid_argument("no such group");
    }

    // Every entity the group shows, in any subgroup.
    EntityIdSet shown(const std::wstring& groupName)
    {
        EntityIdSet entities;
        for (const IProjectExplorerSubgroup& subgroup : group(groupName).getSubgroups())
            entities.insert(subgroup.getEntities().begin(), subgroup.getEntities().end());
        return entities;
    }

    std::vector<std::wstring> subgroupNames(const std::wstring& groupName)
    {
        std::vector<std::wstring> names;
        for (const IProjectExplorerSubgroup& subgroup : group(groupName).getSubgroups())
            names.push_back(subgroup.getName());
        return names;
    }

    void renameInTransaction(const EntityId& entity, const std::wstring& name)
    {
        auto transaction = project->getTransactionHost().openTransaction("Rename");
        project->renameEntity(entity, name);
        transaction->commit();
    }

    std::unique_ptr<model::CProject> project = model::buildSampleProject();
    model::CSessionManager sessionManager;
    model::CAttributeValueFormatter formatter{sessionManager};
    model::CPropertyCatalog catalog;
    std::unique_ptr<IProjectExplorerGroupingModelFactory> groupingModelFactory =
        project_explorer::createGroupingModelFactory();
    std::unique_ptr<IProjectExplorerGroupMaker> groupMaker =
        project_explorer::createGroupMaker(formatter, sessionManager);
    std::unique_ptr<IProjectExplorerEntityProvider> entityProvider =
        project_explorer::createProjectExplorerEntityProvider(sessionManager);
    std::unique_ptr<IProjectExplorerFactory> explorerFactory =
        project_explorer::createProjectExplorerFactory(*groupingModelFactory, *groupMaker, *entityProvider);
    std::unique_ptr<IProjectExplorerGuiEventHandlerFactory> eventHandlerFactory =
        project_explorer::createProjectExplorerGuiEventHandlerFactory();
    std::unique_ptr<IProjectExplorer> explorer;
    CExplorerPanel panel;
    std::unique_ptr<CObjectEventForwarder> forwarder;
    int treeChanges = 0;
};

TEST_F(ExplorerPanelTest, AnEventRebuildsExactlyTheGroupsOfTheTouchedCollections)
{
    const EntityId unseenSheet = project->addEntity(EntityCollection::Sheets, L"Sheet X-1");
    const EntityId unseenTable = project->addEntity(EntityCollection::Tables, L"Table X-1");
    const EntityId sheet = project->getEntities(EntityCollection::Sheets).front();
    const EntityId unseenImage = project->addEntity(EntityCollection::Images, L"Photo");
    const EntityId table = project->getEntities(EntityCollection::Tables).front();
    listen();
    ASSERT_THAT(shown(L"Sheets"), Not(Contains(unseenSheet)));

    renameInTransaction(sheet, L"Sheet renamed");
    EXPECT_THAT(shown(L"Sheets"), Contains(unseenSheet)) << "a change of a sheet rebuilds the sheets";
    EXPECT_THAT(shown(L"Tables"), Not(Contains(unseenTable))) << "but no other group";
    EXPECT_EQ(treeChanges, 1);

    renameInTransaction(table, L"Table renamed");
    EXPECT_THAT(shown(L"Tables"), Contains(unseenTable));
    EXPECT_EQ(treeChanges, 2);

    // Events of other codes, and a mask of no collection read as "all" (a sender that cannot tell).
    panel.onObjectsChanged(objectEventEntitiesChanged + 1, allEntityCollections, {unseenImage}, {});
    EXPECT_THAT(shown(L"Images"), Not(Contains(unseenImage)));
    panel.onObjectsChanged(objectEventEntitiesChanged, 0, {unseenImage}, {});
    EXPECT_THAT(shown(L"Images"), Contains(unseenImage));
}

TEST_F(ExplorerPanelTest, TopicChangesRebuildTheGroupsGroupedByTopic)
{
    group(L"Sheets").getGroupingModel().setGroupingKey(PropertyAssignmentKey::topic());
    const TopicId topic = project->getProjectTopics().front().getId();
    const std::wstring topicName = project->getProjectTopics().front().getName();
    ASSERT_THAT(subgroupNames(L"Sheets"), Contains(topicName));
    const EntityId unseenSheet = project->addEntity(EntityCollection::Sheets, L"Sheet X-1");
    const EntityId unseenTable = project->addEntity(EntityCollection::Tables, L"Table X-1");
    listen();

    renameInTransaction(EntityId(topic.uuid()), L"Renamed topic");
    EXPECT_THAT(subgroupNames(L"Sheets"), Contains(L"Renamed topic"));
    EXPECT_THAT(subgroupNames(L"Sheets"), Not(Contains(topicName)));
    EXPECT_THAT(shown(L"Sheets"), Contains(unseenSheet));
    EXPECT_THAT(shown(L"Tables"), Not(Contains(unseenTable))) << "the tables are not grouped by topic";
}

TEST_F(ExplorerPanelTest, RemovedEntitiesLeaveTheSelection)
{
    listen();
    const EntityIdList sheets = project->getEntities(EntityCollection::Sheets);
    panel.changeSelection({sheets[0], sheets[1], sheets[2]}, {});
    panel.changeSelection({}, {sheets[2]});
    const int changesBefore = treeChanges;

    {
        auto transaction = project->getTransactionHost().openTransaction("Remove");
        project->removeEntity(sheets[0]);
        project->removeEntity(sheets[2]);
        transaction->commit();
    }
    EXPECT_EQ(explorer->getEntitySelection().getSelection(), EntityIdSet{sheets[1]});
    EXPECT_THAT(shown(L"Sheets"), Not(Contains(sheets[0])));
    EXPECT_EQ(treeChanges, changesBefore + 1) << "one event, one change of the tree";

    project->getUndoHistory().undo();
    EXPECT_THAT(shown(L"Sheets"), Contains(sheets[0]));
    EXPECT_EQ(explorer->getEntitySelection().getSelection(), EntityIdSet{sheets[1]})
        << "entities that come back are not selected again";
}

TEST_F(ExplorerPanelTest, TheTreeChangesOnceForEachOperationAndOnOutsideChanges)
{
    int userInputs = 0;
    panel.userInputStartedSignal().connect([&userInputs] { ++userInputs; });

    panel.toggleGroup(0);
    EXPECT_TRUE(explorer->getGroups().begin()->isExpanded());
    panel.toggleSubgroup(0, 0);
    // Selecting an entity of a folded group unfolds it: one tree change still.
    const EntityId table = project->getEntities(EntityCollection::Tables).front();
    panel.changeSelection({table}, {});
    EXPECT_TRUE(group(L"Tables").isExpanded());
    EXPECT_EQ(treeChanges, 3);
    EXPECT_EQ(userInputs, 3);

    // A grouping chosen elsewhere (a grouping button) changes the tree too.
    group(L"Sheets").getGroupingModel().setSortOrder(IProjectExplorerGroupingModel::descending);
    EXPECT_EQ(treeChanges, 4);

    EXPECT_THROW(panel.toggleGroup(-1), common::EPreconditionViolation);
    EXPECT_EQ(treeChanges, 5) << "a failed operation still says the tree may have changed";

    std::vector<EntityId> renames;
    panel.renameRequestedSignal().connect([&renames](const EntityId& entity) { renames.push_back(entity); });
    panel.startRename(table);
    EXPECT_EQ(renames, std::vector<EntityId>{table});

    panel.detachExplorer();
    EXPECT_FALSE(panel.hasExplorer());
    EXPECT_EQ(treeChanges, 6);
    explorer->getGroups().begin()->setExpanded(false);
    EXPECT_EQ(treeChanges, 6) << "a detached panel no longer follows the explorer";
    EXPECT_THROW(panel.toggleGroup(0), common::EPreconditionViolation);
    panel.onObjectsChanged(objectEventEntitiesChanged, allEntityCollections, {table}, {});
    EXPECT_EQ(treeChanges, 6);
}

} // namespace
} // namespace aec::host
