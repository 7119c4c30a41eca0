#include "AecModel/SampleProject.h"
#include "AecModel/EntityCollectionInfo.h"
#include "AecModel/Project.h"

#include "Common/SequentialUuidProvider.h"
#include "Common/UuidProvider.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <set>
#include <string>

namespace aec::model
{
namespace
{

std::set<std::wstring> namesOf(const CProject& project, EntityCollection collection)
{
    std::set<std::wstring> names;
    for (const EntityId& id : project.getEntities(collection))
        names.insert(project.findEntity(id)->getName());
    return names;
}

TEST(SampleProjectTest, HasTheMixTheExplorerNeedsToShow)
{
    const auto project = buildSampleProject();
    EXPECT_GE(project->entityCount(), 60u);
    for (const EntityCollectionInfo& info : entityCollections())
        EXPECT_GE(project->getEntities(info.collection).size(), 4u) << info.key;
    EXPECT_GE(project->getTopics().size(), 4u);

    std::size_t withTopic = 0;
    std::size_t withoutTopic = 0;
    std::size_t nonAscii = 0;
    for (const EntityCollectionInfo& info : entityCollections())
        for (const EntityId& id : project->getEntities(info.collection))
        {
            const CEntity& entity = *project->findEntity(id);
            if (info.bearsTopic)
                ++(entity.getTopic() ? withTopic : withoutTopic);
            const std::wstring& name = entity.getName();
            if (std::any_of(name.begin(), name.end(), [](wchar_t character) { return character > 127; }))
                ++nonAscii;
        }
    EXPECT_GE(withTopic, 20u);
    EXPECT_GE(withoutTopic, 3u);
    EXPECT_GE(nonAscii, 3u);

    const auto sheets = namesOf(*project, EntityCollection::Sheets);
    EXPECT_TRUE(sheets.contains(L"Sheet A-101") && sheets.contains(L"Sheet A-20"));
    // Sheets differ in a free-form property, for the property editor to show side by side.
    std::set<std::wstring> scales;
    for (const EntityId& id : project->getEntities(EntityCollection::Sheets))
        if (const auto scale = project->findEntity(id)->getProperty("scale"))
            scales.insert(*scale);
    EXPECT_GE(scales.size(), 2u);
    const auto topics = namesOf(*project, EntityCollection::Topics);
    EXPECT_TRUE(topics.contains(L"level 2") && topics.contains(L"Level 10"));
    EXPECT_FALSE(project->getUndoHistory().canUndo());
}

TEST(SampleProjectTest, InstalledUuidProviderMakesItReproducible)
{
    const auto buildWithSeed = [](std::uint64_t seed)
    {
        common::installUuidProvider(std::make_shared<common::CSequentialUuidProvider>(seed));
        const std::string dump = buildSampleProject()->canonicalDump();
        common::installUuidProvider(nullptr);
        return dump;
    };
    EXPECT_EQ(buildWithSeed(7), buildWithSeed(7));
    EXPECT_NE(buildWithSeed(7), buildWithSeed(8));
}

} // namespace
} // namespace aec::model
