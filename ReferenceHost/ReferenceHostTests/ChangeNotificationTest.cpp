#include "ObjectEventRecorder.h"

#include "AecModel/Project.h"

#include "aec/ChangeNotificationBatch.h"
#include "aec/Transaction.h"

#include <gtest/gtest.h>

namespace aec::model
{
namespace
{

using test::CObjectEventRecorder;

class ChangeNotificationTest : public ::testing::Test
{
protected:
    ChangeNotificationTest()
    {
        first = project.addEntity(EntityCollection::Tables, L"Table 1");
        second = project.addEntity(EntityCollection::Tables, L"Table 2");
        third = project.addEntity(EntityCollection::Tables, L"Table 3");
        recorder.events.clear();
    }

    IChangeNotificationBatch& batch() { return project.getChangeNotificationBatch(); }

    void expectOneEvent(const EntityIdSet& changed, const EntityIdSet& removed)
    {
        ASSERT_EQ(recorder.events.size(), 1u);
        EXPECT_EQ(recorder.events[0].code, objectEventEntitiesChanged);
        EXPECT_EQ(recorder.events[0].changed, changed);
        EXPECT_EQ(recorder.events[0].removed, removed);
        recorder.events.clear();
    }

    CProject project;
    EntityId first;
    EntityId second;
    EntityId third;
    CObjectEventRecorder recorder{project.getObjectEvents()};
};

TEST_F(ChangeNotificationTest, NestedBatchesNotifyOnceAtTheOutermostClose)
{
    auto transaction = project.getTransactionHost().openTransaction("Batch work");
    batch().open();
    project.renameEntity(first, L"Renamed");
    batch().open();
    project.removeEntity(second);
    const EntityId added = project.addEntity(EntityCollection::Tables, L"Table 4");
    batch().close();
    EXPECT_TRUE(recorder.events.empty());
    batch().close();
    expectOneEvent({first, added}, {second});

    transaction->commit();
    EXPECT_TRUE(recorder.events.empty()) << "the batch already told everything";
}

TEST_F(ChangeNotificationTest, TransactionWithoutBatchNotifiesAtCommit)
{
    auto transaction = project.getTransactionHost().openTransaction("Work");
    project.renameEntity(first, L"Renamed");
    project.setEntityProperty(first, "note", L"checked");
    EXPECT_TRUE(recorder.events.empty());
    transaction->commit();
    expectOneEvent({first}, {});
}

TEST_F(ChangeNotificationTest, ChangesThatCancelOutNotifyNothing)
{
    batch().open();
    project.removeEntity(project.addEntity(EntityCollection::Images, L"Short-lived"));
    project.renameEntity(first, L"Table 1");
    batch().close();
    EXPECT_TRUE(recorder.events.empty());

    { // Nothing observers knew of changed: the rollback has nothing to report either.
        auto transaction = project.getTransactionHost().openTransaction("Abandoned");
        project.addEntity(EntityCollection::Images, L"Never seen");
    }
    EXPECT_TRUE(recorder.events.empty());
}

TEST_F(ChangeNotificationTest, RollbackReportsWhatItBringsBack)
{
    {
        auto transaction = project.getTransactionHost().openTransaction("Remove");
        batch().open();
        project.removeEntity(second);
        batch().close();
        expectOneEvent({}, {second});
    }
    expectOneEvent({second}, {});
}

TEST_F(ChangeNotificationTest, UndoAndRedoNotifyOnceEach)
{
    {
        auto transaction = project.getTransactionHost().openTransaction("Mixed");
        project.removeEntity(first);
        project.renameEntity(third, L"Renamed");
        transaction->commit();
    }
    expectOneEvent({third}, {first});

    project.getUndoHistory().undo();
    expectOneEvent({first, third}, {});
    project.getUndoHistory().redo();
    expectOneEvent({third}, {first});
}

TEST_F(ChangeNotificationTest, DirectChangesNotifyAtOnceUnlessBatched)
{
    project.renameEntity(first, L"Direct");
    expectOneEvent({first}, {});

    batch().open();
    project.renameEntity(first, L"Direct again");
    project.removeEntity(third);
    EXPECT_TRUE(recorder.events.empty());
    batch().close();
    expectOneEvent({first}, {third});
}

TEST_F(ChangeNotificationTest, EventsNameTheCollectionsOfTheEntitiesTheyReport)
{
    const TopicId topic = project.addTopic(L"Level 1");
    const EntityId sheet = project.addEntity(EntityCollection::Sheets, L"Sheet", topic);
    recorder.events.clear();

    project.renameEntity(first, L"Renamed");
    ASSERT_EQ(recorder.events.size(), 1u);
    EXPECT_EQ(recorder.events[0].collections, entityCollectionBit(EntityCollection::Tables));
    recorder.events.clear();

    { // Removing a topic takes it from the sheet too; the rollback reports both again.
        auto transaction = project.getTransactionHost().openTransaction("Remove topic");
        batch().open();
        project.removeEntity(EntityId(topic.uuid()));
        batch().close();
    }
    const std::uint32_t topicAndSheet =
        entityCollectionBit(EntityCollection::Topics) | entityCollectionBit(EntityCollection::Sheets);
    ASSERT_EQ(recorder.events.size(), 2u);
    EXPECT_EQ(recorder.events[0].removed, EntityIdSet{EntityId(topic.uuid())});
    EXPECT_EQ(recorder.events[0].collections, topicAndSheet);
    EXPECT_EQ(recorder.events[1].changed, (EntityIdSet{EntityId(topic.uuid()), sheet}));
    EXPECT_EQ(recorder.events[1].collections, topicAndSheet);
    recorder.events.clear();

    // An entity that came and went unseen names no collection.
    batch().open();
    project.removeEntity(project.addEntity(EntityCollection::Images, L"Short-lived"));
    project.removeEntity(second);
    batch().close();
    ASSERT_EQ(recorder.events.size(), 1u);
    EXPECT_EQ(recorder.events[0].collections, entityCollectionBit(EntityCollection::Tables));
}

} // namespace
} // namespace aec::model
