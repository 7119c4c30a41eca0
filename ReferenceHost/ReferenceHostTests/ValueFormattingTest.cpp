#include "AecModel/AttributeValueFormatter.h"
#include "AecModel/Project.h"
#include "AecModel/PropertyCatalog.h"
#include "AecModel/SessionManager.h"

#include "aec/PropertyAssignmentKey.h"

#include "Common/Exception.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace aec::model
{
namespace
{

class ValueFormattingTest : public ::testing::Test
{
protected:
    ValueFormattingTest() { sessions.setCurrentProject(&project); }

    CProject project;
    CSessionManager sessions;
    const CAttributeValueFormatter formatter{sessions};
};

TEST_F(ValueFormattingTest, TopicValuesReadAsTheTopicsName)
{
    const TopicId topic = project.addTopic(L"Level 10");
    const EntityId sheet = project.addEntity(EntityCollection::Sheets, L"Sheet A-101", topic);
    const EntityId bare = project.addEntity(EntityCollection::Sheets, L"Sheet A-20");
    const auto topicText = [&](const EntityId& id) {
        return formatter.format(project.findEntity(id)->getPropertyValue(PropertyAssignmentKey::topic()));
    };

    EXPECT_EQ(topicText(sheet), L"Level 10");
    EXPECT_EQ(topicText(bare), L"(No topic)");
    project.renameEntity(EntityId(topic.uuid()), L"level 10");
    EXPECT_EQ(topicText(sheet), L"level 10") << "the name is read when formatting, not kept";

    const common::UUID stranger = common::UUID::parse(std::string_view("0c7e0a52-7d2b-4b8b-a7a8-3a6f4f3c2d10"));
    EXPECT_EQ(formatter.format(stranger), L"0c7e0a52-7d2b-4b8b-a7a8-3a6f4f3c2d10");
}

TEST_F(ValueFormattingTest, PlainValuesReadNaturally)
{
    EXPECT_EQ(formatter.format(std::wstring(L"Façade")), L"Façade");
    EXPECT_EQ(formatter.format(std::wstring()), L"");
    EXPECT_EQ(formatter.format(std::int64_t{-42}), L"-42");
    EXPECT_EQ(formatter.format(2.5), L"2.5");
    EXPECT_EQ(formatter.format(0.1), L"0.1");
    EXPECT_EQ(formatter.format(true), L"Yes");
    EXPECT_EQ(formatter.format(false), L"No");
}

TEST_F(ValueFormattingTest, WithoutAProjectTheSessionRefuses)
{
    sessions.setCurrentProject(nullptr);
    EXPECT_FALSE(sessions.hasCurrentProject());
    try
    {
        (void)sessions.getCurrentProject();
        FAIL() << "a project was found";
    }
    catch (const common::EException& error)
    {
        EXPECT_STREQ(error.what(), "No project is open");
    }
    EXPECT_THROW((void)formatter.format(common::UUID::create()), common::EException);
    EXPECT_EQ(formatter.format(std::monostate{}), L"(No topic)") << "needs no project";
}

TEST_F(ValueFormattingTest, CatalogOffersTheTopicOnceTheProjectHasOne)
{
    const CPropertyCatalog catalog;
    const PropertyAssignmentKey unknown(common::UUID::parse(std::string_view("1a2b3c4d-0000-4000-8000-000000000001")));
    EXPECT_FALSE(catalog.isAvailable(project, PropertyAssignmentKey::topic()));
    EXPECT_TRUE(catalog.isAvailable(project, PropertyAssignmentKey::noGrouping()));

    const TopicId topic = project.addTopic(L"Structure");
    EXPECT_TRUE(catalog.isAvailable(project, PropertyAssignmentKey::topic()));
    EXPECT_FALSE(catalog.isAvailable(project, unknown));
    project.removeEntity(EntityId(topic.uuid()));
    EXPECT_FALSE(catalog.isAvailable(project, PropertyAssignmentKey::topic()));

    EXPECT_EQ(catalog.getDisplayName(PropertyAssignmentKey::topic()), L"Topic");
    EXPECT_NE(catalog.getDisplayName(PropertyAssignmentKey::noGrouping()), L"Topic");
}

} // namespace
} // namespace aec::model
