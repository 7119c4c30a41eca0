#include "ExplorerTest.h"

namespace project_explorer::test
{
namespace
{

using aec::EntityCollection;
using aec::EntityIdSet;

class ProjectExplorerGroupMakerTest : public ExplorerTest
{
protected:
    aec::EntityId materialIn(const aec::TopicId& topic) { return project.addEntity(EntityCollection::Materials, L"M", topic); }
    aec::EntityId materialIn(const wchar_t* newTopic) { return materialIn(project.addTopic(newTopic)); }

    // The subgroups by topic as (name, entities) in the maker's order.
    std::vector<std::pair<std::wstring, EntityIdSet>> byTopic(const aec::EntityIdList& ids, int sortOrder = 1) const
    {
        std::vector<std::pair<std::wstring, EntityIdSet>> result;
        for (aec::SubgroupDescriptor& descriptor : groupMaker.makeSubgroups(ids, aec::PropertyAssignmentKey::topic(), sortOrder))
            result.emplace_back(std::move(descriptor.name), std::move(descriptor.entities));
        return result;
    }
};

TEST_F(ProjectExplorerGroupMakerTest, NamesComeInNaturalOrderAscendingForOneOnlyAndDuplicatesCollapse)
{
    const aec::EntityId ten = materialIn(L"Item 10");
    const aec::EntityId two = materialIn(L"Item 2");
    const aec::EntityId three = materialIn(L"item 3");
    const std::vector<std::pair<std::wstring, EntityIdSet>> ascending{
        {L"Item 2", {two}}, {L"item 3", {three}}, {L"Item 10", {ten}}};

    EXPECT_EQ(byTopic({ten, two, three, two, ten}), ascending);
    for (int otherOrder : {0, 2, -1})
        EXPECT_EQ(byTopic({ten, two, three}, otherOrder), decltype(ascending)(ascending.rbegin(), ascending.rend()));
}

TEST_F(ProjectExplorerGroupMakerTest, NamesThatCompareEqualShareOneSubgroupNamedByTheFirstEntity)
{
    const aec::TopicId lower = project.addTopic(L"wall");
    const aec::EntityId lowerCase = materialIn(lower);
    const aec::EntityId capitalised = materialIn(L"Wall");
    const aec::EntityId lowerAgain = materialIn(lower);
    const aec::EntityId roof = materialIn(L"Roof");

    EXPECT_EQ(byTopic({lowerCase, roof, capitalised, lowerAgain}),
              (std::vector<std::pair<std::wstring, EntityIdSet>>{{L"Roof", {roof}}, {L"wall", {lowerCase, capitalised, lowerAgain}}}));
    EXPECT_EQ(byTopic({capitalised, lowerCase}).at(0).first, L"Wall");
}

TEST_F(ProjectExplorerGroupMakerTest, EmptyInputReservedKeyAbsentValueAndVanishedEntity)
{
    const aec::EntityId loose = project.addEntity(EntityCollection::Materials, L"Loose");
    const aec::EntityId gone = materialIn(L"Gone");
    const aec::EntityId concrete = materialIn(L"Concrete");
    project.removeEntity(gone);

    EXPECT_TRUE(byTopic({}).empty());
    EXPECT_TRUE(groupMaker.makeSubgroups({}, aec::PropertyAssignmentKey::noGrouping(), 1).empty());

    const auto all = groupMaker.makeSubgroups({concrete, loose, concrete}, aec::PropertyAssignmentKey::noGrouping(), 1);
    ASSERT_EQ(all.size(), 1u);
    EXPECT_EQ(all[0].name, L"");
    EXPECT_EQ(all[0].entities, (EntityIdSet{concrete, loose}));

    // An entity gone from the project since it was listed is kept, with and without grouping;
    // grouped, it reads as lacking the property.
    EXPECT_EQ(byTopic({loose, gone, concrete}),
              (std::vector<std::pair<std::wstring, EntityIdSet>>{
                  {formatter.format(std::monostate{}), {loose, gone}}, {L"Concrete", {concrete}}}));
    EXPECT_EQ(groupMaker.makeSubgroups({gone}, aec::PropertyAssignmentKey::noGrouping(), 1).at(0).entities,
              EntityIdSet{gone});
}

} // namespace
} // namespace project_explorer::test
