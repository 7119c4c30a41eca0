#include "AecModel/Project.h"

#include "Common/AssertionViolation.h"
#include "Common/Exception.h"
#include "CommonTests/ViolationSite.h"
#include "aec/EntityTypes.h"
#include "aec/PropertyAssignmentKey.h"
#include "aec/Transaction.h"

#include <gtest/gtest.h>
#include <string>
#include <variant>

namespace aec::model
{
namespace
{

TEST(ProjectTest, EntitiesKeepTheirCollectionAndTopic)
{
    CProject project;
    const TopicId topic = project.addTopic(L"Structure");
    const EntityId given(common::UUID::parse(std::string_view("5b0c1d8e-3f43-4a5e-9a57-0d5c8e7e2a11")));
    const EntityId beam = project.addEntity(EntityCollection::Assemblies, L"Beam", topic, given);
    const EntityId wall = project.addEntity(EntityCollection::Assemblies, L"Wall");

    EXPECT_EQ(beam, given);
    EXPECT_FALSE(wall.isNull());
    EXPECT_EQ(project.getEntities(EntityCollection::Assemblies), (EntityIdList{beam, wall}));
    EXPECT_EQ(project.getEntities(EntityCollection::Topics), (EntityIdList{EntityId(topic.uuid())}));
    ASSERT_EQ(project.getProjectTopics().size(), 1u);
    EXPECT_EQ(project.getProjectTopics()[0].getName(), L"Structure");

    const CEntity& entity = *project.findEntity(beam);
    EXPECT_EQ(entity.getType(), entity_types::assembly());
    EXPECT_EQ(entity.getPropertyValue(PropertyAssignmentKey::topic()), AttributeValue(topic.uuid()));
    EXPECT_TRUE(std::holds_alternative<std::monostate>(
        project.findEntity(wall)->getPropertyValue(PropertyAssignmentKey::topic())));
    EXPECT_TRUE(
        std::holds_alternative<std::monostate>(entity.getPropertyValue(PropertyAssignmentKey::noGrouping())));
}

TEST(ProjectTest, TopicSetThroughTheEntityIsUndoable)
{
    CProject project;
    const TopicId topic = project.addTopic(L"Level 2");
    const EntityId door = project.addEntity(EntityCollection::DoorStyles, L"Door 900");
    IEntity* const entity = project.findEntity(door);
    {
        auto transaction = project.getTransactionHost().openTransaction("Change entities topic");
        project.prepareTopicChange({entity}, topic);
        dynamic_cast<IEntityWithTopic&>(*entity).setTopic(topic);
        transaction->commit();
    }
    EXPECT_EQ(project.findEntity(door)->getTopic(), topic);

    // The nil topic, the "(No topic)" choice, takes the topic away in a step of its own.
    {
        auto transaction = project.getTransactionHost().openTransaction("Change entities topic");
        project.prepareTopicChange({entity}, TopicId());
        dynamic_cast<IEntityWithTopic&>(*entity).setTopic(TopicId());
        transaction->commit();
    }
    EXPECT_EQ(project.findEntity(door)->getTopic(), std::nullopt);
    project.getUndoHistory().undo();
    EXPECT_EQ(project.findEntity(door)->getTopic(), topic);
    project.getUndoHistory().undo();
    EXPECT_EQ(project.findEntity(door)->getTopic(), std::nullopt);

    const EntityId image = project.addEntity(EntityCollection::Images, L"Photo");
    EXPECT_THROW(project.prepareTopicChange({project.findEntity(image)}, TopicId()), common::EException)
        << "an image has no topic to lose";
}

TEST(ProjectTest, TopicChoicesStartWithNoTopicAndFollowNaturalOrder)
{
    CProject project;
    const TopicId ten = project.addTopic(L"Level 10");
    const TopicId two = project.addTopic(L"level 2");
    const TopicId one = project.addTopic(L"Level 1");
    const std::vector<CTopic> choices = project.getTopics();
    std::vector<std::wstring> names;
    std::vector<TopicId> ids;
    for (const CTopic& topic : choices)
    {
        names.push_back(topic.getName());
        ids.push_back(topic.getId());
    }
    EXPECT_EQ(names, (std::vector<std::wstring>{L"(No topic)", L"Level 1", L"level 2", L"Level 10"}));
    EXPECT_EQ(ids, (std::vector<TopicId>{TopicId(), one, two, ten}));
    ASSERT_EQ(project.getProjectTopics().size(), 3u);
    EXPECT_EQ(project.getProjectTopics().front().getId(), ten)
        << "the topics themselves keep collection order";
}

TEST(ProjectTest, RemovingATopicTakesItFromItsEntities)
{
    CProject project;
    const TopicId kept = project.addTopic(L"Kept");
    const TopicId removed = project.addTopic(L"Removed");
    const EntityId sheet = project.addEntity(EntityCollection::Sheets, L"Sheet", removed);
    const EntityId table = project.addEntity(EntityCollection::Tables, L"Table", kept);

    project.removeEntity(EntityId(removed.uuid()));
    EXPECT_EQ(project.findEntity(sheet)->getTopic(), std::nullopt);
    EXPECT_EQ(project.findEntity(table)->getTopic(), kept);
    EXPECT_THROW(project.prepareTopicChange({project.findEntity(sheet)}, removed), common::EException);
}

TEST(ProjectTest, MisuseIsAContractViolationOfTheProject)
{
    CProject project;
    const TopicId topic = project.addTopic(L"Topic");
    const EntityId image = project.addEntity(EntityCollection::Images, L"Photo");

    using common::test::violationSite;
    using Violation = common::EPreconditionViolation;
    const std::string duplicate = violationSite<Violation>(
        [&] { project.addEntity(EntityCollection::Images, L"Same id", std::nullopt, image); });
    const std::string imageTopic = violationSite<Violation>([&] { project.setEntityTopic(image, topic); });
    const std::string unknown =
        violationSite<Violation>([&] { project.removeEntity(EntityId(common::UUID::create())); });

    for (const std::string& site : {duplicate, imageTopic, unknown})
        EXPECT_EQ(common::test::siteFile(site), "ReferenceHost/AecModel/Project.cpp");
    EXPECT_NE(duplicate, imageTopic);
    EXPECT_NE(imageTopic, unknown);
    EXPECT_EQ(project.entityCount(), 2u);
}

// The order structure must bring many removals back to the very same places, cheaply enough that
// a large collection is not a problem for this test.
TEST(ProjectTest, LargeCollectionKeepsItsOrderThroughRemovalAndRollback)
{
    CProject project;
    constexpr int count = 100000;
    for (int index = 0; index < count; ++index)
        project.addEntity(EntityCollection::Materials, L"Material " + std::to_wstring(index));
    const EntityIdList before = project.getEntities(EntityCollection::Materials);
    {
        auto transaction = project.getTransactionHost().openTransaction("Remove many");
        for (int index = 0; index < count; index += count / 1000)
            project.removeEntity(before[static_cast<std::size_t>(index)]);
        project.removeEntity(before[1]); // a neighbour of a removed one
        const EntityIdList during = project.getEntities(EntityCollection::Materials);
        EXPECT_EQ(during.size(), static_cast<std::size_t>(count - 1001));
        EXPECT_EQ(during.front(), before[2]);
    }
    EXPECT_EQ(project.getEntities(EntityCollection::Materials), before);
    EXPECT_EQ(project.entityCount(), static_cast<std::size_t>(count));
}

} // namespace
} // namespace aec::model
