#include "AecModel/ProjectPreferences.h"
#include "AecModel/WideText.h"

#include "aec/ProjectExplorerGroupInfo.h"
#include "aec/PropertyAssignmentKey.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <stdexcept>
#include <string>

namespace aec::model
{
namespace
{

using nlohmann::json;

const ProjectExplorerGroupInfo& group(EntityCollection collection)
{
    for (const ProjectExplorerGroupInfo& info : projectExplorerGroups())
        if (info.collection == collection)
            return info;
    throw std::logic_error("no group shows the collection");
}

ProjectExplorerState sampleState()
{
    ProjectExplorerGroupState sheets;
    sheets.sortOrder = 2;
    sheets.groupingPath = PropertyAssignmentKey::topic().getPath();
    sheets.groupingProperty = PropertyAssignmentKey::topic().getProperty();
    sheets.expanded = true;
    sheets.subgroupExpanded = {
        {common::UUID::parse(std::string_view("3e6c5a8f-1b7d-5c2e-9f3a-4d8b6e1c7a20")), true},
        {common::UUID::parse(std::string_view("a1b2c3d4-e5f6-5a7b-8c9d-0e1f2a3b4c5d")), false}};
    ProjectExplorerGroupState topics;
    topics.groupingProperty = PropertyAssignmentKey::noGrouping().getProperty();
    return {{group(EntityCollection::Sheets).id, sheets}, {group(EntityCollection::Topics).id, topics}};
}

// Warnings are for people; the tests only insist that each names what it is about.
// The stored entry of the group, wherever the record put it.
const json& storedEntry(const json& stored, EntityCollection collection)
{
    for (const json& entry : stored["projectExplorer"]["groups"])
        if (entry["id"] == group(collection).id.toString())
            return entry;
    throw std::logic_error("the group is not stored");
}

bool anyWarningMentions(const CProjectPreferences& preferences, const std::string& text)
{
    for (const std::string& warning : preferences.getWarnings())
        if (warning.find(text) != std::string::npos)
            return true;
    return false;
}

TEST(ProjectPreferencesTest, StateSurvivesTheJsonRoundTrip)
{
    CProjectPreferences written;
    EXPECT_EQ(written.getProjectExplorerState(), std::nullopt);
    written.setProjectExplorerState(sampleState());

    CProjectPreferences read;
    read.fromJsonText(written.toJson().dump());
    EXPECT_EQ(read.getProjectExplorerState(), sampleState());
    EXPECT_TRUE(read.getWarnings().empty());

    read.fromJson(CProjectPreferences().toJson());
    EXPECT_EQ(read.getProjectExplorerState(), std::nullopt) << "nothing stored reads as nothing";
}

TEST(ProjectPreferencesTest, TextThatIsNotJsonIsDroppedWithAWarning)
{
    CProjectPreferences preferences;
    preferences.setProjectExplorerState(sampleState());
    preferences.fromJsonText("{\"projectExplorer\": {\"groups\": [");
    EXPECT_EQ(preferences.getProjectExplorerState(), std::nullopt);
    EXPECT_TRUE(anyWarningMentions(preferences, "not valid JSON"));

    // The parser refuses a number beyond double with an error of another kind than a syntax error.
    preferences.setProjectExplorerState(sampleState());
    preferences.fromJsonText("{\"projectExplorer\": 1e999}");
    EXPECT_EQ(preferences.getProjectExplorerState(), std::nullopt);
    EXPECT_TRUE(anyWarningMentions(preferences, "not valid JSON"));

    // The parser quotes what it read; the warning stays UTF-8 text, which hosts show as it is.
    preferences.fromJsonText("{\xff\xfe}");
    ASSERT_EQ(preferences.getWarnings().size(), 1u);
    EXPECT_TRUE(anyWarningMentions(preferences, "not valid JSON"));
    EXPECT_NO_THROW(fromUtf8(preferences.getWarnings().front()));

    preferences.fromJson(json::array({1, 2}));
    EXPECT_EQ(preferences.getProjectExplorerState(), std::nullopt);
    EXPECT_TRUE(anyWarningMentions(preferences, "not a JSON object"));

    preferences.fromJson(json{{"projectExplorer", {{"groups", "all of them"}}}});
    EXPECT_EQ(preferences.getProjectExplorerState(), std::nullopt);
    EXPECT_EQ(preferences.getWarnings().size(), 1u);
}

// Each broken entry is dropped on its own; the good entries around it stay.
TEST(ProjectPreferencesTest, BrokenEntriesAreDroppedOneByOne)
{
    CProjectPreferences written;
    written.setProjectExplorerState(sampleState());
    const json good = written.toJson();
    const json& sheetsEntry = storedEntry(good, EntityCollection::Sheets);

    json wrongType = sheetsEntry;
    wrongType["expanded"] = "yes";
    json unknownGroup = sheetsEntry;
    unknownGroup["id"] = "6d1f7e2a-95c4-4b3e-8a71-2f0c9d4e5b68";
    json badUuid = sheetsEntry;
    badUuid["subgroups"][0]["id"] = "not-a-uuid";
    json topicOnImages = sheetsEntry;
    topicOnImages["id"] = group(EntityCollection::Images).id.toString();
    json negativeSortOrder = sheetsEntry;
    negativeSortOrder["sortOrder"] = -1;

    json stored = good;
    stored["projectExplorer"]["groups"] =
        json::array({wrongType, unknownGroup, badUuid, topicOnImages, negativeSortOrder,
                     storedEntry(good, EntityCollection::Topics)});
    CProjectPreferences read;
    read.fromJson(stored);

    const ProjectExplorerState expected{*sampleState().find(group(EntityCollection::Topics).id)};
    EXPECT_EQ(read.getProjectExplorerState(), expected);
    EXPECT_EQ(read.getWarnings().size(), 5u);
    EXPECT_TRUE(anyWarningMentions(read, "\"expanded\""));
    EXPECT_TRUE(anyWarningMentions(read, "6d1f7e2a-95c4-4b3e-8a71-2f0c9d4e5b68"));
    EXPECT_TRUE(anyWarningMentions(read, "not-a-uuid"));
    EXPECT_TRUE(anyWarningMentions(read, "Images"));
    EXPECT_TRUE(anyWarningMentions(read, "\"sortOrder\""));
}

TEST(ProjectPreferencesTest, AGroupStoredTwiceKeepsTheFirst)
{
    CProjectPreferences written;
    written.setProjectExplorerState(sampleState());
    json stored = written.toJson();
    json second = storedEntry(stored, EntityCollection::Sheets);
    second["expanded"] = false;
    stored["projectExplorer"]["groups"].push_back(second);

    CProjectPreferences read;
    read.fromJson(stored);
    EXPECT_EQ(read.getProjectExplorerState(), sampleState());
    EXPECT_TRUE(anyWarningMentions(read, "twice"));
}

} // namespace
} // namespace aec::model
