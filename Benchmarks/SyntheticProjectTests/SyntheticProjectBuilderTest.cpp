#include "SyntheticProject/SyntheticProjectBuilder.h"

#include "AecModel/EntityCollectionInfo.h"
#include "AecModel/Project.h"

#include <algorithm>
#include <cwctype>
#include <gtest/gtest.h>
#include <numeric>
#include <set>
#include <string>

namespace benchmarks
{
namespace
{

using aec::EntityCollection;
using aec::model::collectionIndex;

std::size_t total(const CSyntheticProjectBuilder::CollectionSizes& sizes)
{
    return std::accumulate(sizes.begin(), sizes.end(), std::size_t{0});
}

TEST(SyntheticProjectBuilderTest, SizesAddUpAndFillEveryGroup)
{
    for (const std::size_t count : {1'000u, 9'999u, 10'000u, 123'457u, 1'000'000u})
    {
        const CSyntheticProjectBuilder::CollectionSizes sizes =
            CSyntheticProjectBuilder::collectionSizes(count);
        EXPECT_EQ(total(sizes), count) << count;
        EXPECT_TRUE(std::ranges::all_of(sizes, [](std::size_t size) { return size > 0; })) << count;
    }
    EXPECT_EQ(CSyntheticProjectBuilder::collectionSizes(10'000)[collectionIndex(EntityCollection::Topics)],
              1000u);
    EXPECT_EQ(CSyntheticProjectBuilder::collectionSizes(1'000'000)[collectionIndex(EntityCollection::Topics)],
              1000u);
    EXPECT_EQ(CSyntheticProjectBuilder::collectionSizes(5'000)[collectionIndex(EntityCollection::Topics)],
              500u);
}

// One project read as a user sees it: what the builder promises of names and topics.
class SyntheticProjectTest : public ::testing::Test
{
protected:
    static constexpr std::size_t entityCount = 20'000;

    std::unique_ptr<aec::model::CProject> project = CSyntheticProjectBuilder(7).build(entityCount);
};

TEST_F(SyntheticProjectTest, CollectionsHoldTheirSharesUnderUniqueNames)
{
    EXPECT_EQ(project->entityCount(), entityCount);
    const CSyntheticProjectBuilder::CollectionSizes sizes =
        CSyntheticProjectBuilder::collectionSizes(entityCount);
    for (const aec::model::EntityCollectionInfo& info : aec::model::entityCollections())
    {
        const aec::EntityIdList ids = project->getEntities(info.collection);
        EXPECT_EQ(ids.size(), sizes[collectionIndex(info.collection)]) << info.key;
        std::set<std::wstring> names;
        for (const aec::EntityId& id : ids)
            names.insert(project->findEntity(id)->getName());
        EXPECT_EQ(names.size(), ids.size()) << "names repeat in " << info.key;
    }
}

TEST_F(SyntheticProjectTest, NamesMixCaseNumbersAndNonAsciiText)
{
    std::size_t lowerCase = 0;
    std::size_t nonAscii = 0;
    std::size_t leadingZeros = 0;
    const aec::EntityIdList sheets = project->getEntities(EntityCollection::Sheets);
    for (const aec::EntityId& id : sheets)
    {
        const std::wstring& name = project->findEntity(id)->getName();
        lowerCase += std::ranges::none_of(name, [](wchar_t c) { return c < 0x80 && std::iswupper(c); });
        nonAscii += std::ranges::any_of(name, [](wchar_t c) { return c >= 0x80; });
        leadingZeros += name.find(L"-0") != std::wstring::npos;
    }
    // Each a minority, but there.
    EXPECT_GT(lowerCase, sheets.size() / 50);
    EXPECT_LT(lowerCase, sheets.size() / 5);
    EXPECT_GT(nonAscii, sheets.size() / 20);
    EXPECT_GT(leadingZeros, sheets.size() / 20);
}

TEST_F(SyntheticProjectTest, MostEntitiesHaveATopicAndTheFirstTopicsTheMost)
{
    const std::vector<aec::CTopic> topics = project->getProjectTopics();
    ASSERT_EQ(topics.size(), 1000u);
    std::map<aec::TopicId, std::size_t> members;
    std::size_t withoutTopic = 0;
    std::size_t topicBearing = 0;
    for (const aec::model::EntityCollectionInfo& info : aec::model::entityCollections())
    {
        const aec::EntityIdList ids = project->getEntities(info.collection);
        for (const aec::EntityId& id : ids)
        {
            const std::optional<aec::TopicId> topic = project->findEntity(id)->getTopic();
            EXPECT_TRUE(info.bearsTopic || !topic) << info.key;
            topicBearing += info.bearsTopic;
            withoutTopic += info.bearsTopic && !topic;
            if (topic)
                ++members[*topic];
        }
    }
    EXPECT_GT(withoutTopic, topicBearing / 20);
    EXPECT_LT(withoutTopic, topicBearing / 8);
    EXPECT_GT(members[topics.front().getId()], 10 * members[topics[900].getId()] + 1);
}

TEST(SyntheticProjectBuilderTest, TheSeedDecidesTheProject)
{
    const std::string first = CSyntheticProjectBuilder(11).build(3'000)->canonicalDump();
    EXPECT_EQ(CSyntheticProjectBuilder(11).build(3'000)->canonicalDump(), first);
    EXPECT_NE(CSyntheticProjectBuilder(12).build(3'000)->canonicalDump(), first);
}

} // namespace
} // namespace benchmarks
